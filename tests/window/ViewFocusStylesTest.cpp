#include "window/ViewFocus.h"

#include "tests/support/Contrast.h"
#include "tests/support/TestInStyle.h"
#include "tests/support/WaitFor.h"
#include "window/FocusFrame.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include <gtest/gtest.h>

#include <memory>

namespace {

// A table and a tree, one after the other, above a field that can take the keyboard from them.
class ViewFocusStyles : public TestInStyle
{
protected:
    void SetUp() override
    {
        TestInStyle::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        for (QAbstractItemView* view :
             std::initializer_list<QAbstractItemView*>{&m_table, &m_tree}) {
            view->setModel(&m_model);
            view->setGeometry(10, 10, 280, 180);
            view->hide();
            new ViewFocus(view);
        }
        m_table.setSelectionBehavior(QAbstractItemView::SelectRows);
        m_field.setGeometry(10, 200, 280, 30);
        m_window.resize(300, 250);
        m_window.show();
        ASSERT_TRUE(waitForActive(&m_window));
    }

    template <typename Check>
    void forEachView(const Check& check)
    {
        for (QAbstractItemView* view :
             std::initializer_list<QAbstractItemView*>{&m_table, &m_tree}) {
            SCOPED_TRACE(view->metaObject()->className());
            view->show();
            check(*view);
            view->hide();
        }
    }

    QImage with(QAbstractItemView& view)
    {
        view.setFocus(Qt::OtherFocusReason);
        EXPECT_TRUE(view.hasFocus());
        return view.grab().toImage();
    }
    QImage without(QAbstractItemView& view)
    {
        m_field.setFocus();
        EXPECT_FALSE(view.hasFocus());
        return view.grab().toImage();
    }

    // The row that is selected, with its text.
    static QRect row(const QAbstractItemView& view)
    {
        const QRect cell = view.visualRect(view.currentIndex());
        return QRect(view.viewport()->mapTo(&view, cell.topLeft()), cell.size())
            .adjusted(4, 1, -4, -1);
    }
    // The colour of most of it.
    static QColor ground(const QImage& picture)
    {
        QHash<QRgb, int> counts;
        QRgb most = picture.pixel(0, 0);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (++counts[picture.pixel(x, y)] > counts[most])
                    most = picture.pixel(x, y);
            }
        }
        return QColor(most);
    }
    static int saturation(const QImage& picture) { return ground(picture).hsvSaturation(); }

    QStandardItemModel m_model{0, 1};
    QWidget m_window;
    QTableView m_table{&m_window};
    QTreeView m_tree{&m_window};
    QLineEdit m_field{&m_window};
};

TEST_P(ViewFocusStyles, FrameAnEmptyViewThatHasTheKeyboard)
{
    forEachView([this](QAbstractItemView& view) {
        const QImage framed = with(view);
        const QImage plain = without(view);
        const QRgb window = QApplication::palette().color(QPalette::Window).rgb();
        EXPECT_GE(contrast(focusColor().rgb(), window), 2.5);
        for (const QPoint& edge :
             {QPoint(140, 0), QPoint(140, 179), QPoint(0, 90), QPoint(279, 90)}) {
            EXPECT_EQ(framed.pixelColor(edge), focusColor()) << edge.x() << ", " << edge.y();
            EXPECT_NE(plain.pixelColor(edge), focusColor()) << edge.x() << ", " << edge.y();
        }
        const QRect inside = framed.rect().adjusted(4, 4, -4, -4);
        EXPECT_EQ(framed.copy(inside), plain.copy(inside));
    });
}

TEST_P(ViewFocusStyles, ShowASelectionInColourOnlyWithTheKeyboard)
{
    m_model.appendRow(new QStandardItem("a row"));
    forEachView([this](QAbstractItemView& view) {
        view.setCurrentIndex(m_model.index(0, 0));
        const QImage active = with(view).copy(row(view));
        const QImage inactive = without(view).copy(row(view));
        EXPECT_GT(saturation(active), 60);
        EXPECT_EQ(saturation(inactive), 0);
        const QRgb base = QApplication::palette().base().color().rgb();
        EXPECT_GE(contrast(ground(inactive).rgb(), base),
                  contrast(ground(active).rgb(), base) * 0.65)
            << "hardly seen any more";
    });
}

TEST_P(ViewFocusStyles, LetTheTextOfASelectionBeReadAsWellAsBefore)
{
    m_model.appendRow(new QStandardItem("WWWWWW"));
    forEachView([this](QAbstractItemView& view) {
        view.setCurrentIndex(m_model.index(0, 0));
        const double active = contrastIn(with(view).copy(row(view)));
        const double inactive = contrastIn(without(view).copy(row(view)));
        EXPECT_GE(inactive, 3.0);
        EXPECT_GE(inactive, active * 0.9);
    });
}

INSTANTIATE_TEST_SUITE_P(, ViewFocusStyles, testing::ValuesIn(stylesInUse), nameOfStyle);

} // namespace
