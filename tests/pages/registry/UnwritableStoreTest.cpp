#include "host/HostLibraries.h"
#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace {

// The store's folder is a plain file for as long as a test runs: no permission keeps root out.
class UnwritableStoreTest : public RegistryPageFixture
{
protected:
    UnwritableStoreTest()
    {
        EXPECT_TRUE(QDir().mkpath(m_folder));
        EXPECT_TRUE(QDir().rename(m_folder, m_aside));
        QFile file(m_folder);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ~UnwritableStoreTest() override
    {
        EXPECT_TRUE(QFile::remove(m_folder));
        EXPECT_TRUE(QDir().rename(m_aside, m_folder));
    }

    void expectTold(const QString& before = {})
    {
        const QString told = before + "The store " + g_globalSettings->fileName() +
                             " cannot be written: changes last until the program ends.";
        EXPECT_EQ(status().toStdString(), told.toStdString());
    }

    const QString m_folder = QFileInfo(g_globalSettings->fileName()).absolutePath();
    const QString m_aside = m_folder + ".aside";
};

TEST_F(UnwritableStoreTest, IsToldOnEntering)
{
    m_page.show();
    m_page.entered();
    EXPECT_TRUE(waitFor([this] { return !address().isEmpty(); }));
    expectTold();
    m_page.setStatus({});
    m_page.entered();
    expectTold();
}

TEST_F(UnwritableStoreTest, IsToldWithEveryChange)
{
    store("A/v", "1$1");
    show();
    m_page.goTo("A");
    chooseNew(NewDword);
    type("n", "1");
    ASSERT_TRUE(accept());
    expectTold("Set \"n\" in HKEY_CURRENT_USER\\A. ");
    pressDelete(table());
    ASSERT_TRUE(accept());
    expectTold("Deleted from HKEY_CURRENT_USER\\A: \"n\". ");
    chooseNew(NewKey);
    type("K", {});
    ASSERT_TRUE(accept());
    expectTold("Created HKEY_CURRENT_USER\\A\\K. ");
    pressDelete(tree());
    ASSERT_TRUE(accept());
    expectTold("Deleted the key HKEY_CURRENT_USER\\A\\K. ");
}

TEST_F(UnwritableStoreTest, IsToldAfterAnImport)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("in.reg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"v\"=dword:1\r\n");
    file.close();
    show();
    importFile(file.fileName());
    ASSERT_TRUE(accept());
    expectTold("Imported " + file.fileName() + ". Statements carried out: 2. Refused: 0. ");
}

} // namespace
