#include "tests/pages/registry/RegistryPageFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QTableView>
#include <QTreeView>

namespace {

// Counts the requests for a context menu by the keyboard, and lets none through.
class MenuRequests : public QObject
{
public:
    explicit MenuRequests(QWidget& view) : m_view(view) { view.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ContextMenu)
            return QObject::eventFilter(watched, event);
        const auto& request = static_cast<const QContextMenuEvent&>(*event);
        m_count += request.reason() == QContextMenuEvent::Keyboard ? 1 : 0;
        m_isInside = m_view.rect().contains(request.pos());
        return true;
    }

    int count() const { return m_count; }
    bool isInside() const { return m_isInside; }

private:
    QWidget& m_view;
    int m_count = 0;
    bool m_isInside = false;
};

class RegistryMenuTest : public RegistryPageFixture
{
protected:
    RegistryMenuTest()
    {
        store("A/u", "5$text");
        store("A/v", "1$42");
        store("A/B/w", "1$1");
    }

    static QStringList menuOf(const QWidget& view)
    {
        QStringList texts;
        for (const QAction* action : view.actions())
            texts.append(action->text());
        return texts;
    }

    static std::string copied() { return QApplication::clipboard()->text().toStdString(); }
};

// The table opens its own, as every table of the window.
TEST_F(RegistryMenuTest, OfTheTreeIsOpenedByTheKeyboard)
{
    show();
    m_page.goTo("A");
    const MenuRequests requests(tree());
    focus(tree());
    QTest::keyClick(&tree(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(requests.count(), 1);
    QTest::keyClick(&tree(), Qt::Key_Menu);
    EXPECT_EQ(requests.count(), 2);
    QTest::keyClick(&tree(), Qt::Key_F10);
    EXPECT_EQ(requests.count(), 2);
    EXPECT_TRUE(requests.isInside());
}

TEST_F(RegistryMenuTest, HasWhatTheButtonsDo)
{
    show();
    const QStringList ofKeys = {"New",       "Rename key...",    "Delete key", "",
                                "Copy path", "Copy key as .reg", "",           "Search...",
                                "Import...", "Export key..."};
    EXPECT_EQ(menuOf(tree()), ofKeys);
    const QStringList ofValues = {"New",       "Edit value", "Rename value...", "Delete value",
                                  "",          "Copy data",  "Copy as .reg",    "",
                                  "Copy path", "Search...",  "Import...",       "Export key..."};
    EXPECT_EQ(menuOf(table()), ofValues);
}

TEST_F(RegistryMenuTest, CopiesTheDataOfOneValue)
{
    show();
    m_page.goTo("A", "v");
    choose(table(), "Copy data");
    EXPECT_EQ(copied(), "42");
}

TEST_F(RegistryMenuTest, CopiesSeveralValuesAsRows)
{
    show();
    m_page.goTo("A");
    table().selectAll();
    choose(table(), "Copy data");
    EXPECT_EQ(copied(), "u\tREG_SZ\ttext\nv\tREG_DWORD\t42 (0x0000002a)");
}

TEST_F(RegistryMenuTest, CopiesSelectedValuesAsARegistryFileHasThem)
{
    show();
    m_page.goTo("A");
    table().selectAll();
    choose(table(), "Copy as .reg");
    settle();
    EXPECT_EQ(copied(), "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n"
                        "\"u\"=\"text\"\r\n\"v\"=dword:0000002a\r\n");
    EXPECT_EQ(status().toStdString(),
              "Copied as the text of a registry file. Values: 2. Left out: 0.");
}

TEST_F(RegistryMenuTest, CopiesAKeyAsARegistryFileHasIt)
{
    show();
    m_page.goTo("A");
    choose(tree(), "Copy key as .reg");
    settle();
    const QString text = QString::fromStdString(copied());
    EXPECT_TRUE(text.contains("[HKEY_CURRENT_USER\\A]\r\n\"u\"=\"text\"")) << copied();
    EXPECT_TRUE(text.contains("[HKEY_CURRENT_USER\\A\\B]\r\n\"w\"=dword:00000001")) << copied();
}

TEST_F(RegistryMenuTest, OfAKeyWithABackslashInItsNameCopiesNothing)
{
    store("a\\b/own", "5$own");
    show();
    m_page.goTo("a\\b");
    QApplication::clipboard()->setText("before");
    choose(tree(), "Copy key as .reg");
    settle();
    EXPECT_EQ(copied(), "before");
    EXPECT_TRUE(status().contains("a host library")) << status().toStdString();
}

TEST_F(RegistryMenuTest, ASentenceSaysThatTheRootsAreOne)
{
    show();
    QStringList texts;
    for (const QLabel* label : m_page.findChildren<QLabel*>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    EXPECT_TRUE(texts.contains("All four root keys are one here."))
        << texts.join('|').toStdString();
}

} // namespace
