#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/WindowProbe.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

constexpr int largest = 128 * 1024;

// A file as large as any that is opened, and the real window.
class LargeProfile : public testing::Test
{
protected:
    void SetUp() override { m_file.write(content('1')); }

    // All files are of the same size.
    static QByteArray content(char digit, int size = largest)
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
        ASSERT_TRUE(QTest::qWaitFor([this] { return readings().rowCount() > 0; }));
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
        EXPECT_TRUE(QTest::qWaitFor(condition, 60000));
        return turns;
    }
    static QDialog* question() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

    ProfileFixture m_file;
    WindowProbe m_probe{"profiles"};
};

// Each of the parts may take as long as a turn may: reading the file, parsing its lines for
// either family, joining them, collecting the names, and parsing the file for the wide calls.
TEST_F(LargeProfile, IsParsedInManyTurns)
{
    start();
    EXPECT_EQ(readings().rowCount(), 0);
    EXPECT_GE(turnsUntil([this] { return readings().rowCount() > 0; }), 5);
    stop();
}

TEST_F(LargeProfile, IsWrittenInManyTurns)
{
    m_file.write(content('1', largest - 64)); // room for the value
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
    m_file.write(content('1', largest - 64) + "; lost\n");
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
    m_file.write(content('2'));
    m_file.setStamp(stamp);
    const int before = readings().rowCount();
    ASSERT_TRUE(QTest::qWaitFor([&] { return readings().rowCount() > before; }));
    const int last = readings().rowCount() - 1;
    EXPECT_EQ(reading(last, 2), QStringLiteral("1"));
    EXPECT_EQ(reading(last, 4), QStringLiteral("2")); // the narrow family's
    stop();
}

TEST_F(LargeProfile, IsNotKeptInMemoryAfterTheJob)
{
    const QDateTime stamp = m_file.stamp();
    start();
    waitForReadings();
    stop();
    m_file.write(content('2'));
    m_file.setStamp(stamp);
    m_probe.page().refresh();
    EXPECT_TRUE(QTest::qWaitFor([this] { return reading(0, 2) == QStringLiteral("2"); }));
    stop();
}

TEST_F(LargeProfile, ChangedMeanwhileIsReadAnew)
{
    const QDateTime stamp = m_file.stamp();
    start();
    waitForReadings();
    m_file.write(content('2'));
    m_file.setStamp(stamp.addMSecs(1));
    const int before = readings().rowCount();
    ASSERT_TRUE(QTest::qWaitFor([&] { return readings().rowCount() > before; }));
    EXPECT_EQ(reading(readings().rowCount() - 1, 2), QStringLiteral("2"));
    stop();
}

TEST_F(LargeProfile, CancelledBeforeItIsParsedLeavesTheFormerOneOpen)
{
    ProfileFixture former;
    former.write("[S]\nk=v\n");
    m_probe.type("file", former.path());
    QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
    ASSERT_TRUE(m_probe.settle());
    start();
    ASSERT_TRUE(m_probe.page().isBusy());
    stop();
    EXPECT_EQ(m_probe.page().statusText(), QStringLiteral("Stopped before the file was read."));
    EXPECT_EQ(m_probe.text("file"), former.path());
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
