#include "window/PathLabel.h"

#include "tests/pages/ShownToolTip.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QString path = QStringLiteral("/opt/quayside/lib/library.so");

TEST(PathLabelTest, ShowsAPathThatLooksLikeMarkupInItsToolTip)
{
    const PathLabel label(QStringLiteral("/<b>bold"));
    EXPECT_EQ(shownToolTip(label.toolTip()).toStdString(), "/<b>bold");
}

TEST(PathLabelTest, ShowsTheHomeFolderAsATilde)
{
    EXPECT_EQ(PathLabel(QDir::homePath() + "/a.ini").text().toStdString(), "~/a.ini");
    EXPECT_EQ(PathLabel(QDir::homePath() + "2/a.ini").text(), QDir::homePath() + "2/a.ini");
    EXPECT_EQ(PathLabel(path).text(), path);
}

TEST(PathLabelTest, ShowsTheFileNameAloneOnRequest)
{
    const PathLabel label(path, PathLabel::FileName);
    EXPECT_EQ(label.text().toStdString(), "library.so");
    EXPECT_EQ(label.toolTip(), path);
}

TEST(PathLabelTest, IsReadOutWithItsCaption)
{
    PathLabel label(path);
    EXPECT_EQ(label.accessibleName(), path);
    label.setCaption("Host library:");
    EXPECT_EQ(label.accessibleName(), "Host library: " + path);
}

TEST(PathLabelTest, CopiesTheWholePath)
{
    const PathLabel label(QDir::homePath() + "/a.ini");
    ASSERT_EQ(label.actions().size(), 1);
    label.actions().first()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), QDir::homePath() + "/a.ini");
}

TEST(PathLabelTest, LeavesOutTheMiddleWhereItIsNarrow)
{
    const QFontMetrics metrics = PathLabel(path).fontMetrics();
    PathLabel label(path);
    EXPECT_LT(label.minimumSizeHint().width(), label.sizeHint().width());
    EXPECT_GE(label.sizeHint().width(), metrics.horizontalAdvance(path));
    label.resize(label.minimumSizeHint());
    PathLabel other(QStringLiteral("/opt/another folder in the middle/library.so"));
    other.resize(label.size());
    const QImage image = label.grab().toImage();
    EXPECT_NE(image, PathLabel(QString()).grab(label.rect()).toImage()) << "nothing is painted";
    EXPECT_EQ(image, other.grab().toImage()) << "start and end are what both have in common";
}

} // namespace
