#include "regfile/RegFileDecoder.h"

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
    const int from = m_codec ? 0 : begin(piece);
    m_text += m_codec->toUnicode(piece.constData() + from, piece.size() - from, &m_state);
}

// Finds the encoding; the length of its mark.
int RegFileDecoder::begin(const QByteArray& file)
{
    const auto* encoding = std::find_if(
        std::begin(encodings), std::end(encodings) - 1,
        [&file](const Encoding& candidate) { return file.startsWith(candidate.mark); });
    m_codec = QTextCodec::codecForName(encoding->codec);
    return static_cast<int>(std::strlen(encoding->mark));
}
