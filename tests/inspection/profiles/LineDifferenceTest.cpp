#include "inspection/profiles/DifferenceRows.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// The second version, made of the first one and the hunks alone.
QByteArray applied(const LineDifference& difference)
{
    QByteArray result;
    int done = 0;
    const auto add = [&result](const ByteLines& lines, int first, int count) {
        for (int line = first; line < first + count; ++line)
            result.append(lines.at(line).data(), static_cast<int>(lines.at(line).size()));
    };
    for (const LineDifference::Hunk& hunk : difference.hunks()) {
        add(difference.before(), done, hunk.before - done);
        add(difference.after(), hunk.after, hunk.added);
        done = hunk.before + hunk.removed;
    }
    add(difference.before(), done, difference.before().count() - done);
    return result;
}

QByteArray numbered(int first, int count)
{
    QByteArray text;
    for (int i = first; i < first + count; ++i)
        text += "key" + QByteArray::number(i) + "=value\n";
    return text;
}

std::string unified(const QByteArray& before, const QByteArray& after)
{
    return unifiedDifference(LineDifference(before, after), "a", "b").toStdString();
}

TEST(LineDifference, FindsNothingBetweenEqualVersions)
{
    for (const char* text : {"", "a", "a\n", "a\nb\na\n"})
        EXPECT_TRUE(LineDifference(text, text).hunks().empty()) << text;
}

TEST(LineDifference, FindsTheOneLineThatHasChanged)
{
    const LineDifference difference("a\nb\nc\n", "a\nB\nc\n");
    ASSERT_EQ(difference.hunks().size(), 1u);
    EXPECT_EQ(difference.hunks()[0].before, 1);
    EXPECT_EQ(difference.removed(), 1);
    EXPECT_EQ(difference.added(), 1);
}

TEST(LineDifference, FindsALineThatHasMovedOnEitherPlaceOnly)
{
    const LineDifference difference("x\na\nb\nc\n", "a\nb\nc\nx\n");
    EXPECT_EQ(difference.removed(), 1);
    EXPECT_EQ(difference.added(), 1);
}

TEST(LineDifference, TellsLineEndsApart)
{
    const LineDifference difference("a\r\nb\n", "a\nb\n");
    EXPECT_EQ(difference.removed(), 1);
}

TEST(LineDifference, TellsTheOpenEndApart)
{
    EXPECT_EQ(LineDifference("a\nb", "a\nb\n").removed(), 1);
}

TEST(LineDifference, KeepsTheLinesBetweenDroppedBlankOnes)
{
    const LineDifference difference("[A]\n\nx=1\n\n\n[B]\n\ny=2\n", "[A]\nx=1\n[B]\ny=2\n");
    EXPECT_EQ(difference.removed(), 4);
    EXPECT_EQ(difference.added(), 0);
}

TEST(LineDifference, FindsLinesThatOccurMoreOftenAfterwards)
{
    const LineDifference difference("b\na\na\nc\n", "d\na\na\na\ne\n");
    EXPECT_EQ(difference.removed(), 2);
    EXPECT_EQ(difference.added(), 3);
}

TEST(LineDifference, AllDiffersWhereNothingIsCommon)
{
    const LineDifference difference(numbered(0, 60000), numbered(60000, 60000));
    EXPECT_EQ(difference.removed(), 60000);
    EXPECT_EQ(difference.added(), 60000);
}

TEST(LineDifference, FindsAFewChangesInAManyLines)
{
    QByteArray after = numbered(0, 60000);
    after.replace("key30000=", "other=").replace("key7=", "seven=");
    const LineDifference difference(numbered(0, 60000), after);
    EXPECT_EQ(difference.hunks().size(), 2u);
    EXPECT_EQ(difference.removed(), 2);
}

TEST(LineDifference, CopesWithManyEqualLines)
{
    const LineDifference difference(QByteArray(60000, '\n') + "a\n" + QByteArray(5, '\n'),
                                    QByteArray(40000, '\n') + "b\n" + QByteArray(7, '\n'));
    EXPECT_EQ(applied(difference), difference.after().bytes());
}

TEST(LineDifference, LeadsFromTheFirstVersionToTheSecond)
{
    std::mt19937 random(5);
    const auto upTo = [&random](int most) { return static_cast<int>(random() % unsigned(most)); };
    for (int round = 0; round < 3000; ++round) {
        const int kinds = 1 + upTo(30);
        QByteArray versions[2];
        for (QByteArray& version : versions) {
            for (int lines = upTo(40); lines > 0; --lines)
                version += QByteArray::number(upTo(kinds)) + (upTo(20) == 0 ? "\r\n" : "\n");
        }
        const LineDifference difference(versions[0], versions[1]);
        ASSERT_EQ(applied(difference), versions[1]) << "round " << round;
    }
}

TEST(LineDifference, IsAsSmallAsItCanBeForFewEdits)
{
    std::mt19937 random(6);
    for (int round = 0; round < 300; ++round) {
        QByteArray after = numbered(0, 50);
        const int line = static_cast<int>(random() % 50u);
        after.replace("key" + QByteArray::number(line) + "=", "k=");
        EXPECT_EQ(LineDifference(numbered(0, 50), after).removed(), 1);
    }
}

TEST(UnifiedDifference, HasThreeLinesAroundAChange)
{
    EXPECT_EQ(unified("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nfive\n6\n7\n8\n9\n"),
              "--- a\n+++ b\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(UnifiedDifference, JoinsChangesThatLieNearEachOther)
{
    EXPECT_EQ(unified("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n"),
              "--- a\n+++ b\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
}

TEST(UnifiedDifference, SplitsChangesThatLieApart)
{
    EXPECT_EQ(
        unified("a\n1\n2\n3\n4\n5\n6\n7\nb\n", "1\n2\n3\n4\n5\n6\n7\nB\n"),
        "--- a\n+++ b\n@@ -1,4 +1,3 @@\n-a\n 1\n 2\n 3\n@@ -6,4 +5,4 @@\n 5\n 6\n 7\n-b\n+B\n");
}

TEST(UnifiedDifference, TellsOfAnOpenEnd)
{
    EXPECT_EQ(unified("a\nb", "a\nb\n"),
              "--- a\n+++ b\n@@ -1,2 +1,2 @@\n a\n-b\n\\ No newline at end of file\n+b\n");
}

TEST(UnifiedDifference, BeginsAtZeroForAnEmptyFile)
{
    EXPECT_EQ(unified("", "a\n"), "--- a\n+++ b\n@@ -0,0 +1 @@\n+a\n");
    EXPECT_EQ(unified("a\nb\n", ""), "--- a\n+++ b\n@@ -1,2 +0,0 @@\n-a\n-b\n");
}

TEST(UnifiedDifference, IsEmptyBetweenEqualVersions)
{
    EXPECT_EQ(unified("a\n", "a\n"), "");
}

TEST(UnifiedDifference, MakesUtf16Readable)
{
    const QByteArray before("\xff\xfe[\0S\0]\0\n\0a\0=\0001\0\n\0", 18);
    EXPECT_EQ(unified(before, "[S]\n"),
              "--- a\n+++ b\n@@ -1,2 +1 @@\n-\\xFF\\xFE[S]\n-a=1\n+[S]\n");
}

} // namespace
