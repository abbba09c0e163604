#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QLocale>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

constexpr int large = 128 * 1024;
constexpr int veryLarge = 4 * 1024 * 1024;

// A file that is too large for all of its values to be asked for at once, and the real window.
class LargeProfile : public testing::Test
{
protected:
    // The stamp is one that setStamp() can put back.
    void SetUp() override
    {
        m_file.write(content('1'));
        m_file.setStamp(m_file.stamp());
    }

    // All files are of the same size.
    static QByteArray content(char digit, int size = large)
    {
        QByteArray text = "[S]\n";
        for (int i = 0; text.size() + 20 < size; ++i)
            text += "key" + QByteArray::number(i) + '=' + digit + '\n';
        return text.leftJustified(size, '\n');
    }
    void start() const
    {
        m_probe.type("file", m_file.path());
        QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
    }
    const QAbstractItemModel& readings() const
    {
        return *m_probe.control<QTableView>("readings").model();
    }
    QString reading(int row, int column) const
    {
        return readings().index(row, column).data().toString();
    }
    void waitForReadings() const
    {
        ASSERT_TRUE(waitFor([this] { return readings().rowCount() > 0; }));
        ASSERT_TRUE(m_probe.settle());
    }
    bool isRead(int row) const { return reading(row, 2) != QStringLiteral("(not asked yet)"); }
    void waitForRow(int row) const
    {
        ASSERT_TRUE(waitFor([this, row] { return isRead(row); })) << row;
    }
    int last() const { return readings().rowCount() - 1; }
    // The first row that has not been read while all are being read.
    int firstUnread() const
    {
        int row = 0;
        while (row < last() && isRead(row))
            ++row;
        return row;
    }
    void startReadingAll() const
    {
        m_probe.click("readAll");
        ASSERT_TRUE(m_probe.page().isBusy());
    }
    // Cancels what runs, and what comes after it.
    void stop() const
    {
        while (m_probe.page().isBusy())
            m_probe.page().cancelJob();
    }
    // The turns of the event loop until something has come about.
    template <typename Condition>
    static int turnsUntil(Condition condition)
    {
        int turns = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
        timer.start(0);
        EXPECT_TRUE(waitFor(condition));
        return turns;
    }
    static QDialog* question() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

    ProfileFixture m_file;
    WindowProbe m_probe{"profiles"};
};

TEST_F(LargeProfile, IsParsedInManyTurns)
{
    m_file.write(content('1', veryLarge));
    start();
    EXPECT_EQ(readings().rowCount(), 0);
    EXPECT_GE(turnsUntil([this] { return readings().rowCount() > 0; }), 5);
}

TEST_F(LargeProfile, ShowsAllLinesAndAsksForWhatIsInView)
{
    m_file.write(content('1', veryLarge));
    start();
    waitForReadings();
    EXPECT_TRUE(m_probe.page().statusText().contains(QStringLiteral("Asked for so far: ")));
    EXPECT_EQ(m_probe.control<QTableView>("lines").model()->rowCount(), m_file.bytes().count('\n'));
    waitForRow(0);
    EXPECT_EQ(reading(0, 2), QStringLiteral("1"));
    EXPECT_EQ(reading(0, 4), QStringLiteral("1"));
    EXPECT_FALSE(isRead(last() / 2));
    EXPECT_FALSE(isRead(last()));
}

TEST_F(LargeProfile, AsksForTheRowsThatComeIntoView)
{
    start();
    waitForReadings();
    m_probe.control<QTableView>("readings").scrollToBottom();
    waitForRow(last());
    EXPECT_FALSE(isRead(last() / 2));
}

TEST_F(LargeProfile, AsksForTheChosenNameFirst)
{
    start();
    waitForReadings();
    m_probe.control<QTableView>("readings").selectRow(last() / 2);
    EXPECT_EQ(m_probe.text("value"), QString());
    EXPECT_TRUE(waitFor([this] { return m_probe.text("value") == QStringLiteral("1"); }));
}

TEST_F(LargeProfile, KeepsWhatIsTypedWhenTheAnswerComes)
{
    start();
    waitForReadings();
    m_probe.control<QTableView>("readings").selectRow(last() / 2);
    QTest::keyClicks(&m_probe.control<QWidget>("value"), QStringLiteral("new"));
    waitForRow(last() / 2);
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("new"));
}

TEST_F(LargeProfile, AValueThatHasNotBeenReadIsNotWrittenAsAnEmptyOne)
{
    start();
    waitForReadings();
    m_probe.control<QTableView>("readings").selectRow(last() / 2);
    auto& value = m_probe.control<QLineEdit>("value");
    EXPECT_EQ(value.placeholderText(), QStringLiteral("Not read yet"));
    QTest::keyClick(&value, Qt::Key_Return);
    EXPECT_EQ(m_probe.page().statusText(), QStringLiteral("This value has not been read yet."));
    EXPECT_FALSE(m_probe.page().isBusy());
    waitForRow(last() / 2);
    EXPECT_EQ(value.placeholderText(), QString());
    EXPECT_EQ(m_file.bytes(), content('1'));
}

TEST_F(LargeProfile, IsReadWholeOnRequest)
{
    m_file.write(content('1', 20 * 1024));
    start();
    waitForReadings();
    ASSERT_FALSE(isRead(last()));
    startReadingAll();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.page().statusText(), QStringLiteral("Values: %1. Read differently: 0.")
                                               .arg(QLocale().toString(readings().rowCount())));
    EXPECT_FALSE(m_probe.control<QAbstractButton>("readAll").isEnabled());
}

TEST_F(LargeProfile, CancelKeepsWhatWasReadSoFar)
{
    start();
    waitForReadings();
    startReadingAll();
    const int first = firstUnread();
    waitForRow(first);
    m_probe.page().cancelJob();
    EXPECT_TRUE(m_probe.page().statusText().startsWith(QStringLiteral("Stopped. Values: ")));
    EXPECT_TRUE(isRead(first));
    EXPECT_FALSE(isRead(last()));
}

TEST_F(LargeProfile, IsWrittenInManyTurns)
{
    m_file.write(content('1', large - 64)); // room for the value
    start();
    waitForReadings();
    stop();
    const QByteArray before = m_file.bytes();
    const auto written = [this, &before] { return m_file.bytes() != before; };
    m_probe.type("section", "S");
    m_probe.type("key", "new");
    m_probe.type("value", "x");
    m_probe.click("write");
    EXPECT_GE(turnsUntil([] { return question() != nullptr; }), 10);
    EXPECT_FALSE(written());
    question()->accept();
    EXPECT_GE(turnsUntil(written), 3);
    stop();
    EXPECT_TRUE(m_file.bytes().contains("\nnew=x\n"));
}

TEST_F(LargeProfile, IsTriedInManyTurnsBeforeLinesAreLost)
{
    m_file.write(content('1', large - 64) + "; lost\n");
    start();
    waitForReadings();
    stop();
    m_probe.type("section", "S");
    m_probe.type("key", "new");
    m_probe.type("value", "x");
    m_probe.control<QComboBox>("family").setCurrentIndex(1);
    m_probe.click("write");
    EXPECT_EQ(question(), nullptr);
    EXPECT_GE(turnsUntil([] { return question() != nullptr; }), 10);
    question()->reject();
}

// The same size and the same stamp: only a file that is in memory already goes on as it was.
TEST_F(LargeProfile, IsParsedOnceForAllWideReadings)
{
    const QDateTime stamp = m_file.stamp();
    start();
    waitForReadings();
    startReadingAll();
    waitForRow(firstUnread());
    m_file.write(content('2'));
    m_file.setStamp(stamp);
    const int next = firstUnread() + 1; // one may have been half asked for
    waitForRow(next);
    EXPECT_EQ(reading(next, 2), QStringLiteral("1"));
    EXPECT_EQ(reading(next, 4), QStringLiteral("2")); // the narrow family's
    stop();
}

TEST_F(LargeProfile, IsNotKeptInMemoryForTheNextReading)
{
    const QDateTime stamp = m_file.stamp();
    start();
    waitForReadings();
    waitForRow(0);
    m_file.write(content('2'));
    m_file.setStamp(stamp);
    m_probe.page().refresh();
    EXPECT_TRUE(waitFor([this] { return reading(0, 2) == QStringLiteral("2"); }));
}

TEST_F(LargeProfile, ChangedMeanwhileIsReadAnew)
{
    const QDateTime stamp = m_file.stamp();
    start();
    waitForReadings();
    startReadingAll();
    waitForRow(firstUnread());
    m_file.write(content('2'));
    m_file.setStamp(stamp.addMSecs(1));
    const int next = firstUnread() + 1;
    waitForRow(next);
    EXPECT_EQ(reading(next, 2), QStringLiteral("2"));
    stop();
}

TEST_F(LargeProfile, CancelledBeforeItIsParsedLeavesTheFormerOneOpenAndWhatIsTyped)
{
    ProfileFixture former;
    former.write("[S]\nk=v\n");
    m_probe.type("file", former.path());
    QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
    ASSERT_TRUE(m_probe.settle());
    m_file.write(content('1', veryLarge));
    start();
    ASSERT_TRUE(m_probe.page().isBusy());
    stop();
    EXPECT_EQ(m_probe.page().statusText(), QStringLiteral("Stopped before the file was read."));
    EXPECT_EQ(m_probe.text("file"), m_file.path());
    EXPECT_EQ(reading(0, 1), QStringLiteral("k"));
}

TEST_F(LargeProfile, CancelledWhileAChangeIsTriedStaysAsItIs)
{
    start();
    waitForReadings();
    stop();
    m_probe.type("section", "S");
    m_probe.type("key", "new");
    m_probe.click("write");
    ASSERT_TRUE(m_probe.page().isBusy());
    stop();
    EXPECT_EQ(m_probe.page().statusText(), QStringLiteral("Nothing written."));
    EXPECT_EQ(m_file.bytes(), content('1'));
}

} // namespace
