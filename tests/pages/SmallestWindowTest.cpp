#include "tests/pages/CutTexts.h"
#include "tests/pages/PageInLanguage.h"
#include "tests/pages/SmallFont.h"

#include "tests/support/WaitFor.h"
#include "window/ScrolledBody.h"
#include "window/StatusLine.h"
#include "window/WindowSize.h"

#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class SmallestWindow : public TestOfPageInLanguage
{
protected:
    SmallestWindow()
    {
        window().resize(smallestWindow);
        EXPECT_TRUE(waitForExposed(&window()));
    }

    QWidget& window() { return *m_probe.page().window(); }
    const ScrolledBody& body() { return *m_probe.page().findChild<ScrolledBody*>(); }

    SmallFont m_font;
    WindowProbe m_probe{GetParam().page, GetParam().language};
};

TEST_P(SmallestWindow, ShowsAllOfThePage)
{
    EXPECT_EQ(window().size(), QSize(780, 460));
    auto* tabs = m_probe.page().findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        EXPECT_TRUE(waitFor([this] { return cutTexts(window()).isEmpty(); }))
            << cutTexts(window()).join(QLatin1String(" | ")).toStdString();
        EXPECT_EQ(body().horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(body().verticalScrollBar()->maximum(), 0)
            << body().widget()->height() << " in " << body().viewport()->height();
    }
    const QWidget& status = *window().findChild<StatusLine*>();
    EXPECT_TRUE(window().rect().contains(status.geometry()));
}

INSTANTIATE_TEST_SUITE_P(Pages, SmallestWindow, testing::ValuesIn(pagesInLanguages()),
                         nameOfPageInLanguage);

} // namespace
