#include "tests/pages/PageInLanguage.h"

#include "host/HostLibraries.h"
#include "pages/input/KeyLamp.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/WaitFor.h"
#include "window/PageRail.h"
#include "window/PathLabel.h"
#include "window/ShownText.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

QAccessibleInterface* interfaceOf(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

std::string nameOf(const QAccessibleInterface& node)
{
    return node.text(QAccessible::Name).toStdString();
}

// What is wrong with one node of the tree; nothing for one that can be used.
QString faultOf(const QAccessibleInterface& node)
{
    const QString name = node.text(QAccessible::Name);
    const QAccessible::Role role = node.role();
    if (role == QAccessible::ColumnHeader && name.isEmpty())
        return QStringLiteral("a column without a name");
    // Cells are read out with their tables, a label that can be selected is its text, and what has
    // a proxy never gets the keyboard.
    const auto* widget = qobject_cast<QWidget*>(node.object());
    if (!node.state().focusable || !widget || widget->focusProxy() ||
        qobject_cast<const QLabel*>(widget))
        return {};
    if (name.isEmpty())
        return QStringLiteral("without a name");
    return role == QAccessible::Client || role == QAccessible::NoRole || role == QAccessible::Border
               ? QStringLiteral("%1 without a role").arg(name)
               : QString();
}

void walk(QAccessibleInterface* node, QStringList& faults, int& nodes)
{
    if (!node || !node->isValid() || node->state().invisible)
        return;
    ++nodes;
    const QString fault = faultOf(*node);
    if (!fault.isEmpty())
        faults << (node->object() ? QString::fromLatin1(node->object()->metaObject()->className())
                                  : QStringLiteral("cell")) +
                      QStringLiteral(": ") + fault;
    for (int child = 0; child < node->childCount(); ++child)
        walk(node->child(child), faults, nodes);
}

class AccessibleTree : public TestOfPageInLanguage
{
protected:
    QWidget& window() { return *m_probe.page().window(); }

    WindowProbe m_probe{GetParam().page, GetParam().language};
};

TEST_P(AccessibleTree, NamesAllThatCanBeReached)
{
    m_probe.page().find();
    auto* tabs = m_probe.page().findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        QStringList faults;
        int nodes = 0;
        walk(interfaceOf(&window()), faults, nodes);
        EXPECT_EQ(faults.join(QLatin1String(" | ")).toStdString(), "");
        EXPECT_GT(nodes, 30);
    }
}

TEST_P(AccessibleTree, IsThatOfAWindowWithAPageInIt)
{
    const QAccessibleInterface* top = interfaceOf(&window());
    EXPECT_EQ(top->role(), QAccessible::Window);
    EXPECT_EQ(nameOf(*top), window().windowTitle().toStdString());
    const QAccessibleInterface* page = interfaceOf(&m_probe.page());
    EXPECT_EQ(page->role(), QAccessible::PropertyPage);
    const auto pages = pageCatalogue();
    const auto entry = std::find_if(pages.begin(), pages.end(), [](const PageEntry& each) {
        return each.name.toStdString() == GetParam().page;
    });
    EXPECT_EQ(nameOf(*page), withoutMnemonic(entry->title).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Pages, AccessibleTree, testing::ValuesIn(pagesInLanguages()),
                         nameOfPageInLanguage);

TEST(AccessibleRoles, TheRailIsAListOfPageTabs)
{
    const WindowProbe probe("files");
    auto* rail = probe.page().window()->findChild<PageRail*>();
    QAccessibleInterface* list = interfaceOf(rail);
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    ASSERT_EQ(list->childCount(), static_cast<int>(pageCatalogue().size()));
    for (int child = 0; child < list->childCount(); ++child) {
        const QAccessibleInterface* tab = list->child(child);
        const bool chosen = tab->object()->objectName() == QLatin1String("files");
        EXPECT_EQ(tab->role(), QAccessible::PageTab);
        EXPECT_EQ(tab->state().selected, chosen ? 1U : 0U) << nameOf(*tab);
    }
}

TEST(AccessibleRoles, APageTabIsPressed)
{
    const WindowProbe probe("files");
    auto* window = static_cast<MainWindow*>(probe.page().window());
    auto* button = window->findChild<PageRail*>()->findChild<QAbstractButton*>("fonts");
    QAccessibleActionInterface* actions = interfaceOf(button)->actionInterface();
    ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(waitFor([window] {
        return window->currentPage() && window->currentPage()->accessibleName() == "Fonts";
    }));
}

TEST(AccessibleRoles, PathsOfTheStatusLineAndKeyLampsAreTexts)
{
    setPlatformServices(&g_PlatformServices);
    const WindowProbe probe("input");
    const auto paths = probe.page().window()->findChildren<PathLabel*>();
    EXPECT_EQ(paths.size(), 2);
    for (PathLabel* path : paths)
        EXPECT_EQ(interfaceOf(path)->role(), QAccessible::StaticText);
    const auto lamps = probe.page().findChildren<KeyLamp*>();
    EXPECT_GT(lamps.size(), 30);
    for (KeyLamp* lamp : lamps) {
        const QAccessibleInterface* node = interfaceOf(lamp);
        EXPECT_EQ(node->role(), QAccessible::StaticText);
        EXPECT_TRUE(node->state().focusable) << nameOf(*node);
        EXPECT_EQ(node->text(QAccessible::Description), "up") << nameOf(*node);
    }
}

// The announcements that an assistive tool has been told of, by the name of what made them.
QStringList announced;

void noteAlert(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Alert && qobject_cast<Page*>(event->object()))
        announced << event->accessibleInterface()->text(QAccessible::Name);
}

// As an assistive tool that connects does.
void setAccessibilityActive(bool active)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
}

TEST(AccessibleRoles, APageThatComesIntoViewIsAnnounced)
{
    const WindowProbe probe("files");
    setAccessibilityActive(true);
    announced.clear();
    const auto former = QAccessible::installUpdateHandler(&noteAlert);
    probe.page().window()->findChild<PageRail*>()->findChild<QAbstractButton*>("log")->click();
    EXPECT_TRUE(waitFor([] { return !announced.isEmpty(); }));
    QAccessible::installUpdateHandler(former);
    setAccessibilityActive(false);
    EXPECT_EQ(announced, QStringList("Log"));
}

} // namespace
