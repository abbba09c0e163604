#include "regfile/RegFileDecoder.h"

#include "regfile/RegFileText.h"

#include <algorithm>
#include <cstring>

namespace {

struct Encoding
{
    const char* mark;
    const char* codec;
};

constexpr Encoding encodings[] = {
    {"\xFF\xFE", "UTF-16LE"}, {"\xFE\xFF", "UTF-16BE"}, {"\xEF\xBB\xBF", "UTF-8"}, {"", "UTF-8"}};

} // namespace

void RegFileDecoder::add(const QByteArray& piece)
{
    if (m_codec)
        return decode(piece);
    m_head += piece;
    if (m_head.trimmed().size() >= regFileHeader4.size())
        begin();
}

void RegFileDecoder::end()
{
    if (!m_codec)
        begin();
}

// Finds the encoding by the mark, or by the first word.
void RegFileDecoder::begin()
{
    const auto* encoding =
        std::find_if(std::begin(encodings), std::end(encodings) - 1,
                     [this](const Encoding& each) { return m_head.startsWith(each.mark); });
    const auto mark = static_cast<int>(std::strlen(encoding->mark));
    m_isVersion4 = mark == 0 && m_head.trimmed().startsWith(regFileHeader4.data());
    m_codec = m_isVersion4 ? m_codePage : QTextCodec::codecForName(encoding->codec);
    decode(std::exchange(m_head, {}).mid(mark));
}

void RegFileDecoder::decode(const QByteArray& bytes)
{
    m_text += m_codec->toUnicode(bytes.constData(), bytes.size(), &m_state);
}
