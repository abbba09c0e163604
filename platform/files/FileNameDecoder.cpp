#include "platform/files/FileNameDecoder.h"

#include <QTextCodec>

#include <string_view>

namespace {

constexpr int mibOfUtf8 = 106;

bool isAscii(std::string_view bytes)
{
    unsigned int all = 0;
    for (const char byte : bytes)
        all |= static_cast<unsigned char>(byte);
    return all < 0x80;
}

} // namespace

FileNameDecoder::FileNameDecoder()
    : m_codec(*QTextCodec::codecForLocale()), m_isUtf8(m_codec.mibEnum() == mibOfUtf8)
{
}

FileNameDecoder::Result FileNameDecoder::decode(const char* name, QString& text) const
{
    const std::string_view bytes(name);
    const auto size = static_cast<int>(bytes.size());
    if (m_isUtf8 && isAscii(bytes)) { // the same in UTF-8, and decoded much faster
        text = QString::fromLatin1(name, size);
        return Result::Text;
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    text = m_codec.toUnicode(name, size, &state);
    if (state.invalidChars != 0)
        return Result::InvalidBytes;
    return state.remainingChars == 0 ? Result::Text : Result::CutShort;
}
