#include "host/HostLibraries.h"
#include "inspection/registry/StoreBackupJob.h"
#include "tests/inspection/registry/StoreFileFixture.h"
#include "tests/pages/registry/RegistryPageFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeView>

namespace {

const QByteArray header = "Windows Registry Editor Version 5.00\r\n\r\n";

class RegistryTransferTest : public RegistryPageFixture
{
protected:
    QString written(const QByteArray& content)
    {
        const QString path = m_folder.filePath("in.reg");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    QTemporaryDir m_folder;
};

TEST_F(RegistryTransferTest, ImportShowsFirstWhatItWillDoAndRefuse)
{
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"good\"=dword:1\r\n"
                                "\"large\"=hex(b):00,01,00,00,00,00,00,00\r\n"
                                "\"multi\"=hex(7):00,00\r\n"));
    EXPECT_TRUE(g_globalSettings->allKeys().isEmpty());
    EXPECT_EQ(dialog().findChild<QLabel*>()->text().toStdString(),
              "As written in the file: 2. Altered: 1. Refused: 1.");
    auto* rows = dialog().findChild<QTableView*>()->model();
    EXPECT_EQ(rows->rowCount(), 4);
    EXPECT_EQ(rows->index(3, 0).data().toString().toStdString(),
              "Refused: REG_MULTI_SZ cannot be stored.");
    dialog().findChild<QCheckBox*>()->setChecked(true);
    EXPECT_EQ(rows->rowCount(), 2);
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/good").toStdString(), "1$1");
    EXPECT_EQ(stored("A/large").toStdString(), "2$0");
    EXPECT_FALSE(holds("A/multi"));
    EXPECT_TRUE(status().contains("carried out: 3. Refused: 1.")) << status().toStdString();
}

TEST_F(RegistryTransferTest, ImportThatIsNotConfirmedWritesNothing)
{
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"v\"=dword:1\r\n"));
    reject();
    EXPECT_TRUE(g_globalSettings->allKeys().isEmpty());
}

TEST_F(RegistryTransferTest, ImportOfNothingButRefusalsCannotBeConfirmed)
{
    show();
    importFile(written(header + "garbage\r\n"));
    EXPECT_FALSE(accept());
    reject();
}

TEST_F(RegistryTransferTest, AFileThatIsNoRegistryFileIsRefusedWithItsReason)
{
    show();
    importFile(written("hello"));
    EXPECT_TRUE(status().contains("does not begin with")) << status().toStdString();
    importFile(m_folder.filePath("missing.reg"));
    EXPECT_TRUE(status().contains("could not be read")) << status().toStdString();
}

TEST_F(RegistryTransferTest, ImportShowsOldAndNewSideBySide)
{
    store("A/v", "5$old");
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"new\"\r\n\"w\"=dword:1\r\n"));
    auto* rows = dialog().findChild<QTableView*>()->model();
    EXPECT_EQ(rows->index(1, 0).data().toString().toStdString(), "Overwrites the value");
    EXPECT_EQ(rows->index(1, 3).data().toString().toStdString(), "REG_SZ old");
    EXPECT_EQ(rows->index(1, 4).data().toString().toStdString(), "REG_SZ new");
    EXPECT_EQ(rows->index(2, 3).data().toString().toStdString(), "");
    dialog().findChild<QCheckBox*>()->setChecked(true);
    EXPECT_EQ(rows->rowCount(), 1);
    reject();
}

TEST_F(RegistryTransferTest, ImportShowsWhatItDeletesAmongWhatToLookAt)
{
    store("A/v", "5$old");
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"v\"=-\r\n\"w\"=-\r\n"));
    auto* rows = dialog().findChild<QTableView*>()->model();
    dialog().findChild<QCheckBox*>()->setChecked(true);
    ASSERT_EQ(rows->rowCount(), 1);
    EXPECT_EQ(rows->index(0, 3).data().toString().toStdString(), "REG_SZ old");
    reject();
}

TEST_F(RegistryTransferTest, ImportBacksTheStoreUpFirst)
{
    store("A/v", "5$old");
    QCoreApplication::processEvents();
    const QByteArray before = StoreFile::bytes();
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"new\"\r\n"));
    const QString file = StoreBackupJob::nextFile();
    EXPECT_TRUE(dialog().findChild<QCheckBox*>("backup")->isChecked());
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v").toStdString(), "5$new");
    QFile copy(file);
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll().toStdString(), before.toStdString());
}

TEST_F(RegistryTransferTest, ABackupOfNoChangeIsRemoved)
{
    store("A/v", "5$same");
    QCoreApplication::processEvents();
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"same\"\r\n"));
    const QString file = StoreBackupJob::nextFile();
    ASSERT_TRUE(accept());
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(logged().contains("Removed the backup " + file));
}

TEST_F(RegistryTransferTest, ABackupOfADeletionThatFindsNothingIsRemoved)
{
    store("A/v", "5$old");
    QCoreApplication::processEvents();
    show();
    m_page.goTo("A");
    pressDelete(tree());
    const QString file = StoreBackupJob::nextFile();
    g_globalSettings->remove("A");
    ASSERT_TRUE(accept());
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(logged().contains("Removed the backup " + file));
}

TEST_F(RegistryTransferTest, ImportMakesNoBackupThatIsNotWanted)
{
    store("A/v", "5$old");
    QCoreApplication::processEvents();
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"new\"\r\n"));
    const QString file = StoreBackupJob::nextFile();
    dialog().findChild<QCheckBox*>("backup")->setChecked(false);
    ASSERT_TRUE(accept());
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(RegistryTransferTest, DeletionBacksTheStoreUpFirst)
{
    store("A/v", "5$old");
    QCoreApplication::processEvents();
    show();
    m_page.goTo("A");
    const QString file = StoreBackupJob::nextFile();
    pressDelete(tree());
    EXPECT_TRUE(dialog().findChild<QCheckBox*>("backup")->isChecked());
    ASSERT_TRUE(accept());
    EXPECT_FALSE(holds("A/v"));
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(RegistryTransferTest, AFileOfVersion4IsReadInTheCodePageThatIsChosen)
{
    show();
    importFile(written("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"\xB8\xDB\"\r\n"));
    EXPECT_TRUE(words().contains("no text in this one")) << words().toStdString();
    EXPECT_FALSE(accept()); // the system's code page is UTF-8
    auto* choice = dialog().findChild<QComboBox*>();
    QDialog* first = &dialog();
    const int chinese = choice->findText("Simplified Chinese (GB18030)");
    ASSERT_GT(chinese, 0);
    choice->setCurrentIndex(chinese);
    emit choice->activated(chinese);
    settle();
    EXPECT_NE(&dialog(), first);
    EXPECT_EQ(dialog().findChild<QComboBox*>()->currentIndex(), chinese);
    EXPECT_FALSE(words().contains("no text in this one")) << words().toStdString();
    ASSERT_TRUE(accept());
    EXPECT_EQ(stored("A/v"), "5$" + QString(QChar(0x6E2F)));
}

TEST_F(RegistryTransferTest, AFileOfVersion5AsksForNoCodePage)
{
    show();
    importFile(written(header + "[HKEY_CURRENT_USER\\A]\r\n"));
    EXPECT_FALSE(dialog().findChild<QComboBox*>());
    reject();
}

TEST_F(RegistryTransferTest, ALargeFileIsReadInManyTurnsOfTheEventLoop)
{
    const QByteArray comment = "; a line that the reader skips, to the end of the last of them\r\n";
    const QByteArray large = comment.repeated(40 * 1024 * 1024 / comment.size());
    const QString path = written(header + large + "[HKEY_CURRENT_USER\\A]\r\n");
    show();
    transfer().importFile(path);
    int turns = 0;
    for (; m_page.isBusy(); ++turns)
        QCoreApplication::processEvents();
    EXPECT_GE(turns, 3);
    EXPECT_TRUE(accept());
    EXPECT_TRUE(holds("A"));
}

TEST_F(RegistryTransferTest, AFolderIsNoRegistryFile)
{
    show();
    importFile(m_folder.path());
    EXPECT_TRUE(status().endsWith("was not imported: it is not a regular file."))
        << status().toStdString();
}

TEST_F(RegistryTransferTest, ExportWritesTheKeyAndCountsWhatItLeftOut)
{
    store("A/good", "1$1");
    store("A/bad", "none");
    store("B/other", "1$1");
    show();
    const QString path = m_folder.filePath("out.reg");
    exportKey("A", path, RegFileWriter::Encoding::Utf8);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("\"good\"=dword:00000001"));
    EXPECT_FALSE(text.contains("other"));
    EXPECT_TRUE(status().contains("Values: 1. Left out: 1")) << status().toStdString();
}

TEST_F(RegistryTransferTest, ExportSaysThatAFileCannotBeWritten)
{
    show();
    exportKey("", m_folder.filePath("no/out.reg"), RegFileWriter::Encoding::Utf16);
    EXPECT_TRUE(status().contains("could not be written")) << status().toStdString();
}

TEST_F(RegistryTransferTest, CancellingAnExportLeavesNoFile)
{
    for (int i = 0; i < 20000; ++i)
        store(QString("A/v%1").arg(i), "5$some text that takes its time to write");
    show();
    const QString path = m_folder.filePath("out.reg");
    transfer().exportKey("A", path, RegFileWriter::Encoding::Utf16);
    ASSERT_TRUE(m_page.isBusy());
    m_page.cancelJob();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(status().toStdString(), "The export was cancelled.");
}

} // namespace
