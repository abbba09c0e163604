#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/WaitFor.h"
#include "widgets/QAnimationStackedWidget.h"
#include "window/MainWindow.h"
#include "window/Page.h"
#include "window/PageRail.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Way
{
    const char* name;
    const char* from;
    const char* to;
    bool later;
};

class SlideDirection : public testing::TestWithParam<Way>
{
};

// Both ways the offset is measured from the left: there the two pages meet.
TEST_P(SlideDirection, IsLeftToALaterPageAndRightToAnEarlierOne)
{
    setPlatformServices(&g_PlatformServices);
    MainWindow window;
    window.showPage(GetParam().from);
    window.show();
    ASSERT_TRUE(waitForActive(&window));
    ASSERT_TRUE(waitFor([&window] { return window.currentPage() != nullptr; }));
    auto* button = window.findChild<PageRail*>()->findChild<QPushButton*>(GetParam().to);
    button->setFocus();
    QTest::qWait(20);
    auto& stack = *window.findChild<QAnimationStackedWidget*>();
    stack.setDuration(1000000);
    const QImage before = stack.grab().toImage();
    button->click();
    const int offset = stack.width() / 3;
    stack.slotValueChanged(offset);
    const QImage during = stack.grab().toImage();
    const int meeting = offset * qRound(stack.devicePixelRatioF());
    const int width = before.width();
    const int height = before.height();
    if (GetParam().later)
        EXPECT_EQ(during.copy(0, 0, meeting, height),
                  before.copy(width - meeting, 0, meeting, height));
    else
        EXPECT_EQ(during.copy(meeting, 0, width - meeting, height),
                  before.copy(0, 0, width - meeting, height));
}

INSTANTIATE_TEST_SUITE_P(Ways, SlideDirection,
                         testing::Values(Way{"Later", "files", "log", true},
                                         Way{"Next", "input", "crypto", true},
                                         Way{"Earlier", "log", "files", false},
                                         Way{"Former", "crypto", "input", false}),
                         [](const auto& way) { return std::string(way.param.name); });

} // namespace
