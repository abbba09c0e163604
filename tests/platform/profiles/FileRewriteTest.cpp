#include "platform/profiles/FileRewrite.h"

#include "tests/support/FullDisk.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class FileRewriteTest : public testing::Test
{
protected:
    static constexpr int page = 4096;

    void start(const QByteArray& former)
    {
        EXPECT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        EXPECT_EQ(former.size(), file.write(former));
    }

    QByteArray content() const
    {
        QFile other(file.fileName());
        return other.open(QIODevice::ReadOnly) ? other.readAll() : QByteArray();
    }

    // What there would be if the program ended before the last step.
    QByteArray contentBeforeTheEnd(const QByteArray& text)
    {
        FileRewrite rewrite(file, text.size());
        EXPECT_TRUE(rewrite.makeRoom());
        rewrite.add(text);
        return content();
    }

    // How many bytes are written in all; negative where the system does not tell.
    static qint64 writtenBytes()
    {
        QFile counts(QStringLiteral("/proc/self/io"));
        if (!counts.open(QIODevice::ReadOnly))
            return -1;
        const QList<QByteArray> lines = counts.readAll().split('\n');
        return lines.value(1).startsWith("wchar: ") ? lines[1].mid(7).toLongLong() : -1;
    }

    qint64 bytesWrittenFor(const QByteArray& text)
    {
        FileRewrite rewrite(file, text.size());
        const qint64 before = writtenBytes();
        rewrite.add(text);
        return before < 0 ? before : writtenBytes() - before;
    }

    QTemporaryDir folder;
    QFile file{folder.filePath("file")};
};

TEST_F(FileRewriteTest, MakesRoomByBlankLines)
{
    start("[S]\nk=v");
    FileRewrite rewrite(file, 10);
    EXPECT_TRUE(rewrite.makeRoom());
    EXPECT_EQ("[S]\nk=v\n\n\n", content());
}

TEST_F(FileRewriteTest, MakesRoomOfManyPages)
{
    start("x");
    FileRewrite rewrite(file, 3 * page);
    EXPECT_TRUE(rewrite.makeRoom());
    EXPECT_EQ("x" + QByteArray(3 * page - 1, '\n'), content());
}

TEST_F(FileRewriteTest, NeedsNoRoomForAShorterText)
{
    start("longer");
    FileRewrite rewrite(file, 3);
    EXPECT_TRUE(rewrite.makeRoom());
    EXPECT_EQ("longer", content());
}

TEST_F(FileRewriteTest, LeavesTheFileWhereThereIsNoRoom)
{
    start("[S]\nk=v\n");
    const FullDisk disk;
    FileRewrite rewrite(file, 20);
    EXPECT_FALSE(rewrite.makeRoom());
    EXPECT_EQ("[S]\nk=v\n", content());
}

TEST_F(FileRewriteTest, GivesAnEmptyFileWhatItTakes)
{
    start(QByteArray());
    const FullDisk disk;
    FileRewrite rewrite(file, 8);
    EXPECT_TRUE(rewrite.makeRoom());
    rewrite.add("[S]\nk=v\n");
    rewrite.finish();
    EXPECT_EQ("[S]\n", content());
}

TEST_F(FileRewriteTest, HasOnlyBlankLinesBehindAShorterTextBeforeItIsCut)
{
    start("[S]\nk=a long value\n");
    EXPECT_EQ("[S]\nk=v\n" + QByteArray(11, '\n'), contentBeforeTheEnd("[S]\nk=v\n"));
}

TEST_F(FileRewriteTest, CutsALongerText)
{
    start("[S]\nk=a long value\n");
    FileRewrite rewrite(file, 8);
    rewrite.add("[S]\nk=v\n");
    rewrite.finish();
    EXPECT_EQ("[S]\nk=v\n", content());
}

TEST_F(FileRewriteTest, CutsAMuchLongerText)
{
    start(QByteArray(100 * page, 'x'));
    FileRewrite rewrite(file, 2);
    rewrite.add("y\n");
    rewrite.finish();
    EXPECT_EQ("y\n", content());
}

TEST_F(FileRewriteTest, TakesATextInPieces)
{
    start("the former text");
    FileRewrite rewrite(file, 9);
    rewrite.add("first\n");
    EXPECT_EQ("first\nmer text", content().replace(6, 1, QByteArray()));
    rewrite.add("2nd");
    EXPECT_EQ("first\n2nd" + QByteArray(6, '\n'), content());
    rewrite.finish();
    EXPECT_EQ("first\n2nd", content());
}

TEST_F(FileRewriteTest, WritesNoPagesThatStay)
{
    QByteArray text(5 * page + 100, 'x');
    start(text);
    const std::pair<int, int> rows[] = {
        {0, page}, {3 * page + 7, page}, {5 * page, 100}, {5 * page + 99, 100}};
    for (const auto& [place, bytes] : rows) {
        text[place] = 'y';
        const qint64 written = bytesWrittenFor(text);
        if (written < 0)
            GTEST_SKIP() << "the system does not count what is written";
        EXPECT_EQ(bytes, written) << place;
        EXPECT_EQ(text, content());
    }
}

// A page of the same bytes still gets the file a new time stamp.
TEST_F(FileRewriteTest, WritesAPageOfATextThatStays)
{
    const QByteArray text(3 * page, 'x');
    start(text);
    const qint64 written = bytesWrittenFor(text);
    if (written < 0)
        GTEST_SKIP() << "the system does not count what is written";
    EXPECT_EQ(page, written);
}

TEST_F(FileRewriteTest, WritesAllPagesFromAShiftOn)
{
    start("abc" + QByteArray(2 * page, 'x') + "def" + QByteArray(2 * page, 'y'));
    const QByteArray text = "abc" + QByteArray(2 * page, 'x') + "ghij" + QByteArray(2 * page, 'y');
    EXPECT_EQ(text, contentBeforeTheEnd(text));
}

} // namespace
