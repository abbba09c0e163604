#include "inspection/profiles/FileLines.h"
#include "inspection/profiles/ProfileLoadingJob.h"
#include "tests/inspection/profiles/ProfileFixture.h"

#include <unistd.h>

namespace {

class FileLinesTest : public testing::Test
{
protected:
    ProfileFixture m_file;
};

} // namespace

TEST_F(FileLinesTest, AreThoseOfTheFile)
{
    QByteArray all;
    QList<QByteArray> expected;
    for (int line = 0; line < 20000; ++line) {
        expected << "line " + QByteArray::number(line) + QByteArray(line % 300, 'x') + '\n';
        all += expected.last();
    }
    expected << "the last one";
    m_file.write(all + expected.last());
    FileLines lines(m_file.path());
    while (lines.step())
        ;
    ASSERT_EQ(lines.count(), expected.size());
    for (int line = 0; line < lines.count(); ++line)
        ASSERT_EQ(lines.line(line), expected.at(line)) << line;
    for (int line = lines.count() - 1; line >= 0; line -= 97)
        ASSERT_EQ(lines.line(line), expected.at(line)) << line;
}

TEST_F(FileLinesTest, AreCutWhereTheyAreLong)
{
    m_file.write("a\n" + QByteArray(3000000, 'x') + "\nb\n\n");
    FileLines lines(m_file.path());
    while (lines.step())
        ;
    ASSERT_EQ(lines.count(), 4);
    EXPECT_EQ(lines.line(0), "a\n");
    EXPECT_GE(lines.line(1).size(), FileLines::longestLine);
    EXPECT_EQ(lines.line(1).count('x'), lines.line(1).size());
    EXPECT_EQ(lines.line(2), "b\n");
    EXPECT_EQ(lines.line(3), "\n");
}

TEST_F(FileLinesTest, AreEmptyWhereTheFileHasBecomeShorter)
{
    m_file.write(QByteArray(100000, 'x') + "\na\nb\n");
    FileLines lines(m_file.path());
    while (lines.step())
        ;
    ASSERT_EQ(truncate(qPrintable(m_file.path()), 10), 0);
    EXPECT_EQ(lines.line(2), QByteArray());
    EXPECT_EQ(lines.line(0), QByteArray(10, 'x'));
}

TEST_F(FileLinesTest, AreAllThatIsReadOfAHugeFile)
{
    m_file.write("[S]\nk=v\n");
    ASSERT_EQ(truncate(qPrintable(m_file.path()), off_t{1100} * 1024 * 1024), 0);
    EXPECT_EQ(ProfileDocument::fault(m_file.path()), QString());
    ProfileLoadingJob loading(m_file.path());
    while (loading.step())
        ;
    const ProfileDocument& document = loading.document();
    ASSERT_EQ(document.lines().count(), 3);
    EXPECT_EQ(document.line(1).text, QStringLiteral("k=v"));
    EXPECT_EQ(document.line(1).narrow.state, LineState::Untold);
    EXPECT_EQ(document.line(1).wide.state, LineState::Untold);
    EXPECT_EQ(document.names().count(), 0);
    EXPECT_TRUE(document.restriction().contains(QStringLiteral("cannot write")));
    EXPECT_FALSE(document.restriction().contains(QStringLiteral("wide")));
}

TEST_F(FileLinesTest, TellWhatTheWideFamilyDoesNotRead)
{
    m_file.write("[S]\nk=v\n");
    ASSERT_EQ(truncate(qPrintable(m_file.path()), off_t{2200} * 1024 * 1024), 0);
    ProfileLoadingJob loading(m_file.path());
    while (loading.step())
        ;
    EXPECT_TRUE(loading.document().restriction().contains(QStringLiteral("wide family cannot")));
}
