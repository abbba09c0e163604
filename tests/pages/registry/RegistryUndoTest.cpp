#include "host/HostLibraries.h"
#include "inspection/log/LimitedLines.h"
#include "pages/registry/RegistryValueModel.h"
#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeView>

namespace {

class RegistryUndoTest : public RegistryPageFixture
{
protected:
    // Something of everything.
    static void fill()
    {
        store("A/number", "1$42");
        store("A/large", "2$100000");
        store("A/untagged", "Maria Lund");
        store("A/fresh", QVariant());
        store("A/B/v", "5$text");
        store("A/B/C/w", "4$00ff");
        store("Z/v", "1$1");
    }

    // That the last change is named so, and that it is undone and redone exactly.
    void expectReversible(const QMap<QString, QVariant>& before, const char* text)
    {
        ASSERT_EQ(m_page.undoStack().count(), 1) << status().toStdString();
        EXPECT_EQ(m_page.undoStack().undoText().toStdString(), text);
        const auto after = entries();
        ASSERT_NE(after, before);
        undo();
        EXPECT_EQ(entries(), before);
        EXPECT_EQ(status().toStdString(), std::string("Undone: ") + text + '.');
        redo();
        EXPECT_EQ(entries(), after);
        EXPECT_EQ(status().toStdString(), std::string("Redone: ") + text + '.');
    }

    void setValue(const QString& name, const QString& data)
    {
        m_page.goTo("A", name);
        QTest::keyClick(&table(), Qt::Key_F2);
        type({}, data);
        ASSERT_TRUE(accept());
    }

    // Presses the button with these words in the dialog that is open.
    void press(const QString& text)
    {
        for (QPushButton* button : dialog().findChildren<QPushButton*>()) {
            if (button->text() == text) {
                button->click();
                return settle();
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }
};

TEST_F(RegistryUndoTest, ASetValueIsUndone)
{
    fill();
    show();
    const auto before = entries();
    setValue("untagged", "tagged");
    expectReversible(before, "Set \"untagged\" in HKEY_CURRENT_USER\\A");
}

TEST_F(RegistryUndoTest, ANewValueIsUndone)
{
    fill();
    show();
    const auto before = entries();
    m_page.goTo("A");
    chooseNew(NewDword);
    type("new", "7");
    ASSERT_TRUE(accept());
    expectReversible(before, "Set \"new\" in HKEY_CURRENT_USER\\A");
}

TEST_F(RegistryUndoTest, ANewKeyIsUndone)
{
    fill();
    show();
    const auto before = entries();
    m_page.goTo("A");
    chooseNew(NewKey);
    type("more", {});
    ASSERT_TRUE(accept());
    expectReversible(before, "Create the key HKEY_CURRENT_USER\\A\\more");
}

TEST_F(RegistryUndoTest, SeveralDeletedValuesAreOneChange)
{
    fill();
    show();
    const auto before = entries();
    m_page.goTo("A");
    table().selectAll();
    pressDelete(table());
    ASSERT_TRUE(accept());
    expectReversible(before, "Delete 4 values from HKEY_CURRENT_USER\\A");
}

TEST_F(RegistryUndoTest, ADeletedKeyIsUndone)
{
    fill();
    show();
    const auto before = entries();
    m_page.goTo("A");
    pressDelete(tree());
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("Z/v"));
    expectReversible(before, "Delete the key HKEY_CURRENT_USER\\A");
}

TEST_F(RegistryUndoTest, AnImportIsUndone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.reg");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Windows Registry Editor Version 5.00\r\n\r\n[-HKEY_CURRENT_USER\\A\\B]\r\n"
               "[HKEY_CURRENT_USER\\A]\r\n\"number\"=dword:1\r\n\"new\"=\"x\"\r\n"
               "\"untagged\"=-\r\n");
    file.close();
    fill();
    show();
    const auto before = entries();
    importFile(path);
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/number").toStdString(), "1$1");
    expectReversible(before, "Import in.reg");
}

TEST_F(RegistryUndoTest, AKeyOfManyValuesIsUndoneInSlices)
{
    for (int i = 0; i < 5000; ++i)
        store(QString("Many/v%1").arg(i), "5$text");
    show();
    const auto before = entries();
    m_page.goTo("Many");
    pressDelete(tree());
    ASSERT_TRUE(accept());
    settle();
    ASSERT_TRUE(entries().isEmpty());
    undo();
    EXPECT_EQ(entries(), before);
}

TEST_F(RegistryUndoTest, ShowsThePlaceThatWasChanged)
{
    fill();
    show();
    setValue("number", "43");
    m_page.goTo("Z");
    undo();
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A");
    const int row = table().currentIndex().row();
    EXPECT_EQ(cell(row, RegistryValueModel::Name).toStdString(), "number");
    EXPECT_EQ(cell(row, RegistryValueModel::Raw).toStdString(), "1$42");
}

TEST_F(RegistryUndoTest, ALineOfTheLogTellsOfEachChange)
{
    fill();
    store("A/Password", "5$hidden");
    show();
    const int start = logged().size();
    setValue("number", "43");
    setValue("Password", "covered");
    undo();
    undo();
    const QString log = logged().mid(start);
    EXPECT_EQ(log.count("HKEY_CURRENT_USER\\A: \"number\": \"1$42\" -> \"1$43\""), 1);
    EXPECT_EQ(log.count("HKEY_CURRENT_USER\\A: \"number\": \"1$43\" -> \"1$42\""), 1);
    EXPECT_TRUE(log.contains("\"Password\": (not logged) -> (not logged)"));
    EXPECT_FALSE(log.contains("hidden"));
    EXPECT_FALSE(log.contains("covered"));
}

TEST_F(RegistryUndoTest, TheLogTellsUndoingAndRedoingFromChanges)
{
    fill();
    show();
    const int start = logged().size();
    setValue("number", "43");
    undo();
    redo();
    const QString log = logged().mid(start);
    const QString line = "HKEY_CURRENT_USER\\A: \"number\": ";
    EXPECT_EQ(log.count("Undone: " + line + "\"1$43\" -> \"1$42\""), 1);
    EXPECT_EQ(log.count("Redone: " + line + "\"1$42\" -> \"1$43\""), 1);
    EXPECT_EQ(log.count(line), 3);
}

TEST_F(RegistryUndoTest, TheLogTellsWhatGoesWithAKeyAndHowMuchOfItIsLeftOut)
{
    for (int i = 0; i < LimitedLines::most + 5; ++i)
        store(QString("A/n%1").arg(i), "1$1");
    show();
    m_page.goTo("A");
    int start = logged().size();
    pressDelete(tree());
    ASSERT_TRUE(accept());
    QString log = logged().mid(start);
    EXPECT_EQ(log.count("\"1$1\" -> absent"), LimitedLines::most);
    EXPECT_EQ(log.count("and 5 more entries"), 1);
    start = logged().size();
    undo();
    log = logged().mid(start);
    EXPECT_EQ(log.count("Undone: HKEY_CURRENT_USER\\A: \"n"), LimitedLines::most);
    EXPECT_EQ(log.count("Undone: and 5 more entries"), 1);
}

// Somebody else changes the value between the change and its undoing.
class ChangedMeanwhile : public RegistryUndoTest
{
protected:
    void SetUp() override
    {
        fill();
        show();
        setValue("number", "43");
        store("A/number", "1$99");
        undo();
        ASSERT_TRUE(words().contains("somebody else has changed")) << words().toStdString();
        ASSERT_TRUE(words().contains("HKEY_CURRENT_USER\\A\\number")) << words().toStdString();
        ASSERT_EQ(stored("A/number").toStdString(), "1$99");
    }
};

TEST_F(ChangedMeanwhile, IsKeptByTheButtonForEnter)
{
    QTest::keyClick(&dialog(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([] { return !QApplication::activeModalWidget(); }));
    EXPECT_EQ(stored("A/number").toStdString(), "1$99");
    EXPECT_TRUE(m_page.undoStack().canUndo());
    EXPECT_FALSE(m_page.undoStack().canRedo());
}

TEST_F(ChangedMeanwhile, IsKeptByTheTitleBar)
{
    dialog().close();
    ASSERT_TRUE(waitFor([] { return !QApplication::activeModalWidget(); }));
    EXPECT_EQ(stored("A/number").toStdString(), "1$99");
    EXPECT_TRUE(m_page.undoStack().canUndo());
    EXPECT_FALSE(m_page.undoStack().canRedo());
}

TEST_F(ChangedMeanwhile, IsOverwrittenOnRequest)
{
    press("Overwrite");
    EXPECT_EQ(stored("A/number").toStdString(), "1$42");
    EXPECT_TRUE(m_page.undoStack().canRedo());
}

TEST_F(RegistryUndoTest, OnlyTheRestIsUndoneOnRequest)
{
    store("A/u", "1$1");
    store("A/v", "1$1");
    show();
    m_page.goTo("A");
    table().selectAll();
    pressDelete(table());
    ASSERT_TRUE(accept());
    store("A/u", "1$5");
    undo();
    press("Only the rest");
    EXPECT_EQ(stored("A/u").toStdString(), "1$5");
    EXPECT_EQ(stored("A/v").toStdString(), "1$1");
    EXPECT_TRUE(status().contains("Left as somebody else has changed them: 1."))
        << status().toStdString();
}

} // namespace
