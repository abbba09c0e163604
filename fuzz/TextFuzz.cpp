#include "app/CStdStr.h"
#include "app/TextTime.h"
#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"

#include <cwctype>
#include <locale>

namespace {

void expectPiecesToMakeTheText(const QString& text, int length)
{
    const QVector<QString> pieces = splitString(text, length);
    if (length <= 0) {
        expectThat(pieces.isEmpty(), "no pieces without a length");
        return;
    }
    QString joined;
    for (const QString& piece : pieces) {
        expectThat(joined.size() % length == 0, "only the last piece is shorter");
        expectThat(!piece.isEmpty() && piece.size() <= length, "pieces of the length asked for");
        joined += piece;
    }
    expectThat(joined == text, "the pieces are the text");
}

void expectAssignment(std::wstring text, std::size_t position)
{
    position %= text.size() + 1;
    const std::wstring tail = text.substr(position);
    ssasn(text, text.c_str() + position);
    expectThat(text == tail, "a text becomes its own tail");
    std::wstring other = L"former";
    ssasn(other, tail.c_str());
    expectThat(other == tail, "a text is replaced");
    ssasn(other, nullptr);
    expectThat(other.empty(), "null makes it empty");
}

void expectComparison(const std::wstring& first, const std::wstring& second)
{
    const auto& facet = std::use_facet<std::ctype<wchar_t>>(std::locale::classic());
    int expected = 0;
    for (std::size_t i = 0; i <= first.size() && expected == 0; ++i) {
        expected = facet.tolower(first.c_str()[i]) - facet.tolower(second.c_str()[i]);
        if (first.c_str()[i] == 0)
            break;
    }
    expectThat(ssicmp(first.c_str(), second.c_str()) == expected, "the first difference counts");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const auto number = input.ConsumeIntegralInRange(-2, 40);
    const std::wstring first = input.wideText();
    const std::wstring second = input.ConsumeBool() ? first + L"x" : input.wideText();
    expectPiecesToMakeTheText(QString::fromStdWString(first), number);
    expectAssignment(first, static_cast<std::size_t>(number + 2));
    expectComparison(first, second);
    FormatTime(second.c_str());
    FormatTime(input.rawWideText().c_str());
    return 0;
}
