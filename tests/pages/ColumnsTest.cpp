#include "tests/pages/PageInLanguage.h"
#include "tests/pages/SmallFont.h"
#include "tests/support/StyleInUse.h"

#include "window/ScrolledBody.h"
#include "window/WindowSize.h"

#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

class Columns : public TestOfPageInLanguage
{
protected:
    // How far something can be scrolled sideways, where that is possible.
    static QStringList scrolled(const QWidget& page)
    {
        QStringList all;
        const auto areas = page.findChildren<QAbstractScrollArea*>();
        for (const QAbstractScrollArea* area : areas) {
            const int most = area->horizontalScrollBar()->maximum();
            const bool isLooked =
                qobject_cast<const QTableView*>(area) || qobject_cast<const ScrolledBody*>(area);
            if (isLooked && area->isVisible() && most > 0)
                all << QStringLiteral("%1 %2: %3")
                           .arg(QLatin1String(area->metaObject()->className()),
                                area->accessibleName())
                           .arg(most);
        }
        return all;
    }

    static void expectNothingToScroll(const Page& page)
    {
        QApplication::processEvents(); // layouts, and headers that stretch behind them
        EXPECT_EQ(scrolled(page).join(QLatin1String(" | ")).toStdString(), "");
    }

    static void lookAtAllTabs(const WindowProbe& probe)
    {
        auto* tabs = probe.page().findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs)
                tabs->setCurrentIndex(tab);
            expectNothingToScroll(probe.page());
        }
    }

    const SmallFont m_font;
};

TEST_P(Columns, FitTheSmallestWindowsInEveryStyle)
{
    for (const StyleName& name : stylesInUse) {
        const StyleInUse style(name);
        if (QUAYSIDE_CROSS_BUILT && !style.isThere())
            continue;
        ASSERT_TRUE(style.isThere()) << "not installed: " << name.key;
        const WindowProbe probe(GetParam().page, GetParam().language);
        for (const QSize& size : {QSize(800, 600), smallestWindow}) {
            SCOPED_TRACE(StyleInUse::nameOf(name) + " " + std::to_string(size.width()));
            probe.page().window()->resize(size);
            lookAtAllTabs(probe);
        }
        probe.page().find(); // with the search of the registry
        SCOPED_TRACE(StyleInUse::nameOf(name) + " search");
        expectNothingToScroll(probe.page());
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, Columns, testing::ValuesIn(pagesInLanguages()),
                         nameOfPageInLanguage);

} // namespace
