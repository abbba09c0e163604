#include "platform/PlatformDirectoryManagerImp.h"

#include <QRegExpValidator>

#include <gtest/gtest.h>

#include <random>

namespace {

struct UrlRow
{
    const wchar_t* text;
    int result;
};

class Url : public testing::TestWithParam<UrlRow>
{
};

TEST_P(Url, IsTheWholeText)
{
    EXPECT_EQ(GetParam().result, PlatformDirectoryManagerImp().isURL(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Schemes, Url,
                         testing::Values(UrlRow{nullptr, 0}, UrlRow{L"", 0},
                                         UrlRow{L"http://a.b", 1}, UrlRow{L"https://a.b", 1},
                                         UrlRow{L"ftp://a.b", 1}, UrlRow{L"file:///a", 1},
                                         UrlRow{L"HTTP://a.b", 0}, UrlRow{L"Http://a.b", 0},
                                         UrlRow{L"httpss://a.b", 0}, UrlRow{L"ftps://a.b", 0},
                                         UrlRow{L"htt://a.b", 0}, UrlRow{L"mailto:a@b", 0},
                                         UrlRow{L"://a.b", 0}, UrlRow{L"http:/a.b", 0},
                                         UrlRow{L"http//a.b", 0}, UrlRow{L"http", 0}));

INSTANTIATE_TEST_SUITE_P(Lengths, Url,
                         testing::Values(UrlRow{L"http://", 0}, UrlRow{L"http://a", 0},
                                         UrlRow{L"http://ab", 1}, UrlRow{L"http://.a", 1},
                                         UrlRow{L"http:////", 1}, UrlRow{L"http://::", 0}));

INSTANTIATE_TEST_SUITE_P(
    LastCharacters, Url,
    testing::Values(UrlRow{L"http://a.", 0}, UrlRow{L"http://a?", 0}, UrlRow{L"http://a!", 0},
                    UrlRow{L"http://a:", 0}, UrlRow{L"http://a,", 0}, UrlRow{L"http://a;", 0},
                    UrlRow{L"http://a-", 1}, UrlRow{L"http://a+", 1}, UrlRow{L"http://a&", 1},
                    UrlRow{L"http://a@", 1}, UrlRow{L"http://a#", 1}, UrlRow{L"http://a/", 1},
                    UrlRow{L"http://a%", 1}, UrlRow{L"http://a=", 1}, UrlRow{L"http://a~", 1},
                    UrlRow{L"http://a_", 1}, UrlRow{L"http://a|", 1}, UrlRow{L"http://a'", 0}));

INSTANTIATE_TEST_SUITE_P(Texts, Url,
                         testing::Values(UrlRow{L"http://a.b\n", 0}, UrlRow{L"\nhttp://a.b", 0},
                                         UrlRow{L"see http://a.b", 0}, UrlRow{L"http://a.b x", 0},
                                         UrlRow{L"http://a.b/c d/e", 0}, UrlRow{L"http://ä.de", 0},
                                         UrlRow{L"http://a.b/\U0001F600", 0},
                                         UrlRow{L"http://(a)", 0},
                                         UrlRow{L"http://u:p@h:80/p;x?q=1,2!&r#f", 1},
                                         UrlRow{L"http://\xFF41\xFF42", 0},
                                         // A byte order mark is no part of the text.
                                         UrlRow{L"\xFEFFhttp://a.b", 1}));

// What the test is defined by.
bool isAccepted(const std::wstring& text)
{
    static const QRegExpValidator validator(
        QRegExp("(https?|ftp|file)://[-A-Za-z0-9+&@#/%?=~_|!:,.;]+[-A-Za-z0-9+&@#/%=~_|]"));
    QString input = QString::fromStdWString(text);
    int position = 0;
    return !input.isEmpty() && validator.validate(input, position) == QValidator::Acceptable;
}

int isUrl(const std::wstring& text)
{
    return PlatformDirectoryManagerImp().isURL(text.c_str());
}

TEST(UrlAgainstValidator, AgreesOnEverySingleCharacterInEveryPlace)
{
    for (wchar_t c = 1; c < 0x500; ++c) {
        for (std::size_t place = 0; place <= 10; ++place) {
            std::wstring text = L"https://ab";
            text.insert(place, 1, c);
            ASSERT_EQ(isAccepted(text), isUrl(text) == 1) << std::hex << c << " at " << place;
            if (place < 10) {
                text.erase(place + 1, 1);
                ASSERT_EQ(isAccepted(text), isUrl(text) == 1) << std::hex << c << " for " << place;
            }
        }
    }
}

TEST(UrlAgainstValidator, AgreesOnRandomTexts)
{
    const std::wstring pieces[] = {L"http",   L"s",      L"ftp", L"file", L"://", L":",
                                   L"/",      L"a",      L"Z9",  L".",    L"?q=", L"!",
                                   L" ",      L"%",      L"#",   L"\n",   L"é",   L"\U0001F600",
                                   L"\xFEFF", L"\xD800", L"~"};
    std::mt19937 random(1);
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
    std::uniform_int_distribution<int> count(0, 6);
    int accepted = 0;
    for (int i = 0; i < 20000; ++i) {
        std::wstring text = i % 2 == 0 ? L"http://" : L"";
        for (int n = count(random); n > 0; --n)
            text += pieces[piece(random)];
        ASSERT_EQ(isAccepted(text), isUrl(text) == 1)
            << QString::fromStdWString(text).toStdString();
        accepted += isUrl(text);
    }
    EXPECT_GT(accepted, 1000);
}

TEST(UrlAgainstValidator, AgreesOnCodesThatAreNoCharacters)
{
    for (const unsigned int code : {0xD800U, 0xDFFFU, 0xFFFEU, 0xFFFFU, 0x110061U, 0x10061U,
                                    0x80000061U, 0xFFFE0000U, 0x61000000U}) {
        const auto c = static_cast<wchar_t>(code);
        for (const std::wstring& text :
             {c + std::wstring(L"http://ab"), L"http://a" + std::wstring(1, c),
              L"http://a" + std::wstring(1, c) + L"b"})
            EXPECT_EQ(isAccepted(text), isUrl(text) == 1) << std::hex << code;
    }
}

TEST(UrlAgainstValidator, AgreesOnVeryLongTexts)
{
    for (const wchar_t* end : {L"a", L".", L" ", L"\n", L"é"}) {
        const std::wstring text = L"http://" + std::wstring(1000000, L'.') + end;
        EXPECT_EQ(isAccepted(text), isUrl(text) == 1);
    }
    EXPECT_EQ(1, isUrl(L"http://" + std::wstring(1000000, L'.') + L"a"));
}

} // namespace
