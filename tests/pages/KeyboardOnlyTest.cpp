#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/PageFixture.h"
#include "tests/support/Display.h"

#include "app/ApplicationLog.h"
#include "pages/displays/MonitorMap.h"
#include "tests/support/WaitFor.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTableView>

namespace {

// The main task of a page, done with real keys and nothing else.
class KeyboardOnly : public PageFixture
{
protected:
    void openActive(const QString& name)
    {
        open(name);
        m_window.activateWindow();
        ASSERT_TRUE(waitForActive(&m_window));
        ASSERT_TRUE(waitFor([this] { return page()->isAncestorOf(QApplication::focusWidget()); }));
        waitForJob();
    }
    static void press(const QStringList& keys)
    {
        EXPECT_TRUE(Display::xdotool(QStringList("key") + keys));
    }
    static void type(const QString& text)
    {
        EXPECT_TRUE(Display::xdotool({"type", "--delay", "5", text}));
    }
    const QAbstractItemModel& model(const QString& table)
    {
        return *page()->findChild<QTableView*>(table)->model();
    }
    bool rowsBecome(const QString& table, int rows)
    {
        return waitFor(
            [this, table, rows] { return model(table).rowCount() == rows && !page()->isBusy(); });
    }
    static bool focusIs(const QString& name)
    {
        return waitFor([name] {
            return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == name;
        });
    }

    ProfileFixture m_file;
};

TEST_F(KeyboardOnly, AProfileIsOpenedEditedAndWritten)
{
    m_file.write("[Net]\nHost=one\nMask=255\n");
    openActive("profiles");
    type(m_file.path());
    press({"Return"});
    ASSERT_TRUE(rowsBecome("readings", 2)) << status();
    press({"Tab", "Tab", "Tab"}); // past the button and the lines
    ASSERT_TRUE(focusIs("readings"));
    press({"Down", "F2"});
    ASSERT_TRUE(focusIs("value"));
    press({"ctrl+a"});
    type("254");
    press({"Return"});
    EXPECT_TRUE(waitFor([this] { return m_file.bytes().contains("Mask=254"); }))
        << m_file.bytes().toStdString();
    EXPECT_TRUE(waitFor([this] { return status().find("Written") == 0; })) << status();
}

TEST_F(KeyboardOnly, APatternIsSearchedAndAFoundFileLookedAt)
{
    m_file.write("text");
    openActive("files");
    press({"ctrl+a"});
    type(m_file.folder() + "/*");
    press({"Return"});
    ASSERT_TRUE(rowsBecome("entries", 1)) << status();
    press({"Tab", "Tab", "Tab"}); // past both buttons
    ASSERT_TRUE(focusIs("entries"));
    press({"Down", "Home"});
    EXPECT_TRUE(
        waitFor([this] { return page()->findChild<QLineEdit*>("path")->text() == m_file.path(); }));
}

TEST_F(KeyboardOnly, TheSystemsFontsAreRegisteredAndOneIsLookedUp)
{
    openActive("fonts");
    press({"alt+g"});
    ASSERT_TRUE(waitFor([this] { return model("records").rowCount() > 0 && !page()->isBusy(); }));
    const QString family = model("records").index(0, 0).data().toString();
    press({"alt+y"});
    ASSERT_TRUE(focusIs("family"));
    type(family);
    EXPECT_TRUE(waitFor(
        [this, family] { return page()->findChild<QLineEdit*>("family")->text() == family; }));
    EXPECT_TRUE(waitFor([this, family] {
        const int last = model("records").rowCount() - 1;
        return last >= 0 && model("records").index(last, 0).data().toString() == family;
    }));
}

TEST_F(KeyboardOnly, APointOfTheDesktopIsChosen)
{
    openActive("displays");
    auto* map = page()->findChild<MonitorMap*>();
    ASSERT_TRUE(waitFor([map] { return map->hasFocus(); }));
    ASSERT_TRUE(Display::xdotool({"mousemove", "321", "123"}));
    ASSERT_TRUE(waitFor([this] { return control<QLineEdit>("Pointer")->text() == "321, 123"; }));
    press({"Home", "Right", "shift+Down", "ctrl+Right"});
    const QString after = "541, 124";
    EXPECT_TRUE(waitFor([map, after] { return map->accessibleDescription() == after; }))
        << map->accessibleDescription().toStdString() << " for " << after.toStdString();
}

TEST_F(KeyboardOnly, TheLogIsFilteredAndSaved)
{
    logInfo("first of the keyboard");
    ApplicationLog::instance().write(Logger::error, "second of the keyboard");
    ApplicationLog::instance().write(Logger::error, "something else");
    openActive("log");
    press({"alt+s", "End"}); // errors only
    press({"ctrl+f"});
    type("keyboard");
    const auto* table = page()->findChild<QTableView*>();
    ASSERT_TRUE(waitFor([table] { return table->model()->rowCount() == 1; }))
        << table->model()->rowCount();
    press({"alt+v"});
    ASSERT_TRUE(waitFor([] {
        return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) &&
               QApplication::activeModalWidget()->isActiveWindow();
    }));
    press({"ctrl+a"});
    type(m_file.folder() + "/saved.log");
    press({"Return"});
    ASSERT_TRUE(waitFor([this] { return status().find("Saved to ") == 0; })) << status();
    const QByteArray saved = ProfileFixture::bytesOf(m_file.folder() + "/saved.log");
    EXPECT_TRUE(saved.endsWith("second of the keyboard\n")) << saved.toStdString();
    EXPECT_EQ(saved.count('\n'), 1);
}

} // namespace
