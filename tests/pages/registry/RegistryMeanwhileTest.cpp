#include "host/HostLibraries.h"
#include "pages/registry/RegistryValueModel.h"
#include "tests/pages/registry/RegistryPageFixture.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

// What a host library does while the page is open.
class RegistryMeanwhileTest : public RegistryPageFixture
{
protected:
    // Shows a value, which is read by that.
    void showValue(const QString& path, const QString& name)
    {
        show();
        m_page.goTo(path, name);
        ASSERT_FALSE(cell(table().currentIndex().row(), RegistryValueModel::Data).isEmpty());
    }

    void expectGone(const char* what)
    {
        EXPECT_FALSE(QApplication::activeModalWidget());
        EXPECT_EQ(status().toStdString(), std::string(what) + " is no longer there.");
    }
};

TEST_F(RegistryMeanwhileTest, AValueIsEditedAsTheHostLibraryHasWrittenIt)
{
    store("A/v", "1$42");
    showValue("A", "v");
    store("A/v", "1$99");
    QTest::keyClick(&table(), Qt::Key_F2);
    EXPECT_EQ(lineField()->text().toStdString(), "99");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "1$99");
}

TEST_F(RegistryMeanwhileTest, AValueThatIsGoneIsNotEdited)
{
    store("A/u", "1$1");
    store("A/v", "1$42");
    showValue("A", "v");
    g_globalSettings->remove("A/v");
    QTest::keyClick(&table(), Qt::Key_F2);
    expectGone("\"v\" in HKEY_CURRENT_USER\\A");
    EXPECT_EQ(table().model()->rowCount(), 1);
    EXPECT_FALSE(holds("A/v"));
}

TEST_F(RegistryMeanwhileTest, AValueThatIsGoneIsNotDeleted)
{
    store("A/u", "1$1");
    store("A/v", "1$42");
    showValue("A", "v");
    g_globalSettings->remove("A/v");
    pressDelete(table());
    expectGone("\"v\" in HKEY_CURRENT_USER\\A");
    EXPECT_EQ(table().model()->rowCount(), 1);
}

TEST_F(RegistryMeanwhileTest, SeveralValuesThatAreGoneAreCounted)
{
    store("A/u", "1$1");
    store("A/v", "1$42");
    showValue("A", "v");
    table().selectAll();
    g_globalSettings->clear();
    pressDelete(table());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(status().toStdString(),
              "2 of the selected values in HKEY_CURRENT_USER\\A are no longer there.");
}

TEST_F(RegistryMeanwhileTest, ValuesThatAreLeftAreDeleted)
{
    store("A/u", "1$1");
    store("A/v", "1$42");
    store("A/w", "1$1");
    showValue("A", "v");
    table().selectAll();
    g_globalSettings->remove("A/v");
    pressDelete(table());
    EXPECT_TRUE(words().contains("u\nw")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(status().toStdString(), "Deleted from HKEY_CURRENT_USER\\A: 2 values.");
}

TEST_F(RegistryMeanwhileTest, AKeyThatIsGoneIsNotDeleted)
{
    store("A/v", "1$42");
    store("B/v", "1$42");
    showValue("A", "v");
    g_globalSettings->remove("A");
    pressDelete(tree());
    expectGone("HKEY_CURRENT_USER\\A");
    EXPECT_TRUE(holds("B/v"));
    EXPECT_NE(address().toStdString(), "HKEY_CURRENT_USER\\A");
}

TEST_F(RegistryMeanwhileTest, AKeyThatIsGoneIsNotExported)
{
    store("A/v", "1$42");
    showValue("A", "v");
    g_globalSettings->remove("A");
    chooseExport();
    EXPECT_FALSE(m_page.findChild<QFileDialog*>());
    expectGone("HKEY_CURRENT_USER\\A");
}

} // namespace
