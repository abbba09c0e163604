#include "inspection/input/CursorLevels.h"
#include "inspection/input/CursorShapes.h"
#include "inspection/input/PointerPosition.h"

#include <QCursor>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace {

TEST(CursorLevels, AreTakenBackAtTheEnd)
{
    QGuiApplication::setOverrideCursor(Qt::SizeAllCursor); // somebody else's
    {
        CursorLevels levels;
        levels.add(Qt::WaitCursor);
        levels.add(Qt::CrossCursor);
        EXPECT_EQ(levels.count(), 2);
        EXPECT_EQ(CursorShapes::current(), "Cross");
    }
    EXPECT_EQ(CursorShapes::current(), "Move");
    QGuiApplication::restoreOverrideCursor();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(CursorLevels, AreTakenBackOnce)
{
    QGuiApplication::setOverrideCursor(Qt::SizeAllCursor);
    {
        CursorLevels levels;
        levels.add(Qt::WaitCursor);
        levels.takeBack();
        EXPECT_EQ(levels.count(), 0);
        levels.takeBack();
    }
    EXPECT_EQ(CursorShapes::current(), "Move");
    QGuiApplication::restoreOverrideCursor();
}

TEST(CursorShapes, HaveNamesWhereTheyAreOffered)
{
    for (const Qt::CursorShape shape : CursorShapes::offered)
        EXPECT_FALSE(CursorShapes::name(shape).startsWith("shape")) << shape;
    EXPECT_EQ(CursorShapes::name(Qt::WhatsThisCursor), "shape 15");
}

TEST(CursorShapes, TellThatNoneIsSet)
{
    EXPECT_EQ(CursorShapes::current(), "null: none is set");
}

TEST(PointerPosition, IsThatOfThePointer)
{
    QCursor::setPos(123, 45);
    EXPECT_EQ(pointText(pointerPosition()), "123, 45");
}

} // namespace
