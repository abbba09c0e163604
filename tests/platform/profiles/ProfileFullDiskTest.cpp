#include "tests/platform/profiles/ProfileManagerTest.h"
#include "tests/support/ForkedCheck.h"
#include "tests/support/SmallDisk.h"

#include <sys/resource.h>

namespace {

class ProfileFullDisk : public ProfileManagerTest
{
protected:
    static constexpr int diskSize = 64 * 1024;

    // Entries of 21 bytes each, behind a header of 12 bytes.
    static QByteArray profile(int entries)
    {
        QByteArray text = "[Section 1]\n";
        for (int i = 0; i < entries; ++i)
            text += "key" + QByteArray::number(100000 + i) + "=some value\n";
        return text;
    }

    QByteArray filling() const { return folder.path().toUtf8(); }

    // On a disk that is full but for the profile.
    int onFullDisk(const QByteArray& text, const std::function<bool()>& check)
    {
        return ForkedCheck::statusOf([&] {
            if (!SmallDisk::mount(filling(), diskSize))
                return ForkedCheck::unavailable;
            write(text);
            SmallDisk::fill(filling());
            return check() ? ForkedCheck::passed : ForkedCheck::differed;
        });
    }

    // Where no file may become longer than this.
    static int withLimit(rlim_t bytes, const std::function<bool()>& check)
    {
        return ForkedCheck::statusOf([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{bytes, bytes};
            return setrlimit(RLIMIT_FSIZE, &limit) == 0 && check() ? ForkedCheck::passed
                                                                   : ForkedCheck::differed;
        });
    }
};

// 389 entries fill two pages but for a few bytes.
TEST_F(ProfileFullDisk, KeepsANarrowProfileThatWouldGrow)
{
    const QByteArray text = profile(389);
    const int status = onFullDisk(text, [&] {
        return writeNarrow("Section 1", "another key", "another value") == 1 && content() == text &&
               writeNarrow("A", "key", "value") == 1 && content() == text;
    });
    if (status == ForkedCheck::unavailable)
        GTEST_SKIP() << "no disk of the test's own";
    EXPECT_EQ(ForkedCheck::passed, status);
}

TEST_F(ProfileFullDisk, TakesANarrowProfileThatDoesNotGrow)
{
    const QByteArray text = profile(389);
    const int status = onFullDisk(text, [&] {
        return writeNarrow("Section 1", "key100000", "same value") == 1 &&
               content() == QByteArray(text).replace("100000=some", "100000=same") &&
               writeNarrow("Section 1", "key100000", "") == 1 && content().size() == 8171;
    });
    if (status == ForkedCheck::unavailable)
        GTEST_SKIP() << "no disk of the test's own";
    EXPECT_EQ(ForkedCheck::passed, status);
}

TEST_F(ProfileFullDisk, TakesANarrowProfileAgainWhenThereIsRoom)
{
    const int status = onFullDisk(profile(389), [&] {
        writeNarrow("Section 1", "another key", "v");
        return QFile::remove(folder.filePath("filling")) &&
               writeNarrow("Section 1", "another key", "w") == 1 &&
               readNarrow("Section 1", "another key") == "w" && content().size() == 8195;
    });
    if (status == ForkedCheck::unavailable)
        GTEST_SKIP() << "no disk of the test's own";
    EXPECT_EQ(ForkedCheck::passed, status);
}

TEST_F(ProfileFullDisk, KeepsAWideProfileThatWouldGrow)
{
    const QByteArray text = profile(389);
    const int status = onFullDisk(text, [&] {
        return writeWide(L"Section 1", L"another key", L"another value") == 1 && content() == text;
    });
    if (status == ForkedCheck::unavailable)
        GTEST_SKIP() << "no disk of the test's own";
    EXPECT_EQ(ForkedCheck::passed, status);
}

TEST_F(ProfileFullDisk, KeepsANarrowProfileAtTheLimitOfSizes)
{
    const QByteArray text = profile(389);
    write(text);
    EXPECT_EQ(ForkedCheck::passed,
              withLimit(8181, [&] { return writeNarrow("Section 1", "key", "value") == 1; }));
    EXPECT_EQ(text, content());
}

TEST_F(ProfileFullDisk, KeepsANarrowProfileThatIsWrittenInPieces)
{
    const QByteArray text = profile(500000);
    write(text);
    EXPECT_EQ(ForkedCheck::passed, withLimit(static_cast<rlim_t>(text.size()), [&] {
                  return writeNarrow("Section 1", "key", "value") == 1;
              }));
    EXPECT_TRUE(text == content());
}

TEST_F(ProfileFullDisk, GrowsAndShrinksInPieces)
{
    const QByteArray text = profile(500000);
    write(text);
    EXPECT_EQ(1, writeNarrow("Section 1", "key100000", "some longer value"));
    EXPECT_TRUE(QByteArray(text).replace(22, 10, "some longer value") == content());
    EXPECT_EQ(1, writeNarrow("Section 1", "key100000", "short"));
    EXPECT_TRUE(QByteArray(text).replace(22, 10, "short") == content());
}

} // namespace
