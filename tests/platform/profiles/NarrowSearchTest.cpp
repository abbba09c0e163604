#include "platform/profiles/NarrowSearch.h"
#include "platform/profiles/NarrowOutput.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace {

const QString longText(100000, 'x');
const QString pieceText(16400, 'x'); // ends a little behind a piece of the file

struct Row
{
    const char* name;
    QString text;
    QString expected; // null where there is no value
    QString header = QStringLiteral("[S]");
    QString key = QStringLiteral("k");
};

class NarrowSearchTest : public testing::TestWithParam<Row>
{
};

QString found(const Row& row, int pieceSize)
{
    NarrowSearch search(row.header, row.key);
    for (int at = 0; at < row.text.size(); at += pieceSize)
        search.add(row.text.mid(at, pieceSize));
    return search.finish();
}

TEST_P(NarrowSearchTest, FindsTheSameHoweverTheTextIsCut)
{
    for (const int pieceSize : {7, 100, 16384, 20000, 1000000})
        EXPECT_EQ(GetParam().expected, found(GetParam(), pieceSize)) << pieceSize;
}

const Row rows[] = {
    {"Plain", "[S]\nk=v\n", "v"},
    {"WithoutALineEnd", "[S]\nk=v", "v"},
    {"NothingBeforeAHeader", "k=v\n[T]\nk=w\n", {}},
    {"SectionThatBeginsAgain", "[S]\nk=v\n[S]\nj=w\n", {}},
    {"LastOfSeveral", "[S]\nk=v\nk=w\n[T]\nk=x\n", "w"},
    {"LongValue", "[S]\nk=" + longText + "\nj=w\n", longText},
    {"SecondEqualsSignFarBehind", "[S]\nk=v\nk=" + longText + "=\n", "v"},
    {"BehindALongLine", "[S]\n" + longText + "\nk=v\n", "v"},
    {"BehindALongLineOfTheKeysLetters", "[S]\nk" + longText + "=w\nk=v\n", "v"},
    {"BehindALongValueOfAnotherKey", "[S]\nj=" + longText + "\nk=v\n", "v"},
    {"BehindManySpaces", "[S]\n" + QString(100000, ' ') + "k" + QString(100000, ' ') + "= v\n",
     "v"},
    {"BehindALongLineBeforeAHeader", longText + "\n[S]\nk=v\n", "v"},
    {"LongHeaderThatLeavesTheSection", "[S]\nk=v\n[S]" + longText + "\nk=w\n", "v"},
    {"LongHeaderThatIsLookedFor", "[" + longText + "]\nk=v\n", "v", "[" + longText + "]"},
    {"LongHeaderCutNearItsEnd", "#\n[" + pieceText + "]\nk=v\n", "v", "[" + pieceText + "]"},
    {"HeaderOneLetterLonger", "[" + longText + "]x\nk=v\n", {}, "[" + longText + "]"},
    {"LongKey", "[S]\n" + longText + "=v\n", "v", "[S]", longText},
};

INSTANTIATE_TEST_SUITE_P(Texts, NarrowSearchTest, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

QByteArray written(const QString& first, const QString& second)
{
    QByteArray bytes;
    NarrowOutput output([&bytes](const QByteArray& piece) { bytes += piece; });
    output.append(first);
    output.append(second);
    output.finish();
    return bytes;
}

TEST(NarrowOutput, MakesTheSameOfATextInPartsAsOfTheWhole)
{
    const QString pair = QString::fromUcs4(U"\U0001F600");
    for (int size = 16380; size < 16390; ++size) {
        const QString text = QString(size, 'a') + pair + QString(16384 - size % 7, 'b') + pair;
        for (const int cut : {0, 1, size, 16384, 30000})
            EXPECT_EQ(text.toUtf8(), written(text.left(cut), text.mid(cut))) << size << ' ' << cut;
    }
}

TEST(NarrowOutput, WritesWhatIsSmallAtOnceAndWhatIsLargeInPieces)
{
    for (const auto& [size, atLeast, atMost] :
         {std::tuple(1000000, 1, 1), std::tuple(20000000, 4, 6)}) {
        int calls = 0;
        NarrowOutput output([&calls](const QByteArray&) { ++calls; });
        output.append(QString(size, 'a'));
        output.finish();
        EXPECT_LE(atLeast, calls);
        EXPECT_GE(atMost, calls);
    }
}

} // namespace
