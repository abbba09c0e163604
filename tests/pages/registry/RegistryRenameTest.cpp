#include "host/HostLibraries.h"
#include "pages/registry/RegistryValueModel.h"
#include "tests/pages/registry/RegistryPageFixture.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QTreeView>

namespace {

class RegistryRenameTest : public RegistryPageFixture
{
protected:
    void renameKey(const QString& path, const QString& name)
    {
        m_page.goTo(path);
        choose(tree(), "Rename key...");
        type(name, {});
    }
    void renameValue(const QString& path, const QString& value, const QString& name)
    {
        m_page.goTo(path, value);
        choose(table(), "Rename value...");
        type(name, {});
    }
};

TEST_F(RegistryRenameTest, AKeyKeepsEverythingAsItStands)
{
    store("A/old/large", "2$100000");
    store("A/old/untagged", "Maria Lund");
    store("A/old/sub/fresh", QVariant());
    store("A/older/v", "1$1");
    show();
    const auto before = entries();
    renameKey("A/old", "new");
    ASSERT_TRUE(accept());
    settle();
    EXPECT_EQ(g_globalSettings->allKeys(),
              QStringList({"A/new/large", "A/new/sub/fresh", "A/new/untagged", "A/older/v"}));
    EXPECT_EQ(stored("A/new/large").toStdString(), "2$100000");
    EXPECT_EQ(stored("A/new/untagged").toStdString(), "Maria Lund");
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\new");
    EXPECT_EQ(m_page.undoStack().undoText().toStdString(),
              "Rename the key HKEY_CURRENT_USER\\A\\old to \"new\"");
    undo();
    EXPECT_EQ(entries(), before);
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\old");
}

TEST_F(RegistryRenameTest, AnEmptyKeyIsRenamed)
{
    store("A/fresh", QVariant());
    show();
    renameKey("A/fresh", "stale");
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/stale"));
}

TEST_F(RegistryRenameTest, AValueWithTheNameOfTheKeyStays)
{
    store("A/twin", "5$value");
    store("A/twin/inside", "1$1");
    show();
    renameKey("A/twin", "other");
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList({"A/other/inside", "A/twin"}));
}

TEST_F(RegistryRenameTest, AValueKeepsItsStoredText)
{
    store("A/large", "2$100000");
    store("A/large/inside", "1$1");
    show();
    const auto before = entries();
    renameValue("A", "large", "huge");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/huge").toStdString(), "2$100000");
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList({"A/huge", "A/large/inside"}));
    EXPECT_EQ(cell(table().currentIndex().row(), RegistryValueModel::Name).toStdString(), "huge");
    EXPECT_EQ(m_page.undoStack().undoText().toStdString(),
              "Rename \"large\" to \"huge\" in HKEY_CURRENT_USER\\A");
    EXPECT_TRUE(logged().contains("HKEY_CURRENT_USER\\A: \"huge\": absent -> \"2$100000\""));
    undo();
    EXPECT_EQ(entries(), before);
}

TEST_F(RegistryRenameTest, AValueUnderTheRootMovesIntoTheKeyOfItsNewName)
{
    store("X/X", "1$1");
    store("X/other", "1$2");
    show();
    renameValue("", "X", "Y");
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList({"X/other", "Y/Y"}));
}

TEST_F(RegistryRenameTest, NoNameThatIsTakenIsAccepted)
{
    store("A/v", "1$1");
    store("A/w", "none");
    store("A/key/v", "1$1");
    store("A/other/v", "1$1");
    store("A/fresh", QVariant());
    show();
    for (const char* name : {"other", "fresh", "v", "a\\b", ""}) {
        renameKey("A/key", name);
        EXPECT_FALSE(accept()) << name;
        reject();
    }
    for (const char* name : {"w", "fresh", "a/b", ""}) {
        renameValue("A", "v", name);
        EXPECT_FALSE(accept()) << name;
        reject();
    }
    EXPECT_EQ(m_page.undoStack().count(), 0);
}

TEST_F(RegistryRenameTest, TheSameNameChangesNothing)
{
    store("A/v", "1$1");
    show();
    renameKey("A", "A");
    ASSERT_TRUE(accept());
    EXPECT_EQ(status().toStdString(), "\"A\" keeps its name.");
    renameValue("A", "v", "v");
    ASSERT_TRUE(accept());
    EXPECT_EQ(status().toStdString(), "\"v\" keeps its name.");
    EXPECT_EQ(m_page.undoStack().count(), 0);
}

TEST_F(RegistryRenameTest, WhatCannotBeRenamedSaysWhy)
{
    store("loose", "5$x");
    store("a\\b/v", "1$1");
    store("A/fresh", QVariant());
    show();
    const auto expectRefused = [this](const char* words) {
        EXPECT_FALSE(QApplication::activeModalWidget());
        EXPECT_TRUE(status().contains(words)) << status().toStdString();
    };
    m_page.goTo("");
    choose(tree(), "Rename key...");
    expectRefused("The root itself cannot be renamed.");
    m_page.goTo("a\\b");
    choose(tree(), "Rename key...");
    expectRefused("Nothing was changed");
    m_page.goTo("", "loose");
    choose(table(), "Rename value...");
    expectRefused("stands in the root itself");
    m_page.goTo("A", "fresh");
    choose(table(), "Rename value...");
    expectRefused("rename the key");
}

TEST_F(RegistryRenameTest, KeysOfTheKeyboardOpenIt)
{
    store("A/v", "1$1");
    show();
    const struct
    {
        QWidget& view;
        Qt::KeyboardModifiers modifiers;
        const char* title;
    } rows[] = {{tree(), Qt::NoModifier, "Rename the key"},
                {tree(), Qt::ShiftModifier, "Rename the key"},
                {table(), Qt::ShiftModifier, "Rename the value"}};
    for (const auto& row : rows) {
        m_page.goTo("A", "v");
        focus(row.view);
        QTest::keyClick(&row.view, Qt::Key_F2, row.modifiers);
        EXPECT_EQ(dialog().windowTitle().toStdString(), row.title);
        EXPECT_EQ(dialog().findChild<QLineEdit*>()->selectedText().isEmpty(), false);
        reject();
    }
}

} // namespace
