#include "tests/platform/profiles/ProfileManagerTest.h"
#include "tests/support/CanaryBuffer.h"

namespace {

struct Line
{
    const char* name;
    QByteArray content;
    const char* section;
    const char* key;
    const char* value;
};

void PrintTo(const Line& row, std::ostream* out)
{
    *out << row.name;
}

class ProfileNarrowLine : public ProfileManagerTest, public testing::WithParamInterface<Line>
{
};

TEST_P(ProfileNarrowLine, IsReadOrDropped)
{
    write(GetParam().content);
    EXPECT_EQ(GetParam().value, readNarrow(GetParam().section, GetParam().key));
}

const Line lines[] = {
    {"plain", "[S]\nk=v\n", "S", "k", "v"},
    {"no line feed at the end", "[S]\nk=v", "S", "k", "v"},
    {"spaces around both", "[S]\n \t k  = \t v w \n", "S", "k", "v w"},
    {"Unicode spaces around both", "[S]\n\xE3\x80\x80k\xC2\xA0=\xE2\x80\x83v\xC2\x85\n", "S", "k",
     "v"},
    {"empty lines", "\n\n[S]\n\n\nk=v\n\n", "S", "k", "v"},
    {"empty value", "[S]\nk=\n", "S", "k", ""},
    {"empty key", "[S]\n=v\n", "S", "", "v"},
    {"key of spaces", "[S]\n  =v\n", "S", "", "v"},
    {"two equals signs", "[S]\na=b=c\n", "S", "a", ""},
    {"two equals signs together", "[S]\na==\n", "S", "a", ""},
    {"no equals sign", "[S]\na\n", "S", "a", ""},
    {"a dropped line keeps the former value", "[S]\nk=1\nk=2=3\n", "S", "k", "1"},
    {"semicolon without equals sign", "[S]\n; comment\nk=v\n", "S", "k", "v"},
    {"no comment syntax", "[S]\n;a=b\n#c=d\n", "S", ";a", "b"},
    {"no comment syntax with a hash", "[S]\n;a=b\n#c=d\n", "S", "#c", "d"},
    {"before the first header", "k=v\n[S]\nj=w\n", "S", "k", ""},
    {"last of equal keys", "[S]\nk=1\nj=2\nk=3\n", "S", "k", "3"},
    {"repeated header discards", "[S]\nk=v\n[S]\nj=w\n", "S", "k", ""},
    {"repeated header keeps what follows", "[S]\nk=v\n[S]\nj=w\n", "S", "j", "w"},
    {"repeated header elsewhere", "[S]\nk=v\n[T]\nk=t\n[S]\n", "T", "k", "t"},
    {"header discarded at the end", "[S]\nk=v\n[T]\nk=t\n[S]\n", "S", "k", ""},
    {"header untrimmed", "[S] \nk=v\n", "S", "k", ""},
    {"header after a space is none", "[R]\n [S]\nk=v\n", "R", "k", "v"},
    {"header without a closing bracket", "[S\nk=v\n", "S", "k", ""},
    {"header with an equals sign", "[a=b]\nk=v\n", "a=b", "k", "v"},
    {"header with inner spaces", "[ S ]\nk=v\n", " S ", "k", "v"},
    {"empty header", "[]\nk=v\n", "", "k", "v"},
    {"case of the section", "[s]\nk=v\n", "S", "k", ""},
    {"case of the key", "[S]\nK=v\n", "S", "k", ""},
    {"name not trimmed", "[S]\nk=v\n", "S", " k", ""},
    {"carriage returns", "[S]\r\nk\r=\rv\r\r\n", "S", "k", "v"},
    {"carriage return inside a value", "[S]\nk=a\rb\n", "S", "k", "ab"},
    {"carriage return alone ends no line", "[S]\rk=v\n", "S", "k", ""},
    {"byte order mark", "\xEF\xBB\xBF[S]\nk=v\n", "S", "k", "v"},
    {"byte order mark elsewhere", "[S]\n\xEF\xBB\xBFk=v\n", "S", "k", ""},
    {"UTF-16 with its mark", QByteArray("\xFF\xFE[\0S\0]\0\n\0k\0=\0v\0", 16), "S", "k", "v"},
    {"UTF-8", "[\xE4\xB8\xAD]\n\xC3\xA9=\xF0\x9F\x98\x80\n", "\xE4\xB8\xAD", "\xC3\xA9",
     "\xF0\x9F\x98\x80"},
    {"invalid UTF-8", "[S]\nk=a\xFFz\n", "S", "k", "a\xEF\xBF\xBDz"},
    {"empty file", "", "S", "k", ""},
};
INSTANTIATE_TEST_SUITE_P(Rows, ProfileNarrowLine, testing::ValuesIn(lines));

class ProfileNarrow : public ProfileManagerTest
{
protected:
    unsigned int read(CanaryBuffer<char>& buffer, const char* key = "k",
                      const char* fallback = "fallback")
    {
        return manager.GetPrivateProfileStringA("S", key, fallback, buffer.data(), buffer.size(),
                                                narrow.constData());
    }
};

TEST_F(ProfileNarrow, AMissingValueIsEmptyWhateverTheFallback)
{
    for (const char* key : {"k", "other"}) {
        CanaryBuffer<char> buffer(4);
        EXPECT_EQ(0U, read(buffer, key));
        buffer.expect(std::string(3, '\0'));
        write("[S]\nk=\n");
    }
}

TEST_F(ProfileNarrow, AFileThatCannotBeReadReadsAsEmpty)
{
    const QByteArray unreadable[] = {"", folder.path().toUtf8(), "/dev/null/x", narrow};
    for (const QByteArray& file : unreadable) {
        char buffer[] = "xxx";
        EXPECT_EQ(0U, manager.GetPrivateProfileStringA("S", "k", "-", buffer, 4, file));
        EXPECT_STREQ("", buffer);
    }
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ProfileNarrow, AShorterValueIsPaddedUpToTheLastByteOfTheBuffer)
{
    write("[S]\nk=abc\n");
    CanaryBuffer<char> buffer(6);
    EXPECT_EQ(3U, read(buffer));
    buffer.expect(std::string("abc\0\0", 5));
}

TEST_F(ProfileNarrow, AValueThatFillsTheBufferGetsNoTerminator)
{
    write("[S]\nk=abcd\n");
    for (const std::size_t size : {5U, 4U, 1U}) {
        CanaryBuffer<char> buffer(size);
        EXPECT_EQ(size + CanaryBuffer<char>::margin, read(buffer));
        buffer.expect(std::string("abcd").substr(0, size - 1));
    }
}

TEST_F(ProfileNarrow, ACutMayFallInsideACharacter)
{
    write("[S]\nk=a\xE4\xB8\xAD\n");
    CanaryBuffer<char> buffer(4);
    buffer.data()[3] = '\0';
    EXPECT_EQ(3U, read(buffer));
    EXPECT_STREQ("a\xE4\xB8", buffer.data());
}

TEST_F(ProfileNarrow, ANullArgumentOrSizeZeroGivesZeroAndWritesNothing)
{
    write("[S]\nk=abc\n");
    CanaryBuffer<char> buffer(4);
    const char* file = narrow.constData();
    EXPECT_EQ(0U, manager.GetPrivateProfileStringA(nullptr, "k", "-", buffer.data(), 4, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringA("S", nullptr, "-", buffer.data(), 4, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringA("S", "k", "-", nullptr, 4, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringA("S", "k", "-", buffer.data(), 0, file));
    EXPECT_EQ(0U, manager.GetPrivateProfileStringA("S", "k", "-", buffer.data(), 4, nullptr));
    buffer.expectUntouched();
}

TEST_F(ProfileNarrow, WritingSortsAndKeepsOnlyEntries)
{
    write("; comment\nlost=1\n[T]\nb = 2\n\na=1=1\nno entry\n[S]\nk=v\n[Empty]\n#x=y\n");
    EXPECT_EQ(1, writeNarrow("T", "a", "3"));
    EXPECT_EQ("[Empty]\n#x=y\n[S]\nk=v\n[T]\na=3\nb=2\n", content());
}

TEST_F(ProfileNarrow, SectionsAndKeysAreOrderedByTheirUtf16Units)
{
    // U+1F600 is made of units below U+FF01; "]" sorts after capitals and before small letters.
    write("[b]\n[a]\n[aa]\n[aB]\n[\xEF\xBC\x81]\n[\xF0\x9F\x98\x80]\nb=\nB=\n\xEF\xBC\x81=\n"
          "\xF0\x9F\x98\x80=\n");
    EXPECT_EQ(1, writeNarrow("b", "k", "v"));
    EXPECT_EQ("[aB]\n[a]\n[aa]\n[b]\nk=v\n[\xF0\x9F\x98\x80]\nB=\nb=\n\xF0\x9F\x98\x80=\n"
              "\xEF\xBC\x81=\n[\xEF\xBC\x81]\n",
              content());
}

TEST_F(ProfileNarrow, WritingReplacesTheLastOfEqualKeys)
{
    write("[S]\nk=1\nj=2\nk=3\nj=4\n");
    EXPECT_EQ(1, writeNarrow("S", "k", "5"));
    EXPECT_EQ("[S]\nj=4\nk=5\n", content());
}

TEST_F(ProfileNarrow, WritingTakesNamesAndValueAsGiven)
{
    EXPECT_EQ(1, writeNarrow(" S ", " k ", "  a=b  "));
    EXPECT_EQ("[ S ]\n k =  a=b  \n", content());
    EXPECT_EQ("", readNarrow(" S ", " k ")); // more than one equals sign
}

TEST_F(ProfileNarrow, WritingNullWritesAnEmptyValue)
{
    write("[S]\nk=v\n");
    EXPECT_EQ(1, writeNarrow("S", "k", nullptr));
    EXPECT_EQ("[S]\nk=\n", content());
}

TEST_F(ProfileNarrow, WritingWithoutASectionKeyOrFileFailsAndWritesNothing)
{
    EXPECT_EQ(0, writeNarrow(nullptr, "k", "v"));
    EXPECT_EQ(0, writeNarrow("S", nullptr, "v"));
    EXPECT_EQ(0, manager.WritePrivateProfileStringA("S", "k", "v", nullptr));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ProfileNarrow, WritingWritesNoByteOrderMarkAndNoCarriageReturn)
{
    write("\xEF\xBB\xBF[S]\r\nk=v\r\n");
    EXPECT_EQ(1, writeNarrow("S", "j", "\xE4\xB8\xAD"));
    EXPECT_EQ("[S]\nj=\xE4\xB8\xAD\nk=v\n", content());
}

TEST_F(ProfileNarrow, AShorterTextLeavesNothingBehind)
{
    write("[S]\nk=" + QByteArray(100000, 'x') + "\n");
    EXPECT_EQ(1, writeNarrow("S", "k", "v"));
    EXPECT_EQ("[S]\nk=v\n", content());
}

} // namespace
