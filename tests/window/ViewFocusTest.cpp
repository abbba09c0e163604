#include "window/ViewFocus.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

// A view above a field that can take the keyboard from it.
template <typename View>
class ViewFocusTest : public testing::Test
{
protected:
    ViewFocusTest()
    {
        m_view.setModel(&m_model);
        new ViewFocus(&m_view);
        m_window.resize(300, 250);
        m_view.setGeometry(10, 10, 280, 180);
        m_field.setGeometry(10, 200, 280, 30);
        m_window.show();
        EXPECT_TRUE(waitForActive(&m_window));
    }

    QImage picture() { return m_window.grab(m_view.geometry()).toImage(); }
    static int pixelsOf(const QImage& picture, const QColor& color)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) == color ? 1 : 0;
        }
        return count;
    }
    static QColor highlight() { return QApplication::palette().color(QPalette::Highlight); }
    void addSelectedRow()
    {
        m_model.appendRow(new QStandardItem("row"));
        m_view.setCurrentIndex(m_model.index(0, 0));
    }

    QStandardItemModel m_model{0, 1};
    QWidget m_window;
    View m_view{&m_window};
    QLineEdit m_field{&m_window};
};

using Views = testing::Types<QTableView, QTreeView>;
TYPED_TEST_SUITE(ViewFocusTest, Views);

TYPED_TEST(ViewFocusTest, FramesAnEmptyViewThatHasTheKeyboard)
{
    this->m_field.setFocus();
    EXPECT_EQ(this->pixelsOf(this->picture(), this->highlight()), 0);
    this->m_view.setFocus(Qt::OtherFocusReason);
    const QImage picture = this->picture();
    EXPECT_GE(this->pixelsOf(picture, this->highlight()), 2 * (280 + 180) - 4);
    const QRect inside = picture.rect().adjusted(3, 3, -3, -3);
    EXPECT_EQ(this->pixelsOf(picture.copy(inside), this->highlight()), 0);
    this->m_field.setFocus();
    EXPECT_EQ(this->pixelsOf(this->picture(), this->highlight()), 0);
}

TYPED_TEST(ViewFocusTest, TheFrameFollowsTheSize)
{
    this->m_view.setFocus();
    this->m_view.resize(200, 100);
    EXPECT_GE(this->pixelsOf(this->picture(), this->highlight()), 2 * (200 + 100) - 4);
}

TYPED_TEST(ViewFocusTest, ASelectionIsGreyWhileTheKeyboardIsElsewhere)
{
    this->addSelectedRow();
    this->m_view.setFocus();
    const QRect inside = this->m_view.rect().adjusted(3, 3, -3, -3);
    EXPECT_GT(this->pixelsOf(this->picture().copy(inside), this->highlight()), 100);
    this->m_field.setFocus();
    const QImage without = this->picture().copy(inside);
    EXPECT_EQ(this->pixelsOf(without, this->highlight()), 0);
    const int grey = qGray(this->highlight().rgb());
    EXPECT_GT(this->pixelsOf(without, QColor(grey, grey, grey)), 100);
}

TYPED_TEST(ViewFocusTest, FollowsAnotherPalette)
{
    const QPalette former = QApplication::palette();
    this->addSelectedRow();
    this->m_view.setFocus();
    QPalette palette = former;
    palette.setColor(QPalette::Highlight, QColor(180, 20, 90));
    QApplication::setPalette(palette);
    EXPECT_GT(this->pixelsOf(this->picture(), QColor(180, 20, 90)), 200);
    QApplication::setPalette(former);
    EXPECT_EQ(this->pixelsOf(this->picture(), QColor(180, 20, 90)), 0);
}

} // namespace
