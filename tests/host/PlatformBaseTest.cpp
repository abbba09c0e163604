#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <dlfcn.h>

// Null where nothing defines them, as for the application.
[[gnu::weak]] int InitOrbxConfig(const wchar_t* language);
[[gnu::weak]] void CreateConfigReg();
[[gnu::weak]] int GetCurrentOrbxLanguageId();

namespace {

TEST(StandIn, SetsTheSettingsStoreUpWhenTheServicesAreHandedOver)
{
    setPlatformServices(&g_PlatformServices);
    ASSERT_NE(nullptr, g_globalSettings);
    EXPECT_EQ(QSettings::IniFormat, g_globalSettings->format());
    EXPECT_EQ(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/registry.ini",
              g_globalSettings->fileName());
}

TEST(StandIn, KeepsOneStore)
{
    setPlatformServices(&g_PlatformServices);
    QSettings* first = g_globalSettings;
    setPlatformServices(&g_PlatformServices);
    EXPECT_EQ(first, g_globalSettings);
}

TEST(StandIn, StoreKeepsCharactersBeyondTheBmp)
{
    setPlatformServices(&g_PlatformServices);
    const QString text = QString::fromUcs4(U"a\U0001F600z");
    g_globalSettings->setValue("key/emoji", text);
    g_globalSettings->sync();
    QFile::copy(g_globalSettings->fileName(), g_globalSettings->fileName() + ".copy");
    const QSettings reread(g_globalSettings->fileName() + ".copy", QSettings::IniFormat);
    EXPECT_EQ(text, reread.value("key/emoji").toString());
}

TEST(StandIn, SavesTheStoreAtExit)
{
    const auto writeAndExit = [] {
        setPlatformServices(&g_PlatformServices);
        g_globalSettings->setValue("key/saved", "5$at exit");
        std::exit(0); // NOLINT(concurrency-mt-unsafe): the exit is what is tested
    };
    EXPECT_EXIT(writeAndExit(), testing::ExitedWithCode(0), "");
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/registry.ini";
    ASSERT_TRUE(QFile::exists(path));
    QFile::copy(path, path + ".saved");
    EXPECT_EQ("5$at exit",
              QSettings(path + ".saved", QSettings::IniFormat).value("key/saved").toString());
}

class StrcpyS : public testing::Test
{
protected:
    StrcpyS() { bytes.fill('#'); }
    char* destination() { return bytes.data() + 1; }
    std::string content() const { return std::string(bytes.data(), bytes.size()); }

    std::array<char, 8> bytes;
};

TEST_F(StrcpyS, CopiesWhatFitsWithItsTerminator)
{
    EXPECT_EQ(0, strcpy_s(destination(), 6, "hello"));
    EXPECT_EQ(std::string("#hello\0#", 8), content());
}

TEST_F(StrcpyS, RefusesWhatDoesNotFit)
{
    EXPECT_EQ(ERANGE, strcpy_s(destination(), 5, "hello"));
    EXPECT_EQ(std::string("#\0######", 8), content());
}

TEST_F(StrcpyS, RefusesANullSource)
{
    EXPECT_EQ(EINVAL, strcpy_s(destination(), 5, nullptr));
    EXPECT_EQ(std::string("#\0######", 8), content());
}

TEST_F(StrcpyS, RefusesInvalidDestinations)
{
    EXPECT_EQ(EINVAL, strcpy_s(nullptr, 5, "hello"));
    EXPECT_EQ(EINVAL, strcpy_s(destination(), 0, "hello"));
    EXPECT_EQ(EINVAL, strcpy_s(destination(), -1, "hello"));
    EXPECT_EQ(std::string(8, '#'), content());
}

TEST(GetProcAddress, FindsFunctionsOfAModule)
{
    void* module = dlopen("libm.so.6", RTLD_NOW);
    ASSERT_NE(nullptr, module);
    EXPECT_EQ(dlsym(module, "cos"), GetProcAddress(module, "cos"));
    EXPECT_NE(nullptr, GetProcAddress(module, "cos"));
    EXPECT_EQ(nullptr, GetProcAddress(module, "no_such_function"));
    EXPECT_EQ(nullptr, GetProcAddress(module, nullptr));
    dlclose(module);
}

TEST(GetProcAddress, FindsNothingWithoutAModule)
{
    ASSERT_NE(nullptr, dlsym(RTLD_DEFAULT, "malloc"));
    EXPECT_EQ(nullptr, GetProcAddress(nullptr, "malloc"));
    EXPECT_EQ(nullptr, GetProcAddress(nullptr, nullptr));
}

TEST(StandIn, DoesNothingAboutCopiedStrings)
{
    updateCStringManagerData(nullptr);
    const CStdStr<wchar_t> text(L"text");
    const CStdStr<wchar_t> copy(text); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(L"text", copy);
}

TEST(StandIn, SuppliesNoConfigurationLibrary)
{
    EXPECT_EQ(nullptr, reinterpret_cast<void*>(&InitOrbxConfig));
    EXPECT_EQ(nullptr, reinterpret_cast<void*>(&CreateConfigReg));
    EXPECT_EQ(nullptr, reinterpret_cast<void*>(&GetCurrentOrbxLanguageId));
}

} // namespace
