#include "host/HostLibraries.h"
#include "pages/registry/RegistryValueModel.h"
#include "platform/PlatformServicesImp.h"
#include "tests/pages/registry/RegistryPageFixture.h"

#include <QApplication>
#include <QFileDialog>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

// Keys and values with a "\" in their names, in the place of which a host library finds others.
class RedirectedNamesTest : public RegistryPageFixture
{
protected:
    void showAt(const QString& path)
    {
        show();
        m_page.goTo(path);
        ASSERT_EQ(address(), "HKEY_CURRENT_USER\\" + QString(path).replace('/', '\\'));
        m_before = entries();
    }

    static QStringList entries()
    {
        QStringList all;
        for (const QString& key : g_globalSettings->allKeys())
            all.append(key + '=' + stored(key));
        return all;
    }

    // That nothing was asked and nothing done, and why.
    void expectRefused()
    {
        EXPECT_FALSE(QApplication::activeModalWidget());
        EXPECT_TRUE(status().contains("a host library")) << status().toStdString();
        EXPECT_TRUE(status().contains("Nothing was changed")) << status().toStdString();
        EXPECT_EQ(entries(), m_before);
        m_page.setStatus({});
    }

    QStringList m_before;
};

TEST_F(RedirectedNamesTest, AKeyIsMarkedAndSaysWhatIsOpened)
{
    store("a\\b/x", "1$1");
    store("plain/x", "1$1");
    showAt("a\\b");
    const auto tip = [this] { return tree().currentIndex().data(Qt::ToolTipRole).toString(); };
    EXPECT_TRUE(tip().contains("gets the key \"b\" in HKEY_CURRENT_USER\\a."))
        << tip().toStdString();
    EXPECT_EQ(status(), tip());
    m_page.goTo("plain");
    EXPECT_FALSE(tip().contains("host library")) << tip().toStdString();
    EXPECT_EQ(status().toStdString(), "Values: 1. Sub-keys: 0.");
}

TEST_F(RedirectedNamesTest, AKeyIsNotDeleted)
{
    store("a/b/precious", "1$1");
    store("a\\b/a/b", "5$x");
    showAt("a\\b");
    pressDelete(tree());
    expectRefused();
    m_page.goTo("a\\b/a");
    pressDelete(tree());
    expectRefused();
}

TEST_F(RedirectedNamesTest, AKeyGetsNothingNew)
{
    store("a\\b/a/b", "5$x");
    store("a/b/v", "5$x");
    showAt("a\\b");
    for (const NewEntry entry : {NewKey, NewString, NewBinary}) {
        chooseNew(entry);
        expectRefused();
    }
}

TEST_F(RedirectedNamesTest, AKeyIsNotExported)
{
    store("a\\b/a/b", "5$x");
    showAt("a\\b");
    chooseExport();
    EXPECT_FALSE(m_page.findChild<QFileDialog*>());
    EXPECT_TRUE(status().contains("a host library")) << status().toStdString();
}

TEST_F(RedirectedNamesTest, AKeyShowsTheValuesThatTheServiceListsThere)
{
    store("a\\b/own", "5$own");
    store("a/b/theirs", "1$5");
    showAt("a\\b");
    ASSERT_EQ(table().model()->rowCount(), 1);
    EXPECT_EQ(cell(0, RegistryValueModel::Name).toStdString(), "theirs");
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "5 (0x00000005)");
    EXPECT_EQ(cell(0, RegistryValueModel::Raw).toStdString(), "1$5");
    table().selectRow(0);
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_F2);
    expectRefused();
    pressDelete(table());
    expectRefused();
}

TEST_F(RedirectedNamesTest, AValueSetUnderARootIsShownAndEditedButNotDeleted)
{
    IPlatformRegisterManager* manager = g_PlatformServices.registerManager();
    const unsigned char data[] = {7, 0, 0, 0};
    ASSERT_EQ(manager->RegSetValueExW(HKEY_USERS, L"a\\b", 0, REG_DWORD, data, 4), ERROR_SUCCESS);
    store("a/b/precious", "1$1");
    show();
    m_page.goTo("", "a\\b");
    ASSERT_EQ(cell(0, RegistryValueModel::Name).toStdString(), "a\\b");
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "7 (0x00000007)");
    EXPECT_EQ(cell(0, RegistryValueModel::Raw).toStdString(), "1$7");
    m_before = entries();
    pressDelete(table());
    expectRefused();
    QTest::keyClick(&table(), Qt::Key_F2);
    type({}, "8");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("a\\b/a/b").toStdString(), "1$8");
    EXPECT_EQ(stored("a/b/precious").toStdString(), "1$1");
    EXPECT_EQ(g_globalSettings->allKeys().size(), 2);
}

TEST_F(RedirectedNamesTest, AValueInAKeyIsNeitherEditedNorDeleted)
{
    store("k/x\\y", "1$5");
    store("k/x/y", "1$6");
    showAt("k");
    m_page.goTo("k", "x\\y");
    EXPECT_TRUE(status().contains("a host library")) << status().toStdString();
    QTest::keyClick(&table(), Qt::Key_F2);
    expectRefused();
    pressDelete(table());
    expectRefused();
}

} // namespace
