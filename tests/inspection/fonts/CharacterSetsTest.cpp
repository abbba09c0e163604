#include "inspection/fonts/CharacterSets.h"

#include <gtest/gtest.h>

namespace {

TEST(CharacterSetsTest, NameWhatIsKnown)
{
    EXPECT_EQ(CharacterSets::title(RUSSIAN_CHARSET), QStringLiteral("RUSSIAN_CHARSET (204)"));
    EXPECT_EQ(CharacterSets::title(3), QStringLiteral("3"));
}

TEST(CharacterSetsTest, StandForWritingSystems)
{
    EXPECT_EQ(CharacterSets::fromWritingSystem(QFontDatabase::Latin), ANSI_CHARSET);
    EXPECT_EQ(CharacterSets::fromWritingSystem(QFontDatabase::Korean), HANGUL_CHARSET);
    EXPECT_EQ(CharacterSets::fromWritingSystem(QFontDatabase::Tamil), std::nullopt);
    EXPECT_EQ(CharacterSets::fromWritingSystem(QFontDatabase::Any), std::nullopt);
}

} // namespace
