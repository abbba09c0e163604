#include "platform/profiles/WideSections.h"

#include <gtest/gtest.h>

namespace {

TEST(WideSections, FindAtOnceWhatStandsInTheSectionThatSortsRightBefore)
{
    const WideSections sections({"B/", "A/", "A/B/"});
    EXPECT_TRUE(sections.findAtOnce("A", "A"));
    EXPECT_TRUE(sections.findAtOnce("A/B", "c"));
    EXPECT_TRUE(sections.findAtOnce("B", "c/d"));
    EXPECT_FALSE(sections.findAtOnce("A", "B/c"));
    EXPECT_FALSE(sections.findAtOnce("A", "x"));
}

TEST(WideSections, FindKeysInNoSectionAtOnceUnlessTheyHaveASlash)
{
    EXPECT_TRUE(WideSections().findAtOnce("", "key"));
    EXPECT_FALSE(WideSections().findAtOnce("", "a/b"));
}

TEST(WideSections, FindAllKeysAtOnceWhereNoSectionLiesBelow)
{
    const WideSections sections({"A/", "A/B/", "B/"});
    EXPECT_FALSE(sections.findAllAtOnce("A"));
    EXPECT_TRUE(sections.findAllAtOnce("A/B"));
    EXPECT_TRUE(sections.findAllAtOnce("B"));
}

} // namespace
