#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"

#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ProfileFindTest : public testing::Test
{
protected:
    void open()
    {
        m_file.write("[Net]\nHost=one\nhostname=two\nMask=255\n");
        m_probe.type("file", m_file.path());
        QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
        ASSERT_TRUE(m_probe.settle());
    }
    QLineEdit& field() const { return m_probe.control<QLineEdit>("find"); }
    int line() const { return m_probe.control<QTableView>("lines").currentIndex().row() + 1; }
    QString status() const { return m_probe.page().statusText(); }

    ProfileFixture m_file;
    WindowProbe m_probe{"profiles"};
};

TEST_F(ProfileFindTest, GoesFromLineToLineAndAround)
{
    open();
    m_probe.page().find();
    ASSERT_TRUE(field().hasFocus());
    QTest::keyClicks(&field(), QStringLiteral("HOST"));
    for (const int expected : {2, 3, 2}) {
        QTest::keyClick(&field(), Qt::Key_Return);
        EXPECT_TRUE(becomes([this] { return line(); }, expected));
    }
    QTest::keyClick(&field(), Qt::Key_F3);
    EXPECT_TRUE(becomes([this] { return line(); }, 3));
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(ProfileFindTest, SaysThatNoLineContainsTheText)
{
    open();
    m_probe.page().find();
    QTest::keyClicks(&field(), QStringLiteral("absent"));
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_TRUE(becomes([this] { return status(); }, QStringLiteral("No line contains “absent”.")));
    EXPECT_EQ(line(), 0);
}

TEST_F(ProfileFindTest, TakesBackThatNoLineContainsTheTextWhereOneDoes)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(1);
    m_probe.page().find();
    for (const char* text : {"absent", "Host=one"}) {
        m_probe.type("find", QLatin1String(text));
        QTest::keyClick(&field(), Qt::Key_Return);
        ASSERT_TRUE(m_probe.settle());
    }
    EXPECT_TRUE(status().startsWith(QStringLiteral("Line 2. "))) << status().toStdString();
}

TEST_F(ProfileFindTest, SaysThatThereIsNoFile)
{
    m_probe.page().find();
    EXPECT_EQ(status(), QStringLiteral("There are no lines to search. Open a file first."));
    EXPECT_FALSE(field().isVisible());
    EXPECT_TRUE(m_probe.control<QWidget>("file").hasFocus());
}

TEST_F(ProfileFindTest, EscapeHidesTheField)
{
    open();
    m_probe.page().find();
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_FALSE(field().isVisible());
    EXPECT_TRUE(m_probe.control<QWidget>("lines").hasFocus());
}

} // namespace
