#include "tests/pages/PageInLanguage.h"

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "window/PageRail.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace {

QStringList textsOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? QStringList(label->text()) : QStringList();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return {button->text()};
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
        return {box->title()};
    QStringList titles;
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            titles << tabs->tabText(tab);
    }
    return titles;
}

// What each key with Alt stands for, of all that can be seen in the window.
QMap<QString, QStringList> mnemonics(const QWidget& window)
{
    QMap<QString, QStringList> found;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible())
            continue;
        for (const QString& text : textsOf(*widget)) {
            const QString keys = QKeySequence::mnemonic(text).toString();
            if (!keys.isEmpty())
                found[keys] << text;
        }
    }
    return found;
}

class Mnemonics : public TestOfPageInLanguage
{
protected:
    Mnemonics() { setPlatformServices(&g_PlatformServices); }
};

TEST_P(Mnemonics, AreUniqueInTheWindow)
{
    const WindowProbe probe(GetParam().page, GetParam().language);
    probe.page().find(); // with the search of the registry
    auto* tabs = probe.page().findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        const QMap<QString, QStringList> found = mnemonics(*probe.page().window());
        EXPECT_GT(found.size(),
                  static_cast<int>(pageCatalogue().size())); // the rail's, and the page's
        for (auto key = found.begin(); key != found.end(); ++key)
            EXPECT_EQ(key.value().size(), 1)
                << key.key().toStdString() << ": " << key.value().join(" | ").toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, Mnemonics, testing::ValuesIn(pagesInLanguages()),
                         nameOfPageInLanguage);

} // namespace
