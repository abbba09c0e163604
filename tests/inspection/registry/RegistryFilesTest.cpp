#include "host/HostLibraries.h"
#include "inspection/registry/RegistryApplyJob.h"
#include "inspection/registry/RegistryExportJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistryRemovalJob.h"
#include "inspection/registry/StoreSaveBlocker.h"
#include "regfile/RegFileDecoder.h"
#include "regfile/RegFileText.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

namespace {

class RegistryFiles : public RegistryTest
{
protected:
    QString file() const { return m_folder.filePath("x.reg"); }

    QString exported(const QString& path, RegFileWriter::Encoding encoding)
    {
        RegistryExportJob task(path, file(), encoding);
        while (task.step()) {
        }
        m_leftOut = task.leftOut();
        EXPECT_TRUE(task.commit()) << task.error().toStdString();
        QFile input(file());
        EXPECT_TRUE(input.open(QIODevice::ReadOnly));
        RegFileDecoder decoder;
        decoder.add(input.readAll());
        EXPECT_TRUE(decoder.isValid());
        return decoder.takeText();
    }

    void importFile() const
    {
        QFile input(file());
        ASSERT_TRUE(input.open(QIODevice::ReadOnly));
        RegistryImportJob task(input.readAll());
        while (task.step()) {
        }
        EXPECT_EQ(task.plan()->count(ImportPlan::Outcome::Refused), 0);
        RegistryApplyJob apply(task.plan());
        while (apply.step()) {
        }
    }

    static std::shared_ptr<const ImportPlan> read(const QString& body)
    {
        RegistryImportJob task((QString(regFileHeader) + "\n" + body).toUtf8());
        while (task.step()) {
        }
        return task.plan();
    }

    static void import(const QString& body)
    {
        RegistryApplyJob task(read(body));
        while (task.step()) {
        }
        EXPECT_EQ(task.failed(), 0);
    }

    QTemporaryDir m_folder;
    int m_leftOut = 0;
};

TEST_F(RegistryFiles, ExportWritesWhatAHostLibraryReads)
{
    store("A/text", "5$a\"b");
    store("A/number", "1$42");
    store("A/large", "2$255");
    store("A/bytes", "4$00ff");
    store("A/B/deep", "1$1");
    store("A/new", QVariant());
    const QString text = exported("A", RegFileWriter::Encoding::Utf8);
    EXPECT_EQ(text.toStdString(), "Windows Registry Editor Version 5.00\r\n"
                                  "\r\n[HKEY_CURRENT_USER\\A]\r\n"
                                  "\"bytes\"=hex:00,ff\r\n"
                                  "\"large\"=hex(b):ff,00,00,00,00,00,00,00\r\n"
                                  "\"number\"=dword:0000002a\r\n"
                                  "\"text\"=\"a\\\"b\"\r\n"
                                  "\r\n[HKEY_CURRENT_USER\\A\\B]\r\n"
                                  "\"deep\"=dword:00000001\r\n"
                                  "\r\n[HKEY_CURRENT_USER\\A\\new]\r\n");
    EXPECT_EQ(m_leftOut, 0);
}

TEST_F(RegistryFiles, ExportLeavesOutWhatNoHostLibraryReads)
{
    store("A/broken", "no tag");
    store("A/refused", "3$x");
    store("A/good", "1$1");
    const QString text = exported("A", RegFileWriter::Encoding::Utf16);
    EXPECT_EQ(m_leftOut, 2);
    EXPECT_TRUE(text.contains("; left out: \"broken\": No type tag")) << text.toStdString();
    EXPECT_TRUE(text.contains("; left out: \"refused\": Tag 3")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"good\"=dword:00000001"));
}

TEST_F(RegistryFiles, ExportTellsTheServicesReasonForATagThatIsNoNumber)
{
    store("A/a", "x$1");
    store("A/b", "1x$5");
    store("A/c", "4294967297$7");
    const QString text = exported("A", RegFileWriter::Encoding::Utf8);
    EXPECT_EQ(m_leftOut, 3);
    const QString refused = "; left out: \"%1\": Tag \"%2\" is refused";
    EXPECT_TRUE(text.contains(refused.arg("a", "x"))) << text.toStdString();
    EXPECT_TRUE(text.contains(refused.arg("b", "1x"))) << text.toStdString();
    EXPECT_TRUE(text.contains(refused.arg("c", "4294967297"))) << text.toStdString();
}

TEST_F(RegistryFiles, ExportLeavesOutKeysThatTheFormatCannotName)
{
    const struct
    {
        const char* key;
        const char* why;
    } rows[] = {{"x\ny", "no line ends in names of keys"},
                {"x\r\n[HKEY_CURRENT_USER\\Evil]\r\n", "no line ends in names of keys"},
                {"A] ; b", "taken for a comment"},
                {"a\\b", "\"\\\" in it separates keys"}};
    for (const auto& row : rows) {
        g_globalSettings->clear();
        store(QString("K/%1/v").arg(row.key), "1$1");
        store(QString("K/%1/below/v").arg(row.key), "1$1");
        store("K/good/v", "1$1");
        const QString text = exported("K", RegFileWriter::Encoding::Utf8);
        EXPECT_EQ(m_leftOut, 2) << row.key;
        EXPECT_EQ(text.count(row.why), 2) << text.toStdString();
        EXPECT_EQ(text.count("\"v\"=dword"), 1) << text.toStdString();
        g_globalSettings->clear();
        importFile();
        EXPECT_EQ(g_globalSettings->allKeys(), QStringList({"K", "K/good", "K/good/v"})) << row.key;
    }
}

TEST_F(RegistryFiles, ExportLeavesAnOlderFileAloneUntilItIsComplete)
{
    QFile old(file());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    {
        RegistryExportJob task("", file(), RegFileWriter::Encoding::Utf8);
        EXPECT_TRUE(task.step());
    }
    EXPECT_EQ(QFileInfo(file()).size(), 3);
}

TEST_F(RegistryFiles, ExportTellsOfAFileThatCannotBeWritten)
{
    RegistryExportJob task("", m_folder.filePath("missing/x.reg"), RegFileWriter::Encoding::Utf8);
    EXPECT_FALSE(task.step());
    EXPECT_FALSE(task.commit());
    EXPECT_FALSE(task.error().isEmpty());
}

TEST_F(RegistryFiles, ImportBringsBackWhatExportWrote)
{
    const QMap<QString, QString> entries = {
        {"A/text", "5$a\r\n\"b\""}, {"A/empty", "5$"},       {"A/number", "1$42"},
        {"A/large", "2$255"},       {"A/B/bytes", "4$00ff"}, {"X/X", "5$under a root"},
        {"A/trail /v", "1$1"},      {"A/D\t/v", "1$2"},      {" lead/ v ", "1$3"},
        {"A/[x; y]/v", "1$4"},      {"A/x]y/v", "1$5"},      {"last ] /v", "1$6"}};
    for (const QString& path : entries.keys())
        store(path, entries.value(path));
    for (const auto encoding : {RegFileWriter::Encoding::Utf8, RegFileWriter::Encoding::Utf16}) {
        exported("", encoding);
        g_globalSettings->clear();
        importFile();
        for (const QString& path : entries.keys())
            EXPECT_EQ(stored(path).toStdString(), entries.value(path).toStdString());
    }
}

TEST_F(RegistryFiles, ImportWritesThroughTheService)
{
    import("[HKEY_LOCAL_MACHINE\\A\\B]\n\"q\"=hex(b):ff,01,00,00,00,00,00,00\n"
           "\"d\"=hex(4):78,56\n[HKEY_USERS]\n\"root\"=\"text\"\n");
    EXPECT_EQ(stored("A/B/q").toStdString(), "2$255");
    EXPECT_EQ(stored("A/B/d").toStdString(), "1$120");
    EXPECT_EQ(stored("root/root").toStdString(), "5$text");
}

TEST_F(RegistryFiles, ImportCreatesAKeyOnlyWhereThereIsNone)
{
    store("A/v", "1$1");
    import("[HKEY_CURRENT_USER\\A]\n[HKEY_CURRENT_USER\\N]\n");
    EXPECT_FALSE(holds("A"));
    EXPECT_TRUE(holds("N"));
}

TEST_F(RegistryFiles, ImportDeletesValuesAndKeys)
{
    store("A/gone", "1$1");
    store("A/kept", "1$1");
    store("B/C/v", "1$1");
    store("B/v", "1$1");
    import("[HKEY_CURRENT_USER\\A]\n\"gone\"=-\n\"never\"=-\n[-HKEY_CURRENT_USER\\B]\n");
    EXPECT_FALSE(holds("A/gone"));
    EXPECT_TRUE(holds("A/kept"));
    EXPECT_FALSE(holds("B/C/v"));
    EXPECT_FALSE(holds("B/v"));
}

TEST_F(RegistryFiles, ImportDeletesALargeKeyInManySteps)
{
    constexpr int count = 1000;
    for (int i = 0; i < count; ++i)
        store(QString("A/B%1/v%2").arg(i % 7).arg(i), "1$1");
    store("A", "1$1");
    store("A/created", QVariant());
    store("AB/v", "1$1");
    RegistryApplyJob task(read("[-HKEY_CURRENT_USER\\A]\n"));
    int steps = 0;
    while (task.applied() == 0) {
        ASSERT_TRUE(task.step());
        ++steps;
    }
    EXPECT_GT(steps, count);
    EXPECT_FALSE(task.step());
    EXPECT_EQ(task.failed(), 0);
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("AB/v"));
}

TEST_F(RegistryFiles, ImportSkipsWhatIsRefused)
{
    import("[HKEY_CURRENT_USER\\A]\n\"multi\"=hex(7):61,00\n@=\"d\"\nnonsense\n\"good\"=dword:1\n");
    g_globalSettings->beginGroup("A");
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("good"));
    g_globalSettings->endGroup();
}

TEST_F(RegistryFiles, RemovalTakesTheLowestFirstAndLeavesTheRest)
{
    store("A/v", "1$1");
    store("A/B/v", "1$1");
    store("A/B/w", "1$1");
    store("AB/v", "1$1");
    RegistryRemovalJob removal({"A", "A/B"});
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(removal.step());
    EXPECT_FALSE(holds("A/B/v"));
    EXPECT_TRUE(holds("A/v"));
    while (removal.step()) {
    }
    EXPECT_EQ(removal.progress().toStdString(), "3");
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("AB/v"));
}

TEST_F(RegistryFiles, ABlockedStoreSavesItselfOnceAtTheEnd)
{
    g_globalSettings->sync();
    QCoreApplication::sendPostedEvents();
    const auto saved = [] {
        QFile input(g_globalSettings->fileName());
        return input.open(QIODevice::ReadOnly) && input.readAll().contains("blocked");
    };
    {
        const StoreSaveBlocker blocker;
        store("A/blocked", "1$1");
        QCoreApplication::processEvents();
        EXPECT_FALSE(saved());
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(saved());
}

} // namespace
