#include "tests/support/Contrast.h"
#include "tests/pages/PageNames.h"
#include "tests/pages/SmallFont.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"
#include "tools/pictures/Look.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

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
    ASSERT_TRUE(waitForExposed(&window));
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
