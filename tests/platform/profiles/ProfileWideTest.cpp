#include "tests/platform/profiles/ProfileManagerTest.h"
#include "tests/support/CanaryBuffer.h"

namespace {

class ProfileWide : public ProfileManagerTest
{
protected:
    // Reads into a buffer between canaries; the result is what the call returns.
    unsigned int read(const wchar_t* key, CanaryBuffer<wchar_t>& buffer,
                      const wchar_t* fallback = nullptr)
    {
        return manager.GetPrivateProfileStringW(L"S", key, fallback, buffer.data(), buffer.size(),
                                                wide.c_str());
    }
};

TEST_F(ProfileWide, ReadsAValue)
{
    write("[S]\nk=value\n[Other]\nk=other\n");
    EXPECT_EQ(L"value", readWide(L"S", L"k"));
    EXPECT_EQ(L"other", readWide(L"Other", L"k"));
}

TEST_F(ProfileWide, NamesAreCaseSensitive)
{
    write("[S]\nk=value\n");
    EXPECT_EQ(L"-", readWide(L"s", L"k", L"-"));
    EXPECT_EQ(L"-", readWide(L"S", L"K", L"-"));
}

TEST_F(ProfileWide, AMissingValueGivesTheFallbackAndNullAnEmptyOne)
{
    EXPECT_EQ(L"fallback", readWide(L"S", L"k", L"fallback"));
    EXPECT_EQ(L"", readWide(L"S", L"k", nullptr));
    write("[S]\nother=value\nempty=\n");
    EXPECT_EQ(L"fallback", readWide(L"S", L"k", L"fallback"));
    EXPECT_EQ(L"", readWide(L"S", L"empty", L"fallback"));
}

TEST_F(ProfileWide, AFileThatCannotBeReadReadsAsEmpty)
{
    const std::wstring unreadable[] = {L"", folder.path().toStdWString(), L"/dev/null/x"};
    for (const std::wstring& file : unreadable) {
        wchar_t buffer[8] = {};
        EXPECT_EQ(1U, manager.GetPrivateProfileStringW(L"S", L"k", L"-", buffer, 8, file.c_str()));
        EXPECT_STREQ(L"-", buffer);
    }
}

TEST_F(ProfileWide, AShorterValueIsPaddedUpToTheLastCharacterOfTheBuffer)
{
    write("[S]\nk=abc\n");
    CanaryBuffer<wchar_t> buffer(6);
    EXPECT_EQ(3U, read(L"k", buffer));
    buffer.expect(std::wstring(L"abc\0\0", 5));
}

TEST_F(ProfileWide, AValueThatFillsTheBufferGetsNoTerminator)
{
    write("[S]\nk=abcd\n");
    for (const std::size_t size : {5U, 4U, 2U}) {
        CanaryBuffer<wchar_t> buffer(size);
        const std::size_t kept = size - 1;
        // The length is that of the text up to the caller's own NUL, here behind the canaries.
        const std::size_t behind = 1 + CanaryBuffer<wchar_t>::margin;
        EXPECT_EQ(kept + behind, read(L"k", buffer));
        buffer.expect(std::wstring(L"abcd").substr(0, kept));
    }
}

TEST_F(ProfileWide, AValueThatFillsTheBufferEndsWhereTheCallersNulStands)
{
    write("[S]\nk=abcdef\n");
    CanaryBuffer<wchar_t> buffer(4);
    buffer.data()[3] = L'\0';
    EXPECT_EQ(3U, read(L"k", buffer));
    EXPECT_STREQ(L"abc", buffer.data());
}

// The clearing counts bytes; what follows them is only written by the copy.
TEST_F(ProfileWide, SizeOneClearsTheFirstByteAlone)
{
    write("[S]\nk=abc\n");
    CanaryBuffer<wchar_t> buffer(1);
    EXPECT_EQ(1 + CanaryBuffer<wchar_t>::margin, read(L"k", buffer));
    buffer.expect(std::wstring(1, static_cast<wchar_t>(0x5A5A5A00)));
    CanaryBuffer<wchar_t> ascii(1);
    ascii.data()[0] = L'A';
    EXPECT_EQ(0U, read(L"k", ascii));
    ascii.expect(std::wstring(1, L'\0'));
}

TEST_F(ProfileWide, SizesCountCharactersBeyondTheBmpOnce)
{
    write("[S]\nk=\xE4\xB8\xAD\xF0\x9F\x98\x80z\n");
    CanaryBuffer<wchar_t> buffer(4);
    buffer.data()[3] = L'\0';
    EXPECT_EQ(3U, read(L"k", buffer));
    EXPECT_STREQ(L"\u4E2D\U0001F600z", buffer.data());
}

TEST_F(ProfileWide, ANullArgumentOrSizeZeroGivesZeroAndWritesNothing)
{
    write("[S]\nk=abc\n");
    CanaryBuffer<wchar_t> buffer(4);
    const wchar_t* file = wide.c_str();
    EXPECT_EQ(0U, manager.GetPrivateProfileStringW(nullptr, L"k", L"-", buffer.data(), 4, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringW(L"S", nullptr, L"-", buffer.data(), 4, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringW(L"S", L"k", L"-", nullptr, 4, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringW(L"S", L"k", L"-", buffer.data(), 0, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringW(L"S", L"k", L"-", buffer.data(), 4, nullptr));
    buffer.expectUntouched();
}

struct Number
{
    const char* text;
    unsigned int value;
};

void PrintTo(const Number& row, std::ostream* out)
{
    *out << row.text;
}

class ProfileNumber : public ProfileWide, public testing::WithParamInterface<Number>
{
};

TEST_P(ProfileNumber, IsReadFromItsText)
{
    write(QByteArray("[S]\nk=") + GetParam().text + "\n");
    EXPECT_EQ(GetParam().value, manager.GetPrivateProfileIntW(L"S", L"k", 5, wide.c_str()));
}

const Number numbers[] = {{"42", 42},
                          {"-1", 0xFFFFFFFF},
                          {"2147483647", 2147483647},
                          {"4294967295", 4294967295},
                          {"abc", 0},
                          {"", 0},
                          {"12x", 0},
                          {"0x10", 0},
                          {"1.5", 0},
                          {"1, 2", 0},
                          {"99999999999999999999", 0}};
INSTANTIATE_TEST_SUITE_P(Rows, ProfileNumber, testing::ValuesIn(numbers));

TEST_F(ProfileWide, AMissingNumberOrANullArgumentGivesTheFallback)
{
    write("[S]\nk=7\n");
    EXPECT_EQ(5U, manager.GetPrivateProfileIntW(L"S", L"other", 5, wide.c_str()));
    EXPECT_EQ(0xFFFFFFFB, manager.GetPrivateProfileIntW(L"S", L"other", -5, wide.c_str()));
    EXPECT_EQ(5U, manager.GetPrivateProfileIntW(nullptr, L"k", 5, wide.c_str()));
    EXPECT_EQ(5U, manager.GetPrivateProfileIntW(L"S", nullptr, 5, wide.c_str()));
    EXPECT_EQ(5U, manager.GetPrivateProfileIntW(L"S", L"k", 5, nullptr));
}

TEST_F(ProfileWide, ASectionIsListedWithATerminatorForEachPairAndOneMore)
{
    write("[S]\nb=2\na=1\n[T]\nc=3\n");
    CanaryBuffer<wchar_t> buffer(16);
    EXPECT_EQ(9U, manager.GetPrivateProfileSectionW(L"S", buffer.data(), 16, wide.c_str()));
    buffer.expect(std::wstring(L"a=1\0b=2\0\0", 9));
}

TEST_F(ProfileWide, ASectionIsListedWhateverTheSize)
{
    write("[S]\nk=\xF0\x9F\x98\x80\xE4\xB8\xAD\n");
    CanaryBuffer<wchar_t> buffer(16);
    EXPECT_EQ(6U, manager.GetPrivateProfileSectionW(L"S", buffer.data(), 0, wide.c_str()));
    buffer.expect(std::wstring(L"k=\U0001F600\u4E2D\0\0", 6));
}

TEST_F(ProfileWide, ASectionIsListedWithTheKeysThatHoldASeparator)
{
    const std::pair<QByteArray, std::wstring> rows[] = {
        {"[S]\nb=2\nsub\\a=1\n[T]\nc=3\n", std::wstring(L"b=2\0sub/a=1\0\0", 13)},
        {"[S]\nsub\\deep\\a=1\n", std::wstring(L"sub/deep/a=1\0\0", 14)},
        {"[S]\nsub\\a=1\nsub=2\n", std::wstring(L"sub=2\0sub/a=1\0\0", 15)},
    };
    for (const auto& [file, listing] : rows) {
        write(file);
        CanaryBuffer<wchar_t> buffer(32);
        EXPECT_EQ(listing.size(),
                  manager.GetPrivateProfileSectionW(L"S", buffer.data(), 32, wide.c_str()));
        buffer.expect(listing);
    }
}

TEST_F(ProfileWide, ASectionIsListedWithTheSeparatorsThatWereWritten)
{
    EXPECT_EQ(1, writeWide(L"S", L"sub/a", L"1"));
    EXPECT_EQ(1, writeWide(L"S/sub", L"b", L"2"));
    CanaryBuffer<wchar_t> buffer(32);
    EXPECT_EQ(17U, manager.GetPrivateProfileSectionW(L"S", buffer.data(), 32, wide.c_str()));
    buffer.expect(std::wstring(L"sub/a=1\0sub/b=2\0\0", 17));
}

TEST_F(ProfileWide, ASectionIsListedWithAKeyThatHasNoName)
{
    write("[S]\n=1\n");
    CanaryBuffer<wchar_t> buffer(16);
    EXPECT_EQ(4U, manager.GetPrivateProfileSectionW(L"S", buffer.data(), 16, wide.c_str()));
    buffer.expect(std::wstring(L"=1\0\0", 4));
}

// It has no header, so that any other section would count as a part of it.
TEST_F(ProfileWide, TheSectionWithoutANameIsListedWithoutTheOthers)
{
    EXPECT_EQ(1, writeWide(L"", L"top", L"1"));
    EXPECT_EQ(1, writeWide(L"S", L"k", L"2"));
    CanaryBuffer<wchar_t> buffer(16);
    EXPECT_EQ(7U, manager.GetPrivateProfileSectionW(L"", buffer.data(), 16, wide.c_str()));
    buffer.expect(std::wstring(L"top=1\0\0", 7));
}

TEST_F(ProfileWide, AnEmptyOrAbsentSectionIsListedAsOneTerminator)
{
    write("[Empty]\n");
    for (const wchar_t* section : {L"Empty", L"Absent"}) {
        CanaryBuffer<wchar_t> buffer(4);
        EXPECT_EQ(1U, manager.GetPrivateProfileSectionW(section, buffer.data(), 4, wide.c_str()));
        buffer.expect(std::wstring(1, L'\0'));
    }
}

TEST_F(ProfileWide, ListingANullSectionBufferOrFileGivesZeroAndWritesNothing)
{
    write("[S]\nk=1\n");
    CanaryBuffer<wchar_t> buffer(8);
    EXPECT_EQ(0U, manager.GetPrivateProfileSectionW(nullptr, buffer.data(), 8, wide.c_str()));
    EXPECT_EQ(0U, manager.GetPrivateProfileSectionW(L"S", nullptr, 8, wide.c_str()));
    EXPECT_EQ(0U, manager.GetPrivateProfileSectionW(L"S", buffer.data(), 8, nullptr));
    buffer.expectUntouched();
}

TEST_F(ProfileWide, WhatIsWrittenReachesTheFileAndKeepsTheRest)
{
    write("[S]\nk=1\n");
    EXPECT_EQ(1, writeWide(L"S", L"j", L"\u4E2D"));
    EXPECT_EQ("[S]\nj=\xE4\xB8\xAD\nk=1\n", content().replace("\r", ""));
    EXPECT_EQ(L"\u4E2D", readWide(L"S", L"j"));
}

TEST_F(ProfileWide, WritingNullWritesAnEmptyValue)
{
    write("[S]\nk=1\n");
    EXPECT_EQ(1, writeWide(L"S", L"k", nullptr));
    EXPECT_EQ("[S]\nk=\n", content());
    EXPECT_EQ(L"", readWide(L"S", L"k", L"fallback"));
}

TEST_F(ProfileWide, WritingWithoutASectionKeyOrFileFailsAndWritesNothing)
{
    EXPECT_EQ(0, writeWide(nullptr, L"k", L"v"));
    EXPECT_EQ(0, writeWide(L"S", nullptr, L"v"));
    EXPECT_EQ(0, manager.WritePrivateProfileStringW(L"S", L"k", L"v", nullptr));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ProfileWide, WritingWhereNothingCanBeWrittenSucceedsAllTheSame)
{
    EXPECT_EQ(1, manager.WritePrivateProfileStringW(L"S", L"k", L"v", L"/dev/null/x"));
}

TEST_F(ProfileWide, AnUnquotedCommaMakesAListAndASemicolonEndsTheValue)
{
    write("[S]\nlist=a, b\ncut=a;b\nquoted=\"a, b;c\"\n");
    EXPECT_EQ(L"", readWide(L"S", L"list", L"fallback"));
    EXPECT_EQ(L"a", readWide(L"S", L"cut"));
    EXPECT_EQ(L"a, b;c", readWide(L"S", L"quoted"));
    EXPECT_EQ(1, writeWide(L"S", L"k", L" a,b;c=\"d\"\\"));
    EXPECT_EQ(L" a,b;c=\"d\"\\", readWide(L"S", L"k"));
}

TEST_F(ProfileWide, TheSectionGeneralHasAnotherNameInTheFile)
{
    write("[General]\nk=1\n[%General]\nk=2\n");
    EXPECT_EQ(L"2", readWide(L"General", L"k"));
    EXPECT_EQ("1", readNarrow("General", "k"));
}

// The settings decode what follows an escape by itself, where the mark begins a text.
TEST_F(ProfileWide, AByteOrderMarkBehindAnEscapeIsDroppedOnReading)
{
    EXPECT_EQ(1, writeWide(L"S", L"k", L"a\\\uFEFFb"));
    EXPECT_EQ("[S]\nk=a\\\\\xEF\xBB\xBF"
              "b\n",
              content());
    EXPECT_EQ(L"a\\\uFEFFb", readWide(L"S", L"k"));
    const QString copy = folder.filePath("copy.ini");
    ASSERT_TRUE(QFile::copy(path, copy));
    wchar_t buffer[8] = {};
    EXPECT_EQ(3U, manager.GetPrivateProfileStringW(L"S", L"k", nullptr, buffer, 8,
                                                   copy.toStdWString().c_str()));
    EXPECT_STREQ(L"a\\b", buffer);
}

TEST_F(ProfileWide, CharactersBeyondTheBmpAreDroppedOnWriting)
{
    EXPECT_EQ(1, writeWide(L"S", L"k", L"x\U0001F600y"));
    EXPECT_EQ("[S]\nk=xy\n", content());
}

} // namespace
