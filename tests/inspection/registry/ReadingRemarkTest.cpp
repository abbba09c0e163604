#include "inspection/registry/ReadingRemark.h"

#include <QVariant>

#include <gtest/gtest.h>

namespace {

RegistryReading reading(bool readable)
{
    RegistryReading reading;
    reading.readable = readable;
    return reading;
}

TEST(ReadingRemark, IsTheServicesReasonForAnEntryThatItRefuses)
{
    EXPECT_EQ(readingRemark(reading(false), "3$1").toStdString(), "Tag 3 is refused");
    EXPECT_EQ(readingRemark(reading(false), "x$1").toStdString(),
              "Tag \"x\" is refused: it is no number, or too large a one");
}

TEST(ReadingRemark, TellsWhatIsReadOtherThanItStandsThere)
{
    EXPECT_EQ(readingRemark(reading(true), "1$x").toStdString(), "Bad number: \"x\" is read as 0");
    EXPECT_EQ(readingRemark(reading(true), "1$1").toStdString(), "");
}

TEST(ReadingRemark, TellsOfAGoodEntryThatTheServiceDoesNotFind)
{
    EXPECT_EQ(readingRemark(reading(false), "5$x").toStdString(), "Not found under this name");
}

TEST(ReadingRemark, TellsNothingOfAnEntryInPlaceOfWhichTheServiceReadAnother)
{
    EXPECT_EQ(readingRemark(reading(true), QVariant()).toStdString(), "");
    EXPECT_EQ(readingRemark(reading(true), "3$1").toStdString(), "");
}

} // namespace
