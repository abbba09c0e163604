#include "platform/PlatformCursorManagerImp.h"

#include "tests/platform/graphics/Handles.h"
#include "tests/support/CanaryRecord.h"

#include <QApplication>
#include <QCursor>
#include <QWidget>

#include <cstring>
#include <memory>

namespace {

class Cursors : public testing::Test
{
protected:
    ~Cursors() override { takeAllOff(); }

    // Empties Qt's stack of override cursors and returns the number of its levels.
    static int takeAllOff()
    {
        int levels = 0;
        for (; QGuiApplication::overrideCursor(); ++levels)
            QGuiApplication::restoreOverrideCursor();
        return levels;
    }

    static Qt::CursorShape shape() { return QGuiApplication::overrideCursor()->shape(); }

    PlatformCursorManagerImp manager;
    QCursor a{Qt::CrossCursor};
    QCursor b{Qt::WaitCursor};
};

TEST_F(Cursors, AreNullInTheNormalState)
{
    EXPECT_EQ(nullptr, manager.GetCursor());
    EXPECT_EQ(nullptr, manager.SetCursor(nullptr));
    EXPECT_EQ(0, takeAllOff());
}

TEST_F(Cursors, AreSetAsACopy)
{
    auto cursor = std::make_unique<QCursor>(Qt::SizeAllCursor);
    EXPECT_EQ(nullptr, manager.SetCursor(cursor.get()));
    EXPECT_NE(cursor.get(), manager.GetCursor());
    cursor.reset();
    EXPECT_EQ(Qt::SizeAllCursor, static_cast<QCursor*>(manager.GetCursor())->shape());
}

TEST_F(Cursors, AreAnsweredAsQtsOwn)
{
    manager.SetCursor(&a);
    EXPECT_EQ(QGuiApplication::overrideCursor(), manager.GetCursor());
    QGuiApplication::setOverrideCursor(b);
    EXPECT_EQ(QGuiApplication::overrideCursor(), manager.GetCursor());
}

TEST_F(Cursors, AddALevelWithEachChange)
{
    for (QCursor* cursor : {&a, &b, &a})
        manager.SetCursor(cursor);
    EXPECT_EQ(Qt::CrossCursor, shape());
    EXPECT_NE(&a, manager.GetCursor());
    EXPECT_EQ(3, takeAllOff());
}

TEST_F(Cursors, AddALevelForTheSamePointerAgain)
{
    manager.SetCursor(&a);
    manager.SetCursor(&a);
    EXPECT_EQ(2, takeAllOff());
}

TEST_F(Cursors, AddALevelForAnEqualCursorAtAnotherAddress)
{
    manager.SetCursor(&a);
    QCursor equal(*static_cast<QCursor*>(manager.GetCursor()));
    manager.SetCursor(&equal);
    EXPECT_EQ(2, takeAllOff());
}

TEST_F(Cursors, ReturnWhatWasCurrentBefore)
{
    EXPECT_EQ(nullptr, manager.SetCursor(&a));
    const HCURSOR current = manager.GetCursor();
    EXPECT_EQ(current, manager.SetCursor(&b)); // compared only: the push may have moved it
}

TEST_F(Cursors, ChangeNothingForWhatIsCurrent)
{
    manager.SetCursor(&a);
    manager.SetCursor(&b);
    const HCURSOR current = manager.GetCursor();
    EXPECT_EQ(current, manager.SetCursor(current));
    EXPECT_EQ(current, manager.GetCursor());
    EXPECT_EQ(2, takeAllOff());
}

TEST_F(Cursors, ChangeNothingForNull)
{
    manager.SetCursor(&b);
    const HCURSOR current = manager.GetCursor();
    EXPECT_EQ(current, manager.SetCursor(nullptr));
    EXPECT_EQ(Qt::WaitCursor, shape());
    EXPECT_EQ(1, takeAllOff());
}

TEST_F(Cursors, AreNotLoaded)
{
    EXPECT_EQ(nullptr, manager.LoadCursorW(nullptr, nullptr));
    EXPECT_EQ(nullptr, manager.LoadCursorW(&manager, L"name"));
    EXPECT_EQ(nullptr, manager.LoadCursorW(
                           nullptr, static_cast<const wchar_t*>(toHandle(32512)))); // IDC_ARROW
}

TEST_F(Cursors, HaveTheGlobalPosition)
{
    for (const QPoint& position : {QPoint(0, 0), QPoint(3, 700), QPoint(799, 1)}) {
        QCursor::setPos(position);
        const POINT expected{position.x(), position.y()};
        CanaryRecord<POINT> point;
        EXPECT_EQ(1, manager.GetCursorPos(point.get()));
        point.expect(expected);
    }
}

TEST_F(Cursors, HaveNoPositionForNull)
{
    EXPECT_EQ(0, manager.GetCursorPos(nullptr));
}

struct MappingRow
{
    POINT screen;
    POINT client;
};

TEST_F(Cursors, ArePointsMappedToAWindowAndToItsChild)
{
    QWidget window;
    QWidget child(&window);
    window.setGeometry(100, 50, 300, 200);
    child.setGeometry(10, 20, 100, 100);
    window.show();
    ASSERT_EQ(QPoint(100, 50), window.mapToGlobal({0, 0}));
    constexpr MappingRow rows[] = {{{100, 50}, {0, 0}},
                                   {{0, 0}, {-100, -50}},
                                   {{399, 249}, {299, 199}},
                                   {{-7, 900}, {-107, 850}}};
    for (const MappingRow& row : rows) {
        POINT guarded[] = {{1, 1}, row.screen, row.screen, {2, 2}};
        EXPECT_EQ(1, manager.ScreenToClient(&window, &guarded[1]));
        EXPECT_EQ(1, manager.ScreenToClient(&child, &guarded[2]));
        const POINT expected[] = {
            {1, 1}, row.client, {row.client.x - 10, row.client.y - 20}, {2, 2}};
        EXPECT_EQ(0, std::memcmp(expected, guarded, sizeof guarded));
    }
}

TEST_F(Cursors, ArePointsLeftAloneWithoutAWindow)
{
    POINT point{12, 34};
    EXPECT_EQ(0, manager.ScreenToClient(nullptr, &point));
    EXPECT_EQ(12, point.x);
    EXPECT_EQ(34, point.y);
}

TEST_F(Cursors, ArePointsNotMappedForNull)
{
    QWidget window;
    EXPECT_EQ(0, manager.ScreenToClient(&window, nullptr));
    EXPECT_EQ(0, manager.ScreenToClient(nullptr, nullptr));
}

} // namespace
