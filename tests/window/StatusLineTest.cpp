#include "window/StatusLine.h"

#include "app/HostInformation.h"
#include "inspection/registry/RawStore.h"
#include "window/PathLabel.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace {

QStringList captions(const StatusLine& line)
{
    QStringList texts;
    for (const QLabel* label : line.findChildren<QLabel*>()) {
        if (label->text().endsWith(':'))
            texts.append(label->text());
    }
    return texts;
}

TEST(StatusLineTest, NamesWhatItTells)
{
    const StatusLine line;
    EXPECT_EQ(captions(line), QStringList({"Host library:", "Settings store:", "Language:"}));
}

TEST(StatusLineTest, ShowsThePathsOfLibraryAndStore)
{
    const StatusLine line;
    const auto paths = line.findChildren<PathLabel*>();
    ASSERT_EQ(paths.size(), 2);
    EXPECT_EQ(paths[0]->toolTip(), HostInformation::libraryPath());
    EXPECT_EQ(paths[1]->toolTip(), RawStore::fileName());
}

TEST(StatusLineTest, ReadsOutTheLanguageWithItsCaption)
{
    const StatusLine line;
    const auto labels = line.findChildren<QLabel*>();
    EXPECT_EQ(labels.last()->accessibleName(), "Language: " + HostInformation::language());
    EXPECT_EQ(labels.last()->text(), HostInformation::language());
}

} // namespace
