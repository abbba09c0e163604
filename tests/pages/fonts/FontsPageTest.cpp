#include "inspection/fonts/FontCatalogue.h"
#include "tests/inspection/fonts/FreshServices.h"
#include "tests/pages/ShownToolTip.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"
#include "tests/window/EndlessJob.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QSet>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

class FontsPageTest : public testing::Test
{
protected:
    static void add(const char* globalName, const char* face, BYTE charSet)
    {
        RegisteredFont font;
        font.face = QLatin1String(face);
        font.style = QStringLiteral("Regular");
        font.charSet = charSet;
        FontCatalogue::add(QLatin1String(globalName), font);
    }

    const QAbstractItemModel& model() const
    {
        return *m_probe.control<QTableView>("records").model();
    }
    // The first columns of all rows: family, style, character set, script.
    std::vector<std::string> rows() const
    {
        std::vector<std::string> rows;
        for (int row = 0; row < model().rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < 4; ++column)
                cells << model().index(row, column).data().toString();
            rows.push_back(cells.join(QLatin1Char('|')).toStdString());
        }
        return rows;
    }
    void registerSystemFonts() const
    {
        m_probe.click("register");
        ASSERT_TRUE(m_probe.settle());
    }
    QString status() const { return m_probe.page().statusText(); }

    FreshServices m_services;
    WindowProbe m_probe{"fonts"};
};

using Rows = std::vector<std::string>;

TEST_F(FontsPageTest, SaysThatNoFontIsRegistered)
{
    EXPECT_EQ(model().rowCount(), 0);
    const auto* hint = m_probe.control<QTableView>("records").viewport()->findChild<QLabel*>();
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().startsWith(QStringLiteral("No font is registered.")));
}

TEST_F(FontsPageTest, ShowsTheRecordsInTheOrderOfTheService)
{
    add("Global B", "B", GREEK_CHARSET);
    add("Global A", "A", GB2312_CHARSET);
    add("Global B", "B", OEM_CHARSET);
    m_probe.page().refresh();
    EXPECT_EQ(rows(),
              Rows({"A|Regular|GB2312_CHARSET (134)|CHINESE_GB2312",
                    "B|Regular|GREEK_CHARSET (161)|希腊语", "B|Regular|OEM_CHARSET (255)|"}));
}

TEST_F(FontsPageTest, ShowsANameThatLooksLikeMarkupInItsToolTip)
{
    add("Global", "<b>bold", ANSI_CHARSET);
    m_probe.page().refresh();
    EXPECT_EQ(shownToolTip(model().index(0, 0).data(Qt::ToolTipRole).toString()),
              QStringLiteral("<b>bold"));
}

TEST_F(FontsPageTest, HasNothingToSayOfNoRecord)
{
    EXPECT_FALSE(model().data({}, Qt::DisplayRole).isValid());
}

TEST_F(FontsPageTest, FiltersByFamilyUnderEitherName)
{
    add("Global A", "A", ANSI_CHARSET);
    add("Global B", "B", ANSI_CHARSET);
    for (const char* name : {"B", "Global B"}) {
        m_probe.type("family", QLatin1String(name));
        EXPECT_EQ(rows(), Rows({"B|Regular|ANSI_CHARSET (0)|西方"})) << name;
    }
}

TEST_F(FontsPageTest, FiltersByCharacterSet)
{
    add("Global A", "A", ANSI_CHARSET);
    add("Global A", "A", THAI_CHARSET);
    auto& charSets = m_probe.control<QComboBox>("charSet");
    charSets.setCurrentIndex(charSets.findText(QStringLiteral("THAI_CHARSET (222)")));
    EXPECT_EQ(rows(), Rows({"A|Regular|THAI_CHARSET (222)|泰文"}));
}

TEST_F(FontsPageTest, AMnemonicLeadsToTheCharacterSet)
{
    QTest::keyClick(&m_probe.page(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(m_probe.control<QComboBox>("charSet").hasFocus());
}

TEST_F(FontsPageTest, ShowsNothingForAnUnknownFamilyAndSaysWhy)
{
    add("Global A", "A", ANSI_CHARSET);
    m_probe.type("family", QStringLiteral("a"));
    EXPECT_EQ(model().rowCount(), 0);
    const auto* hint = m_probe.control<QTableView>("records").viewport()->findChild<QLabel*>();
    EXPECT_TRUE(hint->text().startsWith(QStringLiteral("The service reports no record")));
}

TEST_F(FontsPageTest, ShowsFontsThatWereRegisteredMeanwhileWhenItIsEnteredAgain)
{
    add("Global A", "A", ANSI_CHARSET);
    m_probe.page().entered();
    EXPECT_EQ(model().rowCount(), 1);
}

TEST_F(FontsPageTest, ShowsFontsThatAreRegisteredWhileItIsInView)
{
    add("Global B", "B", ANSI_CHARSET);
    m_probe.page().refresh();
    auto& table = m_probe.control<QTableView>("records");
    table.selectRow(0);
    m_probe.type("localName", QStringLiteral("typed"));
    add("Global A", "A", ANSI_CHARSET);
    ASSERT_TRUE(waitFor([this] { return model().rowCount() == 2; }));
    EXPECT_EQ(table.currentIndex().data().toString(), QStringLiteral("B"));
    EXPECT_EQ(m_probe.text("localName"), QStringLiteral("typed"));
    EXPECT_EQ(status(), QStringLiteral("Records: 2"));
}

TEST_F(FontsPageTest, TellsThatAFontIsNotInstalled)
{
    add("Global A", "No such font", ANSI_CHARSET);
    m_probe.page().refresh();
    EXPECT_EQ(model().index(0, 4).data().toString(),
              QStringLiteral("(not installed on this system)"));
}

TEST_F(FontsPageTest, RegistersTheFontsOfTheSystem)
{
    registerSystemFonts();
    QSet<QString> shown;
    for (const RegisteredFont& font : FontCatalogue::records())
        shown.insert(font.face);
    QSet<QString> expected;
    const QStringList families = QFontDatabase().families();
    for (const QString& family : families) {
        if (FontCatalogue::fits(family))
            expected.insert(family);
    }
    EXPECT_FALSE(expected.isEmpty());
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(static_cast<std::size_t>(model().rowCount()), FontCatalogue::records().size());
    EXPECT_TRUE(status().startsWith(QStringLiteral("Registered records:")));
}

TEST_F(FontsPageTest, IsNotReadAnewWhileAJobRuns)
{
    m_probe.page().startJob("Endless", std::make_unique<EndlessJob>(), [](EndlessJob&, bool) {});
    add("Global", "Local", GB2312_CHARSET);
    m_probe.page().entered();
    EXPECT_EQ(model().rowCount(), 0);
    m_probe.page().cancelJob();
    m_probe.page().entered();
    EXPECT_EQ(model().rowCount(), 1);
}

TEST_F(FontsPageTest, ShowsAPreviewInTheFontItself)
{
    registerSystemFonts();
    const QModelIndex preview = model().index(0, 4);
    EXPECT_EQ(preview.data(Qt::FontRole).value<QFont>().family(),
              model().index(0, 0).data().toString());
    EXPECT_FALSE(preview.data().toString().isEmpty());
}

TEST_F(FontsPageTest, RegistersNoFamilyTwice)
{
    registerSystemFonts();
    const int count = model().rowCount();
    registerSystemFonts();
    EXPECT_EQ(model().rowCount(), count);
    EXPECT_TRUE(status().startsWith(QStringLiteral("All families were registered before.")));
}

TEST_F(FontsPageTest, LooksUpGlobalNames)
{
    add("Z Global", "A", ANSI_CHARSET);
    add("B Global", "A", ANSI_CHARSET);
    m_probe.type("localName", QStringLiteral("A"));
    EXPECT_EQ(m_probe.text("globalName"), QStringLiteral("B Global"));
}

TEST_F(FontsPageTest, TellsThatALocalNameIsUnknown)
{
    m_probe.type("localName", QStringLiteral("A"));
    EXPECT_EQ(m_probe.text("globalName"), QStringLiteral("None"));
}

TEST_F(FontsPageTest, LooksUpTheChosenRow)
{
    add("Global A", "A", ANSI_CHARSET);
    m_probe.page().refresh();
    m_probe.control<QTableView>("records").selectRow(0);
    EXPECT_EQ(m_probe.text("globalName"), QStringLiteral("Global A"));
}

} // namespace
