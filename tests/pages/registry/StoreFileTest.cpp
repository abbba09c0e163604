#include "pages/registry/RegistryValueModel.h"
#include "tests/inspection/registry/StoreFileFixture.h"
#include "tests/pages/FileDialogAnswer.h"
#include "tests/pages/WindowProbe.h"
#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeView>

namespace {

// What happens to the store and to its file while the page is open.
class StoreFileTest : public RegistryPageFixture
{
protected:
    void open()
    {
        store("A/v", "1$1");
        store("B/w", "5$text");
        QCoreApplication::processEvents();
        show();
        m_page.goTo("A");
    }

    testing::AssertionResult tells(const QString& words)
    {
        if (waitFor([&] { return status().contains(words); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << status().toStdString();
    }

    static QMessageBox& question() { return dynamic_cast<QMessageBox&>(dialog()); }

    static void press(const QString& caption)
    {
        for (QAbstractButton* button : question().buttons()) {
            if (button->text() == caption)
                return button->click();
        }
        FAIL() << "no button " << caption.toStdString();
    }

    int rows() const { return table().model()->rowCount(); }
};

TEST_F(StoreFileTest, AFileThatHasGoneIsTold)
{
    open();
    StoreFile::remove();
    EXPECT_TRUE(tells("is gone: another program has deleted or moved it"));
    EXPECT_EQ(rows(), 1); // what a host library still reads
}

TEST_F(StoreFileTest, AFileThatHasGoneBeforeThePageWasMadeIsAskedAboutToo)
{
    store("A/v", "1$1");
    QCoreApplication::processEvents();
    StoreFile::remove();
    RegistryPage page;
    page.show();
    ASSERT_TRUE(waitForActive(&page));
    page.findChild<QMenu*>()->actions().first()->trigger();
    EXPECT_TRUE(words().contains("is gone")) << words().toStdString();
    reject();
}

TEST_F(StoreFileTest, AFileThatWasReplacedBeforeThePageWasMadeIsTold)
{
    store("A/v", "1$1");
    QCoreApplication::processEvents();
    const WindowProbe probe("files");
    StoreFile::replace("[A]\nv=1$7\n");
    QTest::keyClick(probe.page().window(), Qt::Key_1, Qt::AltModifier);
    const auto* window = dynamic_cast<MainWindow*>(probe.page().window());
    ASSERT_TRUE(waitFor([&] { return dynamic_cast<RegistryPage*>(window->currentPage()); }));
    EXPECT_TRUE(waitFor([&] {
        return window->currentPage()->statusText().contains("has replaced the store's file");
    })) << window->currentPage()->statusText().toStdString();
}

TEST_F(StoreFileTest, AChangeOfAStoreWhoseFileHasGoneAsksAndCancelIsTheDefault)
{
    open();
    StoreFile::remove();
    chooseNew(NewDword);
    EXPECT_TRUE(words().contains("is gone")) << words().toStdString();
    EXPECT_EQ(question().defaultButton(), question().button(QMessageBox::Cancel));
    reject();
    QCoreApplication::processEvents();
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(QFile::exists(StoreFile::path()));
}

TEST_F(StoreFileTest, AChangeIsMadeWhenTheUserWantsIt)
{
    open();
    StoreFile::remove();
    chooseNew(NewDword);
    press("Write");
    type("n", "7");
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/n").toStdString(), "1$7");
}

TEST_F(StoreFileTest, WhatIsLostBySavingAStoreWhoseFileHasGoneIsTold)
{
    open();
    StoreFile::remove();
    ASSERT_TRUE(tells("is gone: another program has deleted or moved it"));
    store("A/w", "1$1");
    EXPECT_TRUE(tells("what the file lacked is gone"));
}

class UndoInAStoreThatIsGone : public StoreFileTest
{
protected:
    void SetUp() override
    {
        open();
        chooseNew(NewDword);
        type("n", "7");
        ASSERT_TRUE(accept());
        ASSERT_TRUE(waitFor([] { return StoreFile::bytes().contains("n=1$7"); }));
        QCoreApplication::processEvents(); // the page takes notice of the saving
        StoreFile::remove();
        m_page.undoStack().undo();
        ASSERT_TRUE(words().contains("is gone")) << words().toStdString();
    }

    bool canUndoAgain()
    {
        return waitFor(
            [this] { return m_page.undoStack().canUndo() && !m_page.undoStack().canRedo(); });
    }
};

TEST_F(UndoInAStoreThatIsGone, IsDroppedByCancelAndCanBeAskedForAgain)
{
    reject();
    EXPECT_TRUE(canUndoAgain());
    EXPECT_EQ(stored("A/n").toStdString(), "1$7");
    m_page.undoStack().undo();
    EXPECT_TRUE(words().contains("is gone")) << words().toStdString();
    reject();
    EXPECT_TRUE(canUndoAgain());
}

TEST_F(UndoInAStoreThatIsGone, IsDroppedWithTheExportThatWasToComeFirst)
{
    press("Export first...");
    reject();
    EXPECT_TRUE(canUndoAgain());
    EXPECT_EQ(stored("A/n").toStdString(), "1$7");
}

TEST_F(UndoInAStoreThatIsGone, IsMadeWhenTheUserWantsIt)
{
    press("Write");
    settle();
    EXPECT_FALSE(holds("A/n"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_page.undoStack().canRedo());
}

TEST_F(StoreFileTest, EveryActionThatChangesTheStoreAsks)
{
    open();
    m_page.goTo("A", "v");
    StoreFile::remove();
    const std::function<void()> actions[] = {[this] { chooseNew(NewKey); },
                                             [this] { chooseNew(NewString); },
                                             [this] {
                                                 focus(table());
                                                 QTest::keyClick(&table(), Qt::Key_F2);
                                             },
                                             [this] { pressDelete(table()); },
                                             [this] { pressDelete(tree()); },
                                             [this] {
                                                 for (QAction* action : tree().actions()) {
                                                     if (action->text() == "Import...")
                                                         action->trigger();
                                                 }
                                             }};
    for (const auto& action : actions) {
        action();
        EXPECT_TRUE(words().contains("is gone")) << words().toStdString();
        reject();
        ASSERT_TRUE(waitFor([] { return !QApplication::activeModalWidget(); }));
    }
}

TEST_F(StoreFileTest, AFileThatGoesWhileADialogIsOpenIsAskedAboutToo)
{
    open();
    chooseNew(NewDword);
    type("n", "7");
    StoreFile::remove();
    ASSERT_TRUE(accept());
    EXPECT_TRUE(words().contains("is gone")) << words().toStdString();
    EXPECT_FALSE(holds("A/n"));
    reject();
    // What was typed comes back.
    ASSERT_TRUE(waitFor([] {
        auto* back = QApplication::activeModalWidget();
        return back && back->findChild<QLineEdit*>() && !dynamic_cast<QMessageBox*>(back);
    }));
    EXPECT_EQ(dialog().findChild<QLineEdit*>()->text().toStdString(), "n");
    ASSERT_TRUE(accept());
    press("Write");
    EXPECT_EQ(stored("A/n").toStdString(), "1$7");
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(StoreFileTest, NobodyIsAskedTwiceAboutTheSame)
{
    open();
    StoreFile::remove();
    pressDelete(tree());
    press("Write");
    EXPECT_TRUE(words().contains("Delete the key")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(holds("A/v"));
}

TEST_F(StoreFileTest, ADeletionIsDroppedWhenTheFileGoesWhileItIsAsked)
{
    open();
    pressDelete(tree());
    StoreFile::remove();
    ASSERT_TRUE(accept());
    EXPECT_TRUE(words().contains("is gone")) << words().toStdString();
    reject();
    QCoreApplication::processEvents();
    EXPECT_TRUE(holds("A/v"));
}

TEST_F(StoreFileTest, AnExportComesFirstWhereTheUserWantsIt)
{
    QTemporaryDir folder;
    open();
    StoreFile::remove();
    chooseNew(NewDword);
    const FileDialogAnswer answer(folder.filePath("kept.reg"), 1);
    press("Export first...");
    ASSERT_TRUE(waitFor([&folder] { return QFile::exists(folder.filePath("kept.reg")); }));
    settle();
    EXPECT_TRUE(words().contains("is gone")) << words().toStdString(); // asked again
    reject();
    QFile kept(folder.filePath("kept.reg"));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_TRUE(kept.readAll().contains("\"v\"=dword:00000001"));
}

TEST_F(StoreFileTest, AReplacedFileIsToldAndShownOnceTheStoreHasReadIt)
{
    open();
    StoreFile::replace("[A]\nv=1$7\nother=1$8\n");
    EXPECT_TRUE(tells("Another program has replaced the store's file"));
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(cell(0, RegistryValueModel::Data).toStdString(), "1 (0x00000001)");
    g_globalSettings->sync();
    EXPECT_TRUE(tells("is in step with its file"));
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(cell(1, RegistryValueModel::Data).toStdString(), "7 (0x00000007)");
}

TEST_F(StoreFileTest, AFileThatTheHostLibrarySavesIsNoCauseForQuestions)
{
    open();
    store("A/w", "1$1");
    g_globalSettings->sync();
    chooseNew(NewDword);
    type("n", "7");
    ASSERT_TRUE(accept());
    EXPECT_EQ(status().toStdString(), "Set \"n\" in HKEY_CURRENT_USER\\A.");
}

TEST_F(StoreFileTest, WhatAHostLibraryWritesIsShownByItself)
{
    open();
    m_page.setStatus("Told before.");
    store("A/w", "1$2");
    store("C/x", "1$2");
    EXPECT_TRUE(waitFor([this] { return rows() == 2; }));
    EXPECT_EQ(tree().model()->rowCount(tree().model()->index(0, 0)), 3);
    EXPECT_EQ(status().toStdString(), "Told before.");
}

TEST_F(StoreFileTest, TheCountOfWhatIsShownFollows)
{
    open();
    EXPECT_EQ(status().toStdString(), "Values: 1. Sub-keys: 0.");
    store("A/w", "1$2");
    EXPECT_TRUE(tells("Values: 2. Sub-keys: 0."));
}

TEST_F(StoreFileTest, AnEmptyRegistryDoesNotStayOne)
{
    show();
    EXPECT_EQ(tree().model()->rowCount(tree().model()->index(0, 0)), 0);
    store("C/x", "1$2");
    EXPECT_TRUE(
        waitFor([this] { return tree().model()->rowCount(tree().model()->index(0, 0)) == 1; }));
}

TEST_F(StoreFileTest, WhatIsSelectedTypedAndScrolledToStaysWhenOthersWrite)
{
    for (int i = 0; i < 200; ++i)
        store(QString("A/n%1").arg(i, 3, 10, QChar('0')), "1$1");
    open();
    m_page.goTo("A", "n100");
    table().selectionModel()->select(table().model()->index(120, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const int scrolled = table().verticalScrollBar()->maximum() / 2;
    table().verticalScrollBar()->setValue(scrolled);
    auto* line = m_page.findChild<QLineEdit*>("address");
    line->setFocus();
    QTest::keyClicks(line, "typed");
    const QString typed = line->text();
    store("A/zz", "1$2");
    ASSERT_TRUE(waitFor([this] { return rows() == 202; }));
    EXPECT_EQ(table().selectionModel()->selectedRows().size(), 2);
    EXPECT_EQ(cell(table().currentIndex().row(), 0).toStdString(), "n100");
    EXPECT_EQ(table().verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(line->text().toStdString(), typed.toStdString());
    EXPECT_TRUE(line->hasFocus());
}

TEST_F(StoreFileTest, NothingIsReadAnewWithoutASign)
{
    open();
    int resets = 0;
    QObject::connect(table().model(), &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    const auto isReset = [this, &resets] {
        const int before = resets;
        m_page.lookForChanges();
        QCoreApplication::processEvents();
        return resets != before;
    };
    ASSERT_TRUE(waitFor([&isReset] { return !isReset(); })); // the test's own changes are shown
    for (int looks = 0; looks < 5; ++looks)
        EXPECT_FALSE(isReset());
    store("A/w", "1$2");
    EXPECT_TRUE(waitFor(isReset));
    EXPECT_FALSE(isReset());
}

} // namespace
