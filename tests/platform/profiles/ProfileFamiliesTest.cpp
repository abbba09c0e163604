#include "tests/platform/profiles/ProfileManagerTest.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

class ProfileFamilies : public ProfileManagerTest
{
protected:
    ProfileFamilies() : ProfileManagerTest(memoryFolder()) { write("[S]\nn=0000\nw=0000\n"); }

    // In memory, where there is such a folder: while QSettings flushes a file to a disk, the clock
    // that stamps it goes on, and the writes no longer follow one another at once.
    static QString memoryFolder()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    }

    static QByteArray digits(int number)
    {
        return QByteArray::number(number).rightJustified(4, '0');
    }

    void writeNarrowNumber(int number) { EXPECT_EQ(1, writeNarrow("S", "n", digits(number))); }

    void writeWideNumber(int number)
    {
        EXPECT_EQ(1, writeWide(L"S", L"w", QString(digits(number)).toStdWString().c_str()));
    }

    // Expects both families to see both values, in a file of the size it had at first.
    void expectNumbers(int narrowOne, int wideOne)
    {
        EXPECT_EQ(QString(digits(narrowOne)).toStdWString(), readWide(L"S", L"n"));
        EXPECT_EQ(QString(digits(wideOne)).toStdWString(), readWide(L"S", L"w"));
        EXPECT_EQ(digits(narrowOne).toStdString(), readNarrow("S", "n"));
        EXPECT_EQ(digits(wideOne).toStdString(), readNarrow("S", "w"));
        EXPECT_EQ(18, QFileInfo(path).size());
    }
};

TEST_F(ProfileFamilies, SeeEachOthersThousandAlternatingWritesOfTheSameSize)
{
    for (int i = 1; i <= 500 && !HasFailure(); ++i) {
        writeNarrowNumber(i);
        expectNumbers(i, i - 1);
        writeWideNumber(i);
        expectNumbers(i, i);
    }
}

TEST_F(ProfileFamilies, SeeTheLastOfSeveralNarrowWritesInARow)
{
    int number = 0;
    for (int round = 0; round < 300 && !HasFailure(); ++round) {
        expectNumbers(number, 0);
        for (int more = 2 + round % 3; more > 0; --more)
            writeNarrowNumber(++number);
    }
}

TEST_F(ProfileFamilies, LoseNothingWhenAWideWriteFollowsANarrowOne)
{
    for (int i = 1; i <= 100 && !HasFailure(); ++i) {
        writeNarrowNumber(i);
        writeWideNumber(i);
        EXPECT_EQ(digits(i).toStdString(), readNarrow("S", "n"));
    }
}

TEST_F(ProfileFamilies, SeeAFileThatANarrowWriteMadeAnew)
{
    for (int i = 1; i <= 50 && !HasFailure(); ++i) {
        EXPECT_TRUE(QFile::remove(path));
        writeWideNumber(1000 + i);
        EXPECT_TRUE(QFile::remove(path));
        EXPECT_EQ(1, writeNarrow("S", "w", digits(i)));
        EXPECT_EQ(QString(digits(i)).toStdWString(), readWide(L"S", L"w"));
    }
}

// QSettings still holds what it read of the file that was removed.
TEST_F(ProfileFamilies, SeeANarrowWriteToAFileThatWasRemovedBefore)
{
    for (int i = 1; i <= 300 && !HasFailure(); ++i) {
        EXPECT_TRUE(QFile::remove(path));
        writeNarrowNumber(i);
        EXPECT_EQ(QString(digits(i)).toStdWString(), readWide(L"S", L"n"));
    }
}

TEST_F(ProfileFamilies, SeeANarrowWriteToAFileThatOthersRestoredBefore)
{
    const QByteArray former = content();
    for (int i = 1; i <= 300 && !HasFailure(); ++i) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_EQ(former.size(), file.write(former));
        file.close();
        writeNarrowNumber(i);
        expectNumbers(i, 0);
    }
}

// Each of the two files is left with a stamp that QSettings may know from the other one.
TEST_F(ProfileFamilies, SeeNarrowWritesToFilesThatTakeTurnsUnderOneName)
{
    const QString other = folder.filePath("other.ini");
    EXPECT_TRUE(QFile::copy(path, other));
    for (int i = 1; i <= 300 && !HasFailure(); ++i) {
        EXPECT_TRUE(QFile::rename(path, folder.filePath("third.ini")));
        EXPECT_TRUE(QFile::rename(other, path));
        EXPECT_TRUE(QFile::rename(folder.filePath("third.ini"), other));
        writeNarrowNumber(i);
        expectNumbers(i, 0);
    }
}

// A settings object of somebody else's in this process shares what QSettings keeps of the file.
TEST_F(ProfileFamilies, SeeEachOthersWritesThroughForeignSettings)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    for (int i = 1; i <= 50 && !HasFailure(); ++i) {
        writeNarrowNumber(i);
        settings.sync();
        EXPECT_EQ(QString(digits(i)), settings.value("S/n").toString());
        settings.setValue("S/w", QString(digits(i)));
        settings.sync();
        expectNumbers(i, i);
    }
}

} // namespace
