#include "tests/pages/CutTexts.h"
#include "tests/pages/PageNames.h"
#include "tests/pages/SmallFont.h"
#include "tests/pages/WindowProbe.h"

#include "tests/support/WaitFor.h"
#include "window/PageRail.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

// What the environment asks for: this program runs once for each.
int wantedRatio()
{
    return qMax(1, qEnvironmentVariableIntValue("QT_SCALE_FACTOR"));
}

// A page of the real window on a screen of 3840 x 2160, at 100 % to 300 %.
class ScaledPage : public testing::TestWithParam<std::string>
{
protected:
    ScaledPage() { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); }

    QWidget& window() { return *m_probe.page().window(); }

    SmallFont m_font;
    WindowProbe m_probe{GetParam()};
};

TEST_P(ScaledPage, StandsOnALargeScreenOfThatScale)
{
    ASSERT_TRUE(waitForExposed(&window()));
    const QScreen& screen = *window().windowHandle()->screen();
    EXPECT_EQ(screen.size() * wantedRatio(), QSize(3840, 2160));
    EXPECT_EQ(qRound(window().devicePixelRatioF()), wantedRatio());
    EXPECT_TRUE(screen.availableGeometry().contains(window().frameGeometry()))
        << window().frameGeometry().width() << " x " << window().frameGeometry().height();
    const QSize first = MainWindow().size();
    EXPECT_TRUE(first.width() >= 800 && first.width() <= screen.size().width());
    EXPECT_TRUE(first.height() >= 600 && first.height() <= screen.size().height());
}

TEST_P(ScaledPage, CutsOffNoText)
{
    EXPECT_TRUE(waitFor([this] { return cutTexts(window()).isEmpty(); }))
        << cutTexts(window()).join(QLatin1String(" | ")).toStdString();
    EXPECT_EQ(window().size(), QSize(800, 600));
}

TEST_P(ScaledPage, HasGlyphsOfTheScreensResolution)
{
    const auto buttons = window().findChild<PageRail*>()->findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), static_cast<int>(pageCatalogue().size()));
    for (const QPushButton* button : buttons) {
        const QPixmap glyph = button->icon().pixmap(window().windowHandle(), button->iconSize());
        EXPECT_EQ(glyph.size(), button->iconSize() * wantedRatio());
        EXPECT_EQ(qRound(glyph.devicePixelRatio()), wantedRatio());
    }
    m_probe.page().report(Page::Report::Warning, "It was refused.");
    int glyphs = 0;
    for (const QLabel* label : m_probe.page().findChildren<QLabel*>()) {
        const QPixmap glyph = label->pixmap(Qt::ReturnByValue);
        if (!label->isVisible() || glyph.isNull())
            continue;
        ++glyphs;
        EXPECT_EQ(qRound(glyph.devicePixelRatio()), wantedRatio());
        EXPECT_EQ(glyph.height(), label->fontMetrics().height() * wantedRatio());
    }
    EXPECT_GE(glyphs, 1);
}

INSTANTIATE_TEST_SUITE_P(Pages, ScaledPage, testing::ValuesIn(pageNames()),
                         [](const auto& page) { return page.param; });

} // namespace
