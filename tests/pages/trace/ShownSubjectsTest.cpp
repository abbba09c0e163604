#include "tests/pages/trace/TracePageFixture.h"

#include "host/HostLibraries.h"
#include "pages/files/FilesPage.h"
#include "pages/profiles/ProfilesPage.h"
#include "pages/registry/RegistryPage.h"
#include "platform/PlatformServicesImp.h"

#include <QSettings>

namespace {

// "Show": what a call is about, on the page that is for it.
class ShownSubjects : public TracePageFixture
{
protected:
    ShownSubjects()
    {
        setPlatformServices(&g_PlatformServices);
        g_globalSettings->clear();
        g_globalSettings->setValue("Harbour/Size", "1$7");
    }
    ~ShownSubjects() override { g_globalSettings->clear(); }

    /// Presses the button that can be seen.
    void show()
    {
        for (QPushButton* button : page()->findChildren<QPushButton*>("show")) {
            if (button->isVisible())
                return button->click();
        }
        FAIL() << "no button";
    }
    template <typename Page>
    bool comes()
    {
        return waitFor([this] { return qobject_cast<Page*>(page()) && !page()->isBusy(); });
    }
    QString text(const char* field) { return part<QLineEdit>(field)->text(); }
    bool isShowEnabled()
    {
        for (const QPushButton* button : page()->findChildren<QPushButton*>("show")) {
            if (button->isVisible())
                return button->isEnabled();
        }
        return false;
    }
};

TEST_F(ShownSubjects, AValueIsChosenOnTheRegistryPage)
{
    take(usual().bytes());
    choose("calls", 1);
    show();
    ASSERT_TRUE(comes<RegistryPage>());
    EXPECT_TRUE(becomes([this] { return text("address"); }, "HKEY_CURRENT_USER\\Harbour"));
    EXPECT_TRUE(becomes(
        [this] { return part<QTableView>("values")->currentIndex().data().toString(); }, "Size"));
}

TEST_F(ShownSubjects, AnAbsentValueIsToldOnTheRegistryPage)
{
    take(usual().bytes());
    choose("calls", 2);
    show();
    ASSERT_TRUE(comes<RegistryPage>());
    EXPECT_TRUE(becomes([this] { return status(); }, "The key has no value Colour."));
}

TEST_F(ShownSubjects, AnAbsentKeyIsToldOnTheRegistryPage)
{
    take(usual().bytes());
    chooseTab(3);
    choose("asked", 1);
    show();
    ASSERT_TRUE(comes<RegistryPage>());
    EXPECT_TRUE(becomes([this] { return status(); },
                        "There is no key HKEY_CURRENT_USER\\Nowhere: the nearest one above it is "
                        "shown."));
}

TEST_F(ShownSubjects, AProfileIsOpenedAtTheEntryByTheKeyboard)
{
    write("[Net]\nMask=255\nHost=one\n", QIODevice::WriteOnly, "a.ini");
    take(Made()
             .add({"profile", "GetPrivateProfileStringW",
                   "{\"section\":{\"text\":\"Net\"},\"key\":{\"text\":\"Host\"},\"fallback\":{"
                   "\"text\":\"\"},\"file\":{\"text\":\"" +
                       path("a.ini").toUtf8() + "\"}}",
                   "3", "{\"buffer\":{\"text\":\"one\"}}"})
             .bytes());
    choose("calls", 0);
    QTest::keyClick(part<QTableView>("calls"), Qt::Key_Return);
    ASSERT_TRUE(comes<ProfilesPage>());
    EXPECT_TRUE(becomes([this] { return text("file"); }, path("a.ini")));
    EXPECT_TRUE(becomes([this] { return text("key"); }, "Host"));
}

TEST_F(ShownSubjects, FilesAreSearchedFor)
{
    write("text", QIODevice::WriteOnly, "b.txt");
    const QByteArray pattern = path("*.txt").toUtf8();
    take(Made()
             .add({"directory", "findFirstFile", "{\"pattern\":{\"text\":\"" + pattern + "\"}}",
                   "{\"handle\":\"0x9\"}", "{}"})
             .bytes());
    choose("calls", 0);
    show();
    ASSERT_TRUE(comes<FilesPage>());
    EXPECT_TRUE(becomes([this] { return column("entries", 0); }, QStringList({"b.txt"})));
}

TEST_F(ShownSubjects, WhatIsAboutNothingCannotBeShown)
{
    take(usual().add({"message", "messageBox", "{}", "7"}).bytes());
    EXPECT_FALSE(isShowEnabled());
    choose("calls", 1);
    EXPECT_TRUE(isShowEnabled());
    choose("calls", 5);
    EXPECT_FALSE(isShowEnabled());
}

} // namespace
