#include "window/ShownText.h"

#include "tests/pages/ShownToolTip.h"

#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace {

const QString longWord = QString(100, QLatin1Char('a')) + QString(100, QLatin1Char('z'));
const QString shortened =
    QString(30, QLatin1Char('a')) + QChar(u'\u2026') + QString(17, QLatin1Char('z'));

TEST(LongWords, LoseTheirMiddle)
{
    EXPECT_EQ(withoutLongWords(longWord), shortened);
    const QString sentence = QStringLiteral("Put one before it: ");
    EXPECT_EQ(withoutLongWords(sentence + longWord), sentence + shortened);
}

TEST(LongWords, StayWholeUpToTheLimit)
{
    const QString most(48, QLatin1Char('m'));
    EXPECT_EQ(withoutLongWords(most), most);
    EXPECT_EQ(withoutLongWords(most + QLatin1Char('m')).size(), most.size());
}

TEST(LongWords, AreNotWhereALineMayBreak)
{
    for (const QString& text :
         {QStringLiteral("a word ").repeated(40), QStringLiteral("/folder").repeated(40),
          QString::fromUtf8("\xE6\xB1\x89\xE5\xAD\x97").repeated(80), QString()})
        EXPECT_EQ(withoutLongWords(text), text);
}

struct Caption
{
    const char* text;
    const char* spoken;
};

class MnemonicTextTest : public testing::TestWithParam<Caption>
{
};

TEST_P(MnemonicTextTest, IsWhatIsReadOut)
{
    EXPECT_EQ(withoutMnemonic(QString::fromUtf8(GetParam().text)).toStdString(), GetParam().spoken);
}

INSTANTIATE_TEST_SUITE_P(Captions, MnemonicTextTest,
                         testing::Values(Caption{"&Section:", "Section"},
                                         Caption{"Thro&ugh:", "Through"},
                                         Caption{"Search", "Search"}, Caption{"节(&S)：", "节"},
                                         Caption{"键 (&K):", "键"},
                                         Caption{"查找(&S)...", "查找..."},
                                         Caption{"Ratio 1:2", "Ratio 1:2"}));

TEST(PlainToolTip, ShowsMarkupAsItStands)
{
    for (const char* text : {"<b>bold</b>", "a < b & c > d", "plain", "<br/>", ""})
        EXPECT_EQ(shownToolTip(plainToolTip(text)).toStdString(), text);
}

TEST(PlainToolTip, LeavesPlainTextAlone)
{
    EXPECT_EQ(plainToolTip("a < b & c").toStdString(), "a < b & c");
}

TEST(TextOfAnEdit, KeepsNoBreakSpaces)
{
    QPlainTextEdit edit;
    const QString text = QStringLiteral("a\u00a0b");
    edit.setPlainText(text);
    EXPECT_EQ(textOf(edit), text);
}

TEST(TextOfAnEdit, EndsLinesWithALineFeed)
{
    QPlainTextEdit edit;
    edit.setPlainText(QStringLiteral("one\ntwo"));
    edit.moveCursor(QTextCursor::End);
    edit.insertPlainText(QString(QChar::LineSeparator) + QStringLiteral("three\n"));
    EXPECT_EQ(textOf(edit).toStdString(), "one\ntwo\nthree\n");
}

} // namespace
