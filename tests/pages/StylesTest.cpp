#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/Contrast.h"
#include "tests/support/TestInStyle.h"

#include "pages/displays/MonitorMap.h"
#include "tests/support/WaitFor.h"
#include "window/PathLabel.h"

#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// What is told by colour alone, looked at in every style.
class Styles : public TestInStyle
{
protected:
    static int differingPixels(const QImage& one, const QImage& other)
    {
        EXPECT_EQ(one.size(), other.size());
        int differing = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x)
                differing += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
        return differing;
    }

    // The focus is seen, as a frame: nothing else of the widget changes.
    static void expectAFrameAround(QWidget& widget)
    {
        widget.clearFocus();
        const QImage without = widget.grab().toImage();
        widget.setFocus(Qt::OtherFocusReason);
        ASSERT_TRUE(widget.hasFocus());
        const QImage with = widget.grab().toImage();
        EXPECT_GT(differingPixels(with, without), widget.width() / 2);
        const QRgb window = QApplication::palette().color(QPalette::Window).rgb();
        EXPECT_GE(contrast(with.pixel(with.width() / 2, 0), window), 2.5);
        const QRect inside = with.rect().adjusted(4, 4, -4, -4);
        EXPECT_EQ(differingPixels(with.copy(inside), without.copy(inside)), 0);
    }
};

TEST_P(Styles, TheFocusedMapOfTheMonitorsCanStillBeRead)
{
    QWidget window;
    window.resize(500, 300);
    MonitorMap map(&window);
    map.setGeometry(10, 10, 480, 280);
    int handle = 0;
    map.setMonitors({{&handle, QRect(0, 0, 1920, 1080), QRect(0, 0, 1920, 1050), 1}});
    map.setPointer({900, 700});
    map.setPoint({300, 300});
    window.show();
    ASSERT_TRUE(waitForActive(&window));
    expectAFrameAround(map);
}

TEST_P(Styles, AFocusedPathCanBeTold)
{
    QWidget window;
    PathLabel label(QStringLiteral("/opt/quayside/lib/library.so"), PathLabel::WholePath, &window);
    label.resize(label.sizeHint().grownBy({6, 6, 6, 6}));
    window.show();
    ASSERT_TRUE(waitForActive(&window));
    label.clearFocus();
    const QImage without = label.grab().toImage();
    label.setFocus(Qt::OtherFocusReason);
    EXPECT_GT(differingPixels(label.grab().toImage(), without), label.width() / 2);
}

// The text of a row of the profile's lines, seen against its ground.
double contrastOfLine(const QTableView& table, int row)
{
    const int column = table.model()->columnCount() - 1;
    QRect cell = table.visualRect(table.model()->index(row, column));
    cell.setWidth(120);
    return contrastIn(table.viewport()->grab(cell).toImage());
}

TEST_P(Styles, LinesThatAreDroppedAreFainterThanThoseThatAreRead)
{
    const ProfileFixture file;
    file.write("[Net]\nHosts=Hosts\n\nHosts\n");
    const WindowProbe probe("profiles");
    probe.page().window()->resize(1000, 900); // all lines can be seen, whatever a style needs
    probe.type("file", file.path());
    QTest::keyClick(&probe.control<QWidget>("file"), Qt::Key_Return);
    ASSERT_TRUE(probe.settle());
    auto& lines = probe.control<QTableView>("lines");
    ASSERT_TRUE(waitFor([&lines] { return lines.model()->rowCount() == 4; }));
    lines.clearSelection();
    lines.setCurrentIndex({});
    const double kept = contrastOfLine(lines, 1);
    const double dropped = contrastOfLine(lines, 3);
    EXPECT_GT(kept, dropped * 1.2);
    EXPECT_GE(dropped, 4.5);
}

double contrastOf(QLineEdit& edit)
{
    return contrastIn(edit.grab(edit.rect().adjusted(3, 3, -3, -3)).toImage());
}

TEST_P(Styles, APlaceholderIsFainterThanWhatIsTyped)
{
    const WindowProbe probe("input");
    QLineEdit* edit = nullptr;
    for (QLineEdit* each : probe.page().findChildren<QLineEdit*>())
        edit = each->placeholderText().isEmpty() ? edit : each;
    ASSERT_TRUE(edit && !edit->hasFocus());
    const double placeholder = contrastOf(*edit);
    edit->setText(edit->placeholderText());
    EXPECT_GT(contrastOf(*edit), placeholder * 1.2);
    EXPECT_GE(placeholder, 3.0);
}

INSTANTIATE_TEST_SUITE_P(, Styles, testing::ValuesIn(stylesInUse), nameOfStyle);

} // namespace
