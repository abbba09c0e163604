#include "tests/inspection/registry/StoreFileFixture.h"
#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/WaitFor.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace {

// A store never forgets a failure, and tells the first one only: these tests have a program of
// their own, in which the store meets a damaged file first.
class StoreInTroubleTest : public RegistryPageFixture
{
protected:
    StoreInTroubleTest()
    {
        store("A/v", "1$1"); // makes the folder
        g_globalSettings->sync();
        StoreFile::replace(m_damaged);
        g_globalSettings->sync();
        EXPECT_EQ(g_globalSettings->allKeys().size(), 1);
        EXPECT_EQ(g_globalSettings->status(), QSettings::FormatError);
        show();
    }

    testing::AssertionResult tells(const QString& words)
    {
        if (waitFor([&] { return status().contains(words); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << status().toStdString();
    }

    void press(const QString& caption)
    {
        auto& question = dynamic_cast<QMessageBox&>(dialog());
        for (QAbstractButton* button : question.buttons()) {
            if (button->text() == caption)
                button->click();
        }
        settle();
    }

    // The contents of the backups that lie beside the store.
    static QList<QByteArray> copies()
    {
        QList<QByteArray> contents;
        const QFileInfo file(StoreFile::path());
        const auto found = file.dir().entryInfoList({"*.backup-*"}, QDir::Files);
        for (const QFileInfo& copy : found) {
            QFile input(copy.filePath());
            EXPECT_TRUE(input.open(QIODevice::ReadOnly));
            contents.append(input.readAll());
        }
        return contents;
    }

    void setNumber(const QString& name)
    {
        chooseNew(NewDword);
        type(name, "7");
        ASSERT_TRUE(accept());
    }

    // The store is saved, and everything about its file is told.
    void mend()
    {
        ASSERT_TRUE(tells("is damaged"));
        chooseNew(NewDword);
        press("Write");
        type("mended", "1");
        ASSERT_TRUE(accept());
        ASSERT_TRUE(tells("is in step with its file"));
    }

    const QByteArray m_damaged = "[A]\nv=1$1\nthis is no entry\n";
};

TEST_F(StoreInTroubleTest, ADamagedFileIsTold)
{
    EXPECT_TRUE(tells("is damaged: it has lines that are no entries"));
    EXPECT_EQ(StoreFile::bytes().toStdString(), m_damaged.toStdString());
}

TEST_F(StoreInTroubleTest, NothingIsWrittenToADamagedFileWithoutAQuestion)
{
    chooseNew(NewDword);
    EXPECT_TRUE(words().contains("is damaged")) << words().toStdString();
    auto& question = dynamic_cast<QMessageBox&>(dialog());
    EXPECT_EQ(question.defaultButton(), question.button(QMessageBox::Cancel));
    reject();
    QCoreApplication::processEvents();
    EXPECT_EQ(StoreFile::bytes().toStdString(), m_damaged.toStdString());
}

TEST_F(StoreInTroubleTest, ACopyOfADamagedFileIsKept)
{
    const int before = copies().count(m_damaged);
    m_page.goTo("A");
    chooseNew(NewDword);
    press("Write");
    type("n", "7");
    ASSERT_TRUE(accept());
    ASSERT_TRUE(waitFor([] { return StoreFile::bytes().contains("n=1$7"); }));
    EXPECT_EQ(copies().count(m_damaged), before + 1);
    chooseNew(NewDword); // the file is sound now
    EXPECT_FALSE(words().contains("is damaged")) << words().toStdString();
    reject();
}

TEST_F(StoreInTroubleTest, ASavingThatFailsIsTold)
{
    mend();
    const QByteArray before = StoreFile::bytes();
    for (const char* name : {"n", "m"}) {
        m_page.setStatus({});
        const FullDisk full;
        setNumber(name);
        QCoreApplication::processEvents(); // the store saves itself
    }
    EXPECT_TRUE(tells("The store could not be saved to"));
    EXPECT_EQ(StoreFile::bytes().toStdString(), before.toStdString());
    setNumber("later");
    EXPECT_TRUE(tells("is in step with its file"));
    EXPECT_TRUE(StoreFile::bytes().contains("n=1$7"));
}

TEST_F(StoreInTroubleTest, ASavingThatAFullDiskCutsShortIsToldAndUndone)
{
    mend();
    store("A/large", "5$" + QString(2000, 'x'));
    g_globalSettings->sync();
    ASSERT_TRUE(tells("is in step with its file"));
    const QByteArray before = StoreFile::bytes();
    {
        const FullDisk nearlyFull(1024);
        setNumber("cut");
        EXPECT_TRUE(tells("The store could not be saved to"));
        EXPECT_EQ(StoreFile::bytes().toStdString(), before.toStdString());
    }
    EXPECT_TRUE(tells("is in step with its file"));
    EXPECT_TRUE(StoreFile::bytes().contains("cut=1$7"));
}

} // namespace
