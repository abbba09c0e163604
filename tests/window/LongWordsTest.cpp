#include "window/ShownText.h"

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

} // namespace
