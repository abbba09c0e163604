#include "host/HostLibraries.h"
#include "pages/registry/RegistryValueModel.h"
#include "tests/pages/SmallFont.h"
#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/MessageGuard.h"
#include "tests/support/WaitFor.h"
#include "tests/window/EndlessJob.h"
#include "window/PathEdit.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

class RegistryPageTest : public RegistryPageFixture
{
protected:
    void enterAddress(const QString& text)
    {
        auto* line = m_page.findChild<QLineEdit*>("address");
        line->setText(text);
        QTest::keyClick(line, Qt::Key_Return);
    }
};

TEST_F(RegistryPageTest, OpensOnTheRootWithTheKeyboardInTheTree)
{
    store("A/v", "1$1");
    show();
    m_page.setFocus();
    EXPECT_TRUE(tree().hasFocus());
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER");
    EXPECT_TRUE(tree().isExpanded(tree().currentIndex()));
    EXPECT_EQ(status().toStdString(), "Values: 0. Sub-keys: 1.");
}

TEST_F(RegistryPageTest, FollowsTheTreeByKeyboard)
{
    store("A/B/v", "5$deep");
    show();
    tree().setFocus();
    for (const auto key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down})
        QTest::keyClick(&tree(), key);
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\B");
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "deep");
}

TEST_F(RegistryPageTest, GoesToATypedPathUnderAnyRoot)
{
    store("A/B/v", "5$deep");
    show();
    enterAddress("hkey_local_machine\\A\\B");
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\B");
    EXPECT_TRUE(tree().hasFocus());
    enterAddress("HKLM\\missing");
    EXPECT_EQ(status().toStdString(), "There is no key HKEY_CURRENT_USER\\missing.");
    enterAddress("HKEY_LOCAL_MACHINE"); // where the first failure has left the selection
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER");
    EXPECT_EQ(status().toStdString(), "Values: 0. Sub-keys: 1.");
}

TEST_F(RegistryPageTest, GoesToAPathThatEndsWithABlank)
{
    store("trail /v", "1$1");
    store("short/v", "1$1");
    show();
    enterAddress("HKEY_CURRENT_USER\\trail ");
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\trail ");
    EXPECT_EQ(status().toStdString(), "Values: 1. Sub-keys: 0.");
    enterAddress(" HKEY_CURRENT_USER\\short ");
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\short");
}

TEST_F(RegistryPageTest, GoesToATypedPathUnderAnAbbreviatedRoot)
{
    store("A/B/v", "5$deep");
    store("HKCR/A/v", "1$1");
    show();
    for (const char* root : {"HKCU", "HKLM", "hkcr", "HKU"}) {
        enterAddress(QString(" %1\\A\\B ").arg(root));
        EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\B") << root;
        enterAddress(root);
        EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER") << root;
    }
    enterAddress("HKCR\\A"); // a key of that name comes first
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\HKCR\\A");
}

TEST_F(RegistryPageTest, SaysThatATypedPathLeadsNowhere)
{
    store("A/v", "1$1");
    show();
    enterAddress("HKEY_CURRENT_USER\\A\\missing");
    EXPECT_EQ(status().toStdString(), "There is no key HKEY_CURRENT_USER\\A\\missing.");
    enterAddress("HKEY_CURRENT_CONFIG\\A");
    EXPECT_TRUE(status().contains("none of the four root keys")) << status().toStdString();
}

TEST_F(RegistryPageTest, MarksWhatAHostLibraryCannotReadAndSaysWhy)
{
    store("A/bad", "3$1");
    show();
    m_page.goTo("A", "bad");
    EXPECT_EQ(cell(0, RegistryValueModel::Type).toStdString(), "unreadable");
    EXPECT_EQ(cell(0, RegistryValueModel::Raw).toStdString(), "3$1");
    EXPECT_EQ(status().toStdString(), "bad: Tag 3 is refused");
}

TEST_F(RegistryPageTest, RefreshReadsWhatTheHostLibraryChanged)
{
    store("A/v", "5$before");
    show();
    m_page.goTo("A", "v");
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "before");
    store("A/v", "5$after");
    store("A/u", "1$1");
    store("A/sub/v", "1$1");
    m_page.refresh();
    EXPECT_EQ(table().model()->rowCount(), 2);
    EXPECT_EQ(cell(1, RegistryValueModel::Data).toStdString(), "after");
    EXPECT_EQ(table().currentIndex().row(), 1); // the same value
    EXPECT_EQ(status().toStdString(), "Values: 2. Sub-keys: 1.");
}

TEST_F(RegistryPageTest, CopiesThePathAsWindowsWritesIt)
{
    store("A/B/v", "1$1");
    show();
    m_page.goTo("A/B");
    tree().setFocus();
    QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "HKEY_CURRENT_USER\\A\\B");
}

TEST_F(RegistryPageTest, CopiesTheWholeData)
{
    const QString text = "one\r\n" + QString(700, 'x');
    const QString bytes = QString("ab ").repeated(79) + "ab";
    const struct
    {
        QString entry;
        QString copied;
    } rows[] = {{"5$" + text, text},
                {"1$42", "42"},
                {"2$255", "255"},
                {"4$" + QString(bytes).remove(' '), bytes},
                {"3$x", "Tag 3 is refused"}};
    show();
    for (const auto& row : rows) {
        store("A/v", row.entry);
        m_page.refresh();
        m_page.goTo("A", "v");
        QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyRelease(&table(), Qt::Key_Control); // held, it keeps rows from being selected
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), row.copied.toStdString());
    }
}

TEST_F(RegistryPageTest, FindsAndGoesToAHit)
{
    store("A/B/colour", "5$Blue");
    store("A/other", "1$1");
    show();
    m_page.find();
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    QTest::keyClicks(field, "blue");
    QTest::keyClick(field, Qt::Key_Return);
    settle();
    EXPECT_EQ(status().toStdString(), "Found: 1.");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\B");
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(cell(table().currentIndex().row(), 0).toStdString(), "colour");
}

TEST_F(RegistryPageTest, GoesFromHitToHitByKeys)
{
    store("A/blue", "1$1");
    store("B/blue", "1$1");
    store("C/blue", "1$1");
    show();
    QTest::keyClick(&tree(), Qt::Key_F3); // nothing has been found yet
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    QTest::keyClicks(field, "blue");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(becomes([this] { return status(); }, QStringLiteral("Found: 3.")));
    const struct
    {
        Qt::KeyboardModifier modifier;
        const char* key;
    } rows[] = {{Qt::NoModifier, "A"}, {Qt::NoModifier, "B"},    {Qt::NoModifier, "C"},
                {Qt::NoModifier, "A"}, {Qt::ShiftModifier, "C"}, {Qt::ShiftModifier, "B"}};
    for (const auto& row : rows) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3, row.modifier);
        EXPECT_EQ(address().toStdString(), std::string("HKEY_CURRENT_USER\\") + row.key);
        EXPECT_EQ(cell(table().currentIndex().row(), 0).toStdString(), "blue");
    }
    EXPECT_EQ(status().toStdString(), "Found place 2 of 3 (F3: next, Shift+F3: previous).");
}

TEST_F(RegistryPageTest, SearchesAnewByF3WhereSomethingElseIsAsked)
{
    store("A/blue", "1$1");
    store("A/red", "1$1");
    show();
    m_page.find();
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    const auto ask = [field](const char* text, Qt::Key key) {
        field->setFocus();
        field->setText(text);
        QTest::keyClick(field, key);
    };
    ask("blue", Qt::Key_Return);
    settle();
    ask("red", Qt::Key_F3);
    settle();
    auto* found = m_page.findChild<QTableView*>("found")->model();
    ASSERT_EQ(found->rowCount(), 1);
    EXPECT_EQ(found->index(0, 1).data().toString().toStdString(), "red");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    EXPECT_EQ(cell(table().currentIndex().row(), 0).toStdString(), "red");
}

TEST_F(RegistryPageTest, KeepsWhatIsBeingTypedWhileTheKeyIsTheSame)
{
    store("A/v", "1$1");
    store("B/v", "1$1");
    show();
    m_page.goTo("A");
    auto* line = m_page.findChild<QLineEdit*>("address");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "typed");
    m_page.refresh();
    EXPECT_EQ(line->text().toStdString(), "typed");
    line->setText("HKCU\\A\\Nowhere");
    QTest::keyClick(line, Qt::Key_Return);
    m_page.refresh();
    EXPECT_EQ(line->text().toStdString(), "HKCU\\A\\Nowhere");
    m_page.goTo("B");
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\B");
}

TEST_F(RegistryPageTest, CopiesTheWholeDataOfSeveralValuesAsATable)
{
    const QString text(700, 'x');
    store("A/u", "5$" + text);
    store("A/v", "5$one\ttwo\r\n\"three\"");
    show();
    m_page.goTo("A", "u");
    table().selectAll();
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "u\tREG_SZ\t" + text.toStdString() + "\nv\tREG_SZ\t\"one\ttwo\r\n\"\"three\"\"\"");
}

TEST_F(RegistryPageTest, KeepsWhatIsTypedWhereItLeadsNowhere)
{
    store("A/v", "1$1");
    show();
    for (const char* typed : {"HKLM\\A\\missing", "HKEY_CURRENT_CONFIG\\A"}) {
        enterAddress(typed);
        EXPECT_EQ(address().toStdString(), typed);
    }
    m_page.goTo("A"); // where the first one has led
    EXPECT_EQ(tree().currentIndex().data().toString().toStdString(), "A");
}

TEST_F(RegistryPageTest, OffersTheKeyThatDiffersInCaseOnly)
{
    store("Software/Maker 06/v", "1$1");
    show();
    auto* jump = m_page.findChild<QPushButton*>("jump");
    EXPECT_FALSE(jump->isVisible());
    enterAddress("hklm\\software\\maker 06");
    EXPECT_EQ(status().toStdString(), "There is no key HKEY_CURRENT_USER\\software\\maker 06.");
    ASSERT_TRUE(waitFor([jump] { return jump->isVisible(); }));
    QStringList labels;
    for (const QLabel* label : m_page.findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_TRUE(
        labels.contains("Names are case-sensitive here: HKEY_CURRENT_USER\\Software\\Maker 06?"))
        << labels.join('|').toStdString();
    jump->click();
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\Software\\Maker 06");
    EXPECT_FALSE(jump->isVisible());
}

TEST_F(RegistryPageTest, OffersTheKeyThatIsMistyped)
{
    store("Software/Maker 06/v", "1$1");
    show();
    enterAddress("HKLM\\Sofware\\Maker 06");
    auto* jump = m_page.findChild<QPushButton*>("jump");
    ASSERT_TRUE(waitFor([jump] { return jump->isVisible(); }));
    jump->click();
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\Software\\Maker 06");
}

TEST_F(RegistryPageTest, GoesToAPathAsItIsCopiedOnWindows)
{
    store("A/B/v", "1$1");
    store("Computer/x/v", "1$1");
    show();
    for (const char* typed : {"Computer\\HKEY_LOCAL_MACHINE\\A\\B", "computer\\hklm\\A\\B",
                              "[HKEY_CURRENT_USER\\A\\B]", " \"HKCU\\A\\B\""}) {
        enterAddress(typed);
        EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\A\\B");
        m_page.goTo("");
    }
    enterAddress("Computer\\x"); // a key of that name comes first
    EXPECT_EQ(address().toStdString(), "HKEY_CURRENT_USER\\Computer\\x");
}

TEST_F(RegistryPageTest, CompletesTheKeyThatIsTyped)
{
    store("Software/Maker/v", "1$1");
    store("Software/Model/v", "1$1");
    const ExpectMessage list("This plugin does not support"); // it is a window of its own
    show();
    auto* line = m_page.findChild<QLineEdit*>("address");
    line->setFocus();
    line->clear();
    QTest::keyClicks(line, "hkey_l");
    auto* offered = line->completer()->completionModel();
    ASSERT_TRUE(becomes([offered] { return offered->rowCount(); }, 1));
    EXPECT_EQ(offered->index(0, 0).data().toString().toStdString(), "HKEY_LOCAL_MACHINE");
    line->clear();
    QTest::keyClicks(line, "HKLM\\Software\\m");
    ASSERT_TRUE(becomes([offered] { return offered->rowCount(); }, 2));
    EXPECT_EQ(offered->index(0, 0).data().toString().toStdString(), "HKLM\\Software\\Maker");
    QWidget* popup = line->completer()->popup();
    EXPECT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    EXPECT_TRUE(waitFor([this] { return address() == "HKEY_CURRENT_USER\\Software\\Maker"; }));
    EXPECT_FALSE(popup->isVisible());
}

TEST_F(RegistryPageTest, ShowsBothEndsOfAPathThatDoesNotFit)
{
    const QString path = QString("A/B").replace("B", QString(200, 'b')) + "/the end";
    store(path + "/v", "1$1");
    show();
    m_page.goTo(path);
    auto* line = m_page.findChild<PathEdit*>("address");
    EXPECT_TRUE(line->shown().startsWith("HKEY_CURRENT_USER")) << line->shown().toStdString();
    EXPECT_TRUE(line->shown().endsWith("the end"));
    EXPECT_NE(line->shown(), line->text());
    EXPECT_TRUE(line->toolTip().contains("the end"));
    m_page.goTo("A");
    EXPECT_EQ(line->shown(), line->text());
    EXPECT_EQ(tree().textElideMode(), Qt::ElideMiddle);
    EXPECT_EQ(m_page.findChild<QTableView*>("found")->textElideMode(), Qt::ElideMiddle);
}

TEST_F(RegistryPageTest, ShowsTheNameOfAKeyAtAnyDepth)
{
    const QString path = "a/b/c/d/e/f/g/h/i/j/deep key";
    store(path + "/v", "1$1");
    show();
    m_page.goTo(path);
    QTest::qWait(0);
    const QRect item = tree().visualRect(tree().currentIndex());
    const int name = tree().fontMetrics().averageCharWidth() * 12;
    EXPECT_GE(item.left(), 0);
    EXPECT_GE(tree().viewport()->width() - item.left(), name);
    EXPECT_GE(item.width(), name);
    m_page.goTo("a");
    EXPECT_GE(tree().visualRect(tree().currentIndex()).left(), 0);
}

TEST_F(RegistryPageTest, IsNotTooWideForTheSmallestWindow)
{
    const SmallFont font;
    RegistryPage page;
    page.find();
    EXPECT_LE(page.minimumSizeHint().width(), 640);
    EXPECT_LE(page.minimumSizeHint().height(), 520);
}

TEST_F(RegistryPageTest, SaysWhatASearchLacks)
{
    show();
    m_page.find();
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(status().toStdString(), "Type the text to find first.");
    field->setText("x");
    for (QCheckBox* box : m_page.findChildren<QCheckBox*>())
        box->setChecked(false);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(status().toStdString(),
              "Choose where to search: in keys, in names, in values, or in several.");
}

TEST_F(RegistryPageTest, IsNotReadAnewWhileAJobRuns)
{
    store("A/v", "1$1");
    show();
    m_page.goTo("A");
    m_page.startJob("Endless", std::make_unique<EndlessJob>(),
                    [](EndlessJob& /*job*/, bool /*complete*/) {});
    store("A/w", "1$1");
    m_page.entered();
    EXPECT_EQ(table().model()->rowCount(), 1);
    m_page.cancelJob();
    m_page.entered();
    EXPECT_EQ(table().model()->rowCount(), 2);
}

TEST_F(RegistryPageTest, GivesEachButtonAMnemonicOfItsOwn)
{
    show();
    m_page.find();
    QStringList mnemonics;
    for (const auto* button : m_page.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty())
            continue;
        const QString mnemonic = QKeySequence::mnemonic(button->text()).toString();
        EXPECT_FALSE(mnemonic.isEmpty()) << button->text().toStdString();
        EXPECT_FALSE(mnemonics.contains(mnemonic)) << button->text().toStdString();
        mnemonics.append(mnemonic);
    }
    EXPECT_EQ(mnemonics.size(), 14);
}

TEST_F(RegistryPageTest, EscapeHidesTheSearch)
{
    show();
    m_page.find();
    QWidget* field = QApplication::focusWidget();
    EXPECT_TRUE(field->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(field->isVisible());
    EXPECT_TRUE(tree().hasFocus());
}

TEST_F(RegistryPageTest, GivesEveryControlAnAccessibleName)
{
    show();
    m_page.find();
    for (const QWidget* widget : m_page.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus ||
            qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLabel*>(widget))
            continue; // their texts are read out
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    }
}

TEST_F(RegistryPageTest, SaysThatThereIsNoStore)
{
    QSettings* settings = std::exchange(g_globalSettings, nullptr);
    {
        RegistryPage page;
        EXPECT_TRUE(page.statusText().contains("no settings store"))
            << page.statusText().toStdString();
        page.find();
        page.refresh();
        page.goTo("A/B");
        EXPECT_EQ(page.findChild<QTreeView*>()->model()->rowCount(), 1);
    }
    g_globalSettings = settings;
}

} // namespace
