#include "window/TableTools.h"

#include "tests/support/MessageGuard.h"
#include "tests/support/WaitFor.h"
#include "window/RecordsModel.h"
#include "window/ViewLook.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QStringListModel>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace {

std::vector<RecordColumn<QString>> columns()
{
    const auto text = [](const QString& record) { return record.left(5); };
    const auto whole = [](const QString& record, int role) {
        return role == TableCopyJob::wholeTextRole ? QVariant(record) : QVariant();
    };
    return {{"Name", text}, {"Whole", text, whole}};
}

// The offscreen platform says so of every menu.
const QString offscreenLimits = QStringLiteral("This plugin does not support");

class TableToolsTest : public testing::Test
{
protected:
    TableToolsTest()
    {
        m_table.setModel(&m_model);
        arrangeTable(m_table);
        m_model.setRecords({"berta", "clara", "anna"});
        m_table.resize(400, 200);
        m_table.show();
        QApplication::setActiveWindow(&m_table);
        EXPECT_TRUE(waitForActive(&m_table));
        m_table.setFocus();
    }

    void clickHeader(int column)
    {
        const QHeaderView& header = *m_table.horizontalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + 20, header.height() / 2});
    }
    QString first() const { return m_model.index(0, 0).data().toString(); }
    testing::AssertionResult firstBecomes(const QString& name) const
    {
        return becomes([this] { return first(); }, name);
    }

    testing::AssertionResult copies(const QString& text)
    {
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(&m_table, Qt::Key_C, Qt::ControlModifier);
        return becomes([] { return QGuiApplication::clipboard()->text(); }, text);
    }

    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static QAction* entry(const QMenu& menu, const QString& text)
    {
        for (QAction* action : menu.actions()) {
            if (action->text() == text)
                return action;
        }
        ADD_FAILURE() << "no entry " << text.toStdString();
        return nullptr;
    }

    RecordsModel<QString> m_model{columns()};
    QTableView m_table;
};

TEST_F(TableToolsTest, OpenInTheOriginalOrder)
{
    EXPECT_EQ(first(), "berta");
    EXPECT_FALSE(m_table.horizontalHeader()->isSortIndicatorShown());
}

TEST_F(TableToolsTest, SortByAColumnBothWaysAndNoMore)
{
    const struct
    {
        const char* first;
        int section;
    } rows[] = {{"anna", 0}, {"clara", 0}, {"berta", -1}, {"anna", 0}};
    for (const auto& row : rows) {
        clickHeader(0);
        EXPECT_TRUE(firstBecomes(row.first));
        EXPECT_EQ(m_table.horizontalHeader()->sortIndicatorSection(), row.section);
        EXPECT_EQ(m_table.horizontalHeader()->isSortIndicatorShown(), row.section >= 0);
    }
    EXPECT_EQ(m_table.horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(TableToolsTest, BeginAnotherColumnUpwards)
{
    clickHeader(0);
    clickHeader(0);
    clickHeader(1);
    EXPECT_TRUE(firstBecomes("anna"));
    EXPECT_EQ(m_table.horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(TableToolsTest, OfferNoSortingWhereTheModelHasNone)
{
    QStringListModel list({"b", "a"});
    QTableView table;
    table.setModel(&list);
    arrangeTable(table);
    EXPECT_FALSE(table.horizontalHeader()->sectionsClickable());
}

TEST_F(TableToolsTest, KeepWhatIsSelected)
{
    m_table.selectRow(0);
    clickHeader(0);
    EXPECT_TRUE(becomes([this] { return m_table.currentIndex().row(); }, 1));
    EXPECT_TRUE(m_table.selectionModel()->isRowSelected(1, {}));
}

TEST_F(TableToolsTest, CopyTheSelectedRowsWithTabsInTheOrderShown)
{
    clickHeader(0);
    EXPECT_TRUE(firstBecomes("anna"));
    m_table.selectAll();
    EXPECT_TRUE(copies("anna\tanna\nberta\tberta\nclara\tclara\n"));
}

TEST_F(TableToolsTest, CopyAllThatACellHas)
{
    m_model.setRecords({"a long name"});
    m_table.selectRow(0);
    EXPECT_TRUE(copies("a lon\ta long name\n"));
}

TEST_F(TableToolsTest, CopyWhatWouldBreakTheTableInQuotationMarks)
{
    m_model.setRecords({"a\tb", "a\nb", "a\"b"});
    m_table.selectAll();
    EXPECT_TRUE(copies("\"a\tb\"\t\"a\tb\"\n\"a\nb\"\t\"a\nb\"\n\"a\"\"b\"\t\"a\"\"b\"\n"));
}

TEST_F(TableToolsTest, CopyNothingWhereNothingIsSelected)
{
    QGuiApplication::clipboard()->setText("older");
    QTest::keyClick(&m_table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "older");
}

TEST_F(TableToolsTest, LeaveCtrlCToAnActionOfThePage)
{
    const ExpectMessage ofPopups(offscreenLimits);
    int asked = 0;
    auto* action = new QAction("Copy data", &m_table);
    m_table.addAction(action);
    action->setShortcut(QKeySequence::Copy);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(action, &QAction::triggered, &m_table, [&asked] { ++asked; });
    m_table.selectRow(0);
    QTest::keyClick(&m_table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(asked, 1);
    QTest::keyClick(&m_table, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_TRUE(entry(*openMenu(), "Copy")->shortcut().isEmpty());
    openMenu()->close();
    m_table.removeAction(action);
    EXPECT_TRUE(copies("berta\tberta\n"));
}

TEST_F(TableToolsTest, OpenTheMenuByShiftF10AtTheCurrentRow)
{
    const ExpectMessage ofPopups(offscreenLimits);
    m_table.selectRow(1);
    QTest::keyClick(&m_table, Qt::Key_F10, Qt::ShiftModifier);
    QMenu* menu = openMenu();
    ASSERT_NE(menu, nullptr);
    const QRect row = m_table.visualRect(m_model.index(1, 0));
    EXPECT_EQ(menu->pos(), m_table.viewport()->mapToGlobal(row.bottomLeft()));
    entry(*menu, "Copy with header")->trigger();
    menu->close();
    EXPECT_TRUE(becomes([] { return QGuiApplication::clipboard()->text(); },
                        "Name\tWhole\nclara\tclara\n"));
}

TEST_F(TableToolsTest, OpenTheMenuByTheMenuKey)
{
    const ExpectMessage ofPopups(offscreenLimits);
    QTest::keyClick(&m_table, Qt::Key_Menu);
    ASSERT_NE(openMenu(), nullptr);
    openMenu()->close();
}

// Some systems send such an event for the menu key.
TEST_F(TableToolsTest, OpenTheMenuForTheMenuKeyAndTheMouse)
{
    const ExpectMessage ofPopups(offscreenLimits);
    for (const auto reason : {QContextMenuEvent::Keyboard, QContextMenuEvent::Mouse}) {
        QContextMenuEvent event(reason, {5, 5}, m_table.viewport()->mapToGlobal({5, 5}));
        QWidget* target = &m_table;
        if (reason == QContextMenuEvent::Mouse)
            target = m_table.viewport();
        QApplication::sendEvent(target, &event);
        ASSERT_NE(openMenu(), nullptr) << reason;
        openMenu()->close();
    }
}

TEST_F(TableToolsTest, PutTheActionsOfThePageFirst)
{
    const ExpectMessage ofPopups(offscreenLimits);
    m_table.addAction(new QAction("Edit", &m_table));
    QTest::keyClick(&m_table, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().first()->text(), "Edit");
    EXPECT_FALSE(entry(*openMenu(), "Copy")->isEnabled()) << "nothing is selected";
    EXPECT_EQ(entry(*openMenu(), "Copy")->shortcut(), QKeySequence(QKeySequence::Copy));
    openMenu()->close();
}

TEST_F(TableToolsTest, SortFromTheMenu)
{
    const ExpectMessage ofPopups(offscreenLimits);
    QTest::keyClick(&m_table, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(openMenu(), nullptr);
    const QMenu& sorting = *entry(*openMenu(), "Sort by")->menu();
    entry(sorting, "Name")->trigger();
    EXPECT_TRUE(firstBecomes("anna"));
    entry(sorting, "Original order")->trigger();
    EXPECT_TRUE(firstBecomes("berta"));
    openMenu()->close();
}

} // namespace
