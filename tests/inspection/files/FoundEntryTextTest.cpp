#include "inspection/files/FoundEntryText.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace {

FoundEntry file()
{
    const QDateTime written(QDate(2026, 3, 7), QTime(9, 5, 1));
    FoundDetails details;
    details.size = 0x300000005;
    details.lastWrite = {static_cast<DWORD>(written.toSecsSinceEpoch()), 0};
    details.creation = {4, 5};
    return {"file", FILE_ATTRIBUTE_NORMAL, details};
}

TEST(FoundEntryText, TellsSizeAndTimeAsALocaleWritesThem)
{
    EXPECT_EQ(FoundEntryText::size(file()), "12,884,901,893");
    EXPECT_EQ(FoundEntryText::time(file(), &FoundDetails::lastWrite), "2026-03-07 09:05:01");
}

TEST(FoundEntryText, TellsTheFieldsOfTheRecord)
{
    EXPECT_EQ(FoundEntryText::rawSize(file()), "nFileSizeHigh 3, nFileSizeLow 5");
    EXPECT_EQ(FoundEntryText::rawTime(file(), &FoundDetails::creation),
              "dwLowDateTime 4, dwHighDateTime 5");
}

TEST(FoundEntryText, TellsThatAFieldIsUnwritten)
{
    const FoundEntry folder{"folder", FILE_ATTRIBUTE_DIRECTORY, {}};
    const QString dash(QChar(0x2013));
    EXPECT_EQ(FoundEntryText::size(folder), dash);
    EXPECT_EQ(FoundEntryText::time(folder, &FoundDetails::lastAccess), dash);
    for (const QString& raw : {FoundEntryText::rawSize(folder),
                               FoundEntryText::rawTime(folder, &FoundDetails::lastAccess)})
        EXPECT_TRUE(raw.startsWith("The service has not written this field")) << raw.toStdString();
}

} // namespace
