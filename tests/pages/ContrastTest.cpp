#include "tests/pages/PageNames.h"
#include "tests/pages/SmallFont.h"
#include "tests/pages/WindowProbe.h"
#include "tools/pictures/Look.h"

#include <QAbstractButton>
#include <QHash>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

double linear(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color)
{
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

// From 1 for the same colour to 21 for black and white.
double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// The colour of most of a picture against the one that differs from it most: its text.
double contrastIn(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    double strongest = 1;
    for (auto color = counts.begin(); color != counts.end(); ++color)
        strongest = std::max(strongest, contrast(most.key(), color.key()));
    return strongest;
}

QString shownText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button ? button->text() : QString();
}

class Contrast : public testing::TestWithParam<std::tuple<std::string, const char*>>
{
protected:
    Contrast()
        : m_style(QApplication::style()->objectName()),
          m_palette(QApplication::palette()),
          m_former(QApplication::font())
    {
        applyLook(QLatin1String(std::get<1>(GetParam())), m_former.family());
        // Pairs that can be read themselves, so that what cannot be is the window's fault.
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Highlight, QColor(20, 90, 160));
        palette.setColor(QPalette::HighlightedText, Qt::white);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(QPalette::Disabled, role, QColor(128, 128, 128));
        QApplication::setPalette(palette);
    }
    ~Contrast() override
    {
        QApplication::setStyle(m_style);
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_former);
    }

    // Every text that can be seen in the window: at least 4.5, where it is disabled 2.
    static void expectReadable(QWidget& window)
    {
        const QImage picture = window.grab().toImage();
        const qreal ratio = picture.devicePixelRatio();
        const auto widgets = window.findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            const QString text = shownText(*widget);
            if (!widget->isVisible() || text.trimmed().isEmpty())
                continue;
            const QPoint corner = widget->mapTo(&window, QPoint());
            const double found =
                contrastIn(picture.copy(QRect(corner * ratio, widget->size() * ratio)));
            EXPECT_GE(found, widget->isEnabled() ? 4.5 : 2.0) << text.toStdString();
        }
    }

private:
    QString m_style;
    QPalette m_palette;
    QFont m_former;
};

TEST_P(Contrast, LetsEveryTextBeRead)
{
    const WindowProbe probe(std::get<0>(GetParam()));
    QWidget& window = *probe.page().window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    probe.page().report(Page::Report::Warning, "It was refused.");
    auto* tabs = probe.page().findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        QTest::qWait(20);
        expectReadable(window);
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, Contrast,
                         testing::Combine(testing::ValuesIn(pageNames()),
                                          testing::Values("light", "dark")),
                         [](const auto& row) {
                             return std::get<0>(row.param) + "_" + std::get<1>(row.param);
                         });

} // namespace
