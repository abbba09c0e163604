#include "trace/replay/RecordedText.h"

#include "trace/recorder/Utf8.h"

namespace replay::RecordedText {

namespace {

// A byte that was no UTF-8 stands in the text as this with the byte added.
constexpr uint firstByte = 0xDC80;
constexpr uint lastByte = 0xDCFF;

template <typename Append>
void forEachCode(const QString& text, Append append)
{
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair)
            append(QChar::surrogateToUcs4(text.at(i), text.at(i + 1)));
        else
            append(uint{text.at(i).unicode()});
        i += isPair ? 1 : 0;
    }
}

} // namespace

std::wstring toWide(const QString& text)
{
    std::wstring wide;
    wide.reserve(static_cast<std::size_t>(text.size()));
    forEachCode(text, [&wide](uint code) { wide += static_cast<wchar_t>(code); });
    return wide;
}

std::string toNarrow(const QString& text)
{
    std::string narrow;
    forEachCode(text, [&narrow](uint code) {
        if (code >= firstByte && code <= lastByte)
            narrow += static_cast<char>(static_cast<unsigned char>(code));
        else
            recorder::utf8::append(narrow, code);
    });
    return narrow;
}

qint64 wideLength(const QString& text)
{
    qint64 length = 0;
    forEachCode(text, [&length](uint /*code*/) { ++length; });
    return length;
}

} // namespace replay::RecordedText
