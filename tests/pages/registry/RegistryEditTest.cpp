#include "host/HostLibraries.h"
#include "inspection/registry/RegistryFormat.h"
#include "pages/registry/RegistryValueModel.h"
#include "platform/PlatformServicesImp.h"
#include "tests/pages/registry/RegistryPageFixture.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

class RegistryEditTest : public RegistryPageFixture
{
};

TEST_F(RegistryEditTest, ANewKeyCanBeOpenedAtOnce)
{
    store("A/v", "1$1");
    show();
    m_page.goTo("A");
    chooseNew(NewKey);
    type("fresh", {});
    ASSERT_TRUE(accept());
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\fresh");
    EXPECT_EQ(status().toStdString(), "Created HKEY_CURRENT_USER\\A\\fresh.");
    HKEY key = nullptr;
    IPlatformRegisterManager* manager = g_PlatformServices.registerManager();
    EXPECT_EQ(manager->RegOpenKeyExW(HKEY_USERS, L"A/fresh", 0, 0, &key), ERROR_SUCCESS);
    manager->RegCloseKey(key);
}

TEST_F(RegistryEditTest, AKeyNeedsANameOfOneLevel)
{
    show();
    chooseNew(NewKey);
    EXPECT_FALSE(accept());
    type("a\\b", {});
    EXPECT_FALSE(accept());
    EXPECT_TRUE(words().contains("separate keys"));
    reject();
    EXPECT_TRUE(g_globalSettings->allKeys().isEmpty());
}

TEST_F(RegistryEditTest, AKeyThatIsThereIsNotCreatedAgain)
{
    store("A/v", "1$1");
    show();
    chooseNew(NewKey);
    type("A", {});
    ASSERT_TRUE(accept());
    EXPECT_EQ(status().toStdString(), "HKEY_CURRENT_USER\\A is there already.");
    EXPECT_FALSE(holds("A"));
}

TEST_F(RegistryEditTest, AKeyNamedLikeAValueIsThereByThat)
{
    store("A/x", "1$1");
    store("A/fresh", QVariant());
    store("A/twin", "1$1");
    store("A/twin/v", "1$1");
    show();
    const struct
    {
        const char* name;
        const char* words;
    } rows[] = {{"x",
                 "The value \"x\" of HKEY_CURRENT_USER\\A stands for a key of that name: a host "
                 "library that opens the key succeeds. Nothing was changed."},
                {"fresh", "HKEY_CURRENT_USER\\A\\fresh is there already."},
                {"twin", "HKEY_CURRENT_USER\\A\\twin is there already."}};
    for (const auto& row : rows) {
        m_page.goTo("A");
        chooseNew(NewKey);
        type(row.name, {});
        ASSERT_TRUE(accept());
        EXPECT_EQ(status().toStdString(), row.words);
    }
}

TEST_F(RegistryEditTest, ANewValueIsSeenByTheHostLibraryAtOnce)
{
    const struct
    {
        NewEntry entry;
        const char* data;
        const char* stored;
    } rows[] = {{NewString, "some text", "5$some text"},
                {NewString, "", "5$"},
                {NewDword, "0x2a", "1$42"},
                {NewQword, "200", "2$200"},
                {NewBinary, "00 ff", "4$00ff"}};
    store("A/keep", "1$1");
    show();
    m_page.goTo("A");
    for (const auto& row : rows) {
        g_globalSettings->remove("A/v");
        m_page.refresh();
        chooseNew(row.entry);
        type("v", row.data);
        ASSERT_TRUE(accept()) << row.stored;
        EXPECT_EQ(stored("A/v").toStdString(), row.stored);
        EXPECT_EQ(status().toStdString(), "Set \"v\" in HKEY_CURRENT_USER\\A.");
        EXPECT_EQ(cell(table().currentIndex().row(), RegistryValueModel::Name).toStdString(), "v");
    }
}

TEST_F(RegistryEditTest, NarrowingIsToldBeforeAndAfter)
{
    store("A/v", "1$1");
    show();
    m_page.goTo("A");
    chooseNew(NewQword);
    type("large", "511");
    EXPECT_TRUE(words().contains("511 will be read as 255")) << words().toStdString();
    EXPECT_FALSE(holds("A/large"));
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/large").toStdString(), "2$255");
    EXPECT_TRUE(status().contains("but a host library reads 255 (0xff)")) << status().toStdString();
}

TEST_F(RegistryEditTest, BadInputIsRefusedAndNothingChanges)
{
    store("A/v", "1$1");
    show();
    m_page.goTo("A");
    const struct
    {
        NewEntry entry;
        const char* name;
        const char* data;
        const char* words;
    } rows[] = {{NewDword, "n", "-1", "whole number"},
                {NewDword, "n", "4294967296", "largest"},
                {NewBinary, "n", "0", "pairs"},
                {NewString, "", "x", "needs a name"},
                {NewString, "a\\b", "x", "sub-key"}};
    for (const auto& row : rows) {
        chooseNew(row.entry);
        type(row.name, row.data);
        EXPECT_TRUE(words().contains(row.words)) << words().toStdString();
        EXPECT_FALSE(accept());
        reject();
    }
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/v"));
}

TEST_F(RegistryEditTest, ANewValueNeverReplacesOneThatIsThere)
{
    show();
    for (const char* old : {"5$old", "no tag", "3$x"}) {
        for (const char* key : {"A", ""}) {
            const QString entry = *key ? "A/v" : "v/v";
            g_globalSettings->clear();
            store(entry, old);
            m_page.refresh();
            m_page.goTo(key);
            chooseNew(NewString);
            type("v", "new");
            EXPECT_FALSE(accept());
            EXPECT_TRUE(words().contains("already")) << words().toStdString();
            reject();
            EXPECT_EQ(stored(entry).toStdString(), old);
        }
    }
}

TEST_F(RegistryEditTest, ANewValueMayHaveTheNameOfANewKey)
{
    store("A/v", "1$1");
    store("A/fresh", QVariant());
    show();
    m_page.goTo("A");
    chooseNew(NewString);
    type("fresh", "new");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/fresh").toStdString(), "5$new");
}

TEST_F(RegistryEditTest, AValueSetUnderTheRootShowsWhereItIsKept)
{
    show();
    chooseNew(NewString);
    type("X", "text");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("X/X").toStdString(), "5$text");
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER");
    EXPECT_EQ(cell(0, RegistryValueModel::Name).toStdString(), "X");
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "text");
}

TEST_F(RegistryEditTest, F2EditsTheValueWithItsData)
{
    store("A/v", "1$42");
    show();
    m_page.goTo("A", "v");
    QTest::keyClick(&table(), Qt::Key_F2);
    EXPECT_TRUE(dialog().findChild<QLineEdit*>()->isReadOnly());
    EXPECT_EQ(dialog().findChild<QComboBox*>()->currentText().toStdString(), "REG_DWORD");
    type({}, "43");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "1$43");
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "43 (0x0000002b)");
}

class UneditedValue : public RegistryEditTest, public testing::WithParamInterface<const char*>
{
};

TEST_P(UneditedValue, StaysAsItIs)
{
    const QString old = QString::fromUtf8(GetParam());
    store("A/v", old);
    show();
    m_page.goTo("A", "v");
    QTest::keyClick(&table(), Qt::Key_F2);
    EXPECT_FALSE(words().contains("Line ends")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), old.toStdString());
    EXPECT_EQ(status().toStdString(), "\"v\" in HKEY_CURRENT_USER\\A stays as it is: nothing was "
                                      "typed that would change it.");
    EXPECT_EQ(m_page.undoStack().count(), 0);
}

INSTANTIATE_TEST_SUITE_P(OfEachType, UneditedValue,
                         testing::Values("5$a\r\nb\u00a0c", "5$a\u2028b\u2029c", "5$\ufdd0", "5$",
                                         "1$42", "2$255", "4$00ff", "Maria Lund", "1$three",
                                         "2$100000", "4$", "4$abc", "0$7", "3$x"));

TEST_F(RegistryEditTest, AnEditedTextKeepsItsNoBreakSpaces)
{
    store("A/v", QString::fromUtf16(u"5$b\u00a0c"));
    show();
    m_page.goTo("A", "v");
    QTest::keyClick(&table(), Qt::Key_F2);
    QTest::keyClick(lineField(), Qt::Key_End);
    QTest::keyClicks(lineField(), "!");
    EXPECT_FALSE(words().contains("Line ends")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v"), QString::fromUtf16(u"5$b\u00a0c!"));
}

TEST_F(RegistryEditTest, TellsThatAnEditedTextLosesItsLineEnds)
{
    store("A/v", "5$a\r\nb");
    show();
    m_page.goTo("A", "v");
    QTest::keyClick(&table(), Qt::Key_F2);
    type({}, "a\nc");
    EXPECT_TRUE(words().contains("Line ends become LF.")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "5$a\nc");
}

TEST_F(RegistryEditTest, AnUnreadableValueCanBeReplaced)
{
    store("A/v", "no tag");
    show();
    m_page.goTo("A", "v");
    QTest::keyClick(&table(), Qt::Key_F2);
    type({}, "good");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "5$good");
}

struct LongValue
{
    const char* tag;
    int length;
    bool edited;
};

class ALongValue : public RegistryEditTest, public testing::WithParamInterface<LongValue>
{
};

TEST_P(ALongValue, IsEditedUpToALimit)
{
    store("A/v", GetParam().tag + QString(GetParam().length, 'a'));
    show();
    m_page.goTo("A", "v");
    QTest::keyClick(&table(), Qt::Key_F2);
    EXPECT_EQ(QApplication::activeModalWidget() != nullptr, GetParam().edited);
    EXPECT_EQ(status().toStdString(),
              GetParam().edited ? "Values: 1. Sub-keys: 0."
                                : "\"v\" has more than 64 KiB of data: too much to edit here.");
}

// A character has four bytes, a byte two digits.
INSTANTIATE_TEST_SUITE_P(OfTextAndBytes, ALongValue,
                         testing::Values(LongValue{"5$", 16 * 1024, true},
                                         LongValue{"5$", 16 * 1024 + 1, false},
                                         LongValue{"4$", 2 * 64 * 1024, true},
                                         LongValue{"4$", 2 * 64 * 1024 + 2, false}));

TEST_F(RegistryEditTest, AnEntryOfTheRootItselfIsNotSet)
{
    store("loose", "5$x");
    show();
    m_page.goTo("", "loose");
    QTest::keyClick(&table(), Qt::Key_F2);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(status().contains("Nothing was changed")) << status().toStdString();
}

TEST_F(RegistryEditTest, DeletingAValueAsksAndNamesIt)
{
    store("A/gone", "1$1");
    store("A/kept", "1$1");
    show();
    m_page.goTo("A", "gone");
    pressDelete(table());
    EXPECT_TRUE(words().contains("HKEY_CURRENT_USER\\A")) << words().toStdString();
    EXPECT_TRUE(words().contains("gone")) << words().toStdString();
    reject();
    EXPECT_TRUE(holds("A/gone"));
    pressDelete(table());
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/kept"));
    EXPECT_EQ(status().toStdString(), "Deleted from HKEY_CURRENT_USER\\A: \"gone\".");
}

TEST_F(RegistryEditTest, DeletingAValueTellsOfTheKeyThatGoesAlong)
{
    store("A/twin", "1$1");
    store("A/twin/inside", "1$1");
    store("A/kept", "1$1");
    show();
    m_page.goTo("A", "twin");
    pressDelete(table());
    EXPECT_TRUE(words().contains("HKEY_CURRENT_USER\\A\\twin")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/kept"));
}

TEST_F(RegistryEditTest, DeletingAValueUnderTheRootKeepsTheRestOfItsKey)
{
    store("X/X", "1$1");
    store("X/other", "1$1");
    show();
    m_page.goTo("", "X");
    pressDelete(table());
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("X/other"));
}

TEST_F(RegistryEditTest, DeletesSeveralValuesAtOnce)
{
    for (int i = 0; i < 15; ++i)
        store(QString("A/v%1").arg(i), "1$1");
    store("B/v", "1$1");
    show();
    m_page.goTo("A");
    table().selectAll();
    pressDelete(table());
    EXPECT_TRUE(words().contains("and 5 more")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("B/v"));
    EXPECT_EQ(status().toStdString(), "Deleted from HKEY_CURRENT_USER\\A: 15 values.");
}

TEST_F(RegistryEditTest, DeletingAKeyCountsWhatGoes)
{
    store("A/B/v", "1$1");
    store("A/B/C/w", "1$1");
    store("A/B/C/x", "1$1");
    store("A/v", "1$1");
    show();
    m_page.goTo("A/B");
    pressDelete(tree());
    EXPECT_TRUE(words().contains("HKEY_CURRENT_USER\\A\\B")) << words().toStdString();
    EXPECT_TRUE(words().contains("go with it: 1. Values: 3.")) << words().toStdString();
    reject();
    EXPECT_TRUE(holds("A/B/C/x"));
    pressDelete(tree());
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/v"));
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A");
}

TEST_F(RegistryEditTest, DeletingAKeyTellsOfTheValueThatGoesAlong)
{
    store("A/twin", "1$1");
    store("A/twin/inside", "1$1");
    store("A/single/inside", "1$1");
    show();
    m_page.goTo("A/single");
    pressDelete(tree());
    EXPECT_FALSE(words().contains("The value")) << words().toStdString();
    reject();
    m_page.goTo("A/twin");
    pressDelete(tree());
    EXPECT_TRUE(words().contains("The value \"twin\" of HKEY_CURRENT_USER\\A goes with it."))
        << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/single/inside"));
}

TEST_F(RegistryEditTest, TheDeleteButtonGoesByTheKeyboard)
{
    store("A/kept", "1$1");
    store("A/v", "1$1");
    show();
    m_page.goTo("A", "v");
    QPushButton* button = nullptr;
    for (auto* each : m_page.findChildren<QPushButton*>()) {
        if (each->text() == "Dele&te")
            button = each;
    }
    ASSERT_TRUE(button);
    const auto press = [button](QWidget& view) {
        focus(view);
        button->setFocus();
        QTest::mouseClick(button, Qt::LeftButton);
    };
    press(tree());
    EXPECT_TRUE(words().contains("Delete the key HKEY_CURRENT_USER\\A?")) << words().toStdString();
    reject();
    press(table());
    EXPECT_TRUE(words().contains("Delete this value")) << words().toStdString();
    reject();
}

struct MarkRow
{
    const char* path;
    const char* name;
    const char* along; ///< the key that goes, or empty
};

class AMark : public RegistryEditTest, public testing::WithParamInterface<MarkRow>
{
};

TEST_P(AMark, IsDeletedWithItsKeyWhichIsTold)
{
    store("A/fresh", QVariant());
    store("A/v", "1$1");
    store("loose", QVariant());
    show();
    m_page.goTo(GetParam().path, GetParam().name);
    pressDelete(table());
    const QString along = GetParam().along;
    EXPECT_EQ(words().contains("everything in them:\n" + along), !along.isEmpty())
        << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(g_globalSettings->allKeys().size(), 2);
}

INSTANTIATE_TEST_SUITE_P(OfACreatedKey, AMark,
                         testing::Values(MarkRow{"A", "fresh", "HKEY_CURRENT_USER\\A\\fresh"},
                                         MarkRow{"A", "v", ""},
                                         MarkRow{"", "loose", "HKEY_CURRENT_USER\\loose"}));

TEST_F(RegistryEditTest, TheRootIsNotDeleted)
{
    store("A/v", "1$1");
    show();
    pressDelete(tree());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(status().contains("cannot be deleted")) << status().toStdString();
    EXPECT_TRUE(holds("A/v"));
}

} // namespace
