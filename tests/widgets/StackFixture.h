#pragma once

#include "tests/widgets/PatternPage.h"
#include "widgets/QAnimationStackedWidget.h"

#include <gtest/gtest.h>

class QVariantAnimation;

/// A stack that tells which object last called one of its slots.
class ProbedStack : public QAnimationStackedWidget
{
public:
    using QAnimationStackedWidget::QAnimationStackedWidget;
    using QObject::sender;
};

/// One turn of the event loop.
void turn();

/// Slides to the next page, in whatever time the stack takes for it, and returns its animation. The
/// stack must have a page.
QVariantAnimation* slideToTheEnd(ProbedStack& stack);

/// The stack's animation, learnt from a slide of no duration; leaves the stack on its first page,
/// idle, with slides of 600 ms. The stack must have a page.
QVariantAnimation* animationOf(ProbedStack& stack);

/// A stack of 200 x 120 with three pages of patterns, on the first, shown.
class StackFixture : public testing::Test
{
protected:
    StackFixture();

    PatternPage& page(int index) const;

    /// What the stack shows while a slide from page `leaving` to page `arriving` is at `offset`,
    /// by the rule that the two pages abut there; in the stack's own colour where there is none.
    std::function<QRgb(int, int)> slideFrame(int leaving, int arriving, bool fromLeft,
                                             int offset) const;

    /// What a painting step leaves in a transparent picture of the stack's size.
    QImage pictureOfStep(const std::function<void(QPainter&)>& step) const;

    static constexpr QRgb background = qRgb(250, 3, 251);

    ProbedStack stack;
};
