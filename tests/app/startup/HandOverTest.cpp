#include "tests/app/startup/Application.h"

#include <QSettings>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

namespace {

// One run serves all rows: each looks at one line of what the host library printed.
const Application& slotsRun()
{
    static const std::unique_ptr<Application> application = [] {
        auto run = std::make_unique<Application>();
        run->setEnvironment("HOST_CALL_SLOTS", "1");
        EXPECT_TRUE(run->run());
        return run;
    }();
    return *application;
}

struct Slot
{
    const char* operation;
    const char* result;
};

std::ostream& operator<<(std::ostream& stream, const Slot& slot)
{
    return stream << slot.operation;
}

class HandOver : public testing::TestWithParam<Slot>
{
};

TEST_P(HandOver, SlotAnswersTheHostLibrary)
{
    EXPECT_EQ(QString::fromLatin1(GetParam().result),
              slotsRun().value(QString::fromLatin1(GetParam().operation)));
}

INSTANTIATE_TEST_SUITE_P(Services, HandOver,
                         testing::Values(Slot{"services.clipBoardManager", "null"},
                                         Slot{"services.plotManager", "null"},
                                         Slot{"services.localeManager", "null"}));

INSTANTIATE_TEST_SUITE_P(UserInput, HandOver,
                         testing::Values(Slot{"userInput.getAsyncKeyState", "-32768"},
                                         Slot{"userInput.getKeyState", "0"},
                                         Slot{"userInput.FindWindowW", "set"}));

INSTANTIATE_TEST_SUITE_P(
    Directory, HandOver,
    testing::Values(Slot{"directory.findFirstFile", "1"}, Slot{"directory.findNextFile", "1"},
                    Slot{"directory.findClose", "1"}, Slot{"directory.isFileExist", "1"},
                    Slot{"directory.isURL", "1"}, Slot{"directory.AddBackslash", "set"},
                    Slot{"directory.path", "a/b/"}, Slot{"directory.SHGetFolderPath", "0"},
                    Slot{"directory.PathRelativePathToW", "1"}, Slot{"directory.relative", "./b"},
                    Slot{"directory.GetTempPathW", "1"},
                    Slot{"directory.GetFileAttributesW", "144"},
                    Slot{"directory.SetFileAttributesW", "0"},
                    Slot{"directory.IsPathRelative", "1"},
                    Slot{"directory.PathFindExtensionW", ".gz"}));

INSTANTIATE_TEST_SUITE_P(Cursor, HandOver,
                         testing::Values(Slot{"cursor.GetCursorPos", "1"},
                                         Slot{"cursor.LoadCursorW", "null"},
                                         Slot{"cursor.ScreenToClient", "1"},
                                         Slot{"cursor.GetCursor", "null"},
                                         Slot{"cursor.SetCursor", "null"}));

INSTANTIATE_TEST_SUITE_P(Font, HandOver,
                         testing::Values(Slot{"font.enumFontFamiliesEx", "42"},
                                         Slot{"font.getGlobalNameByLocalName", "Global"},
                                         Slot{"font.IsValidCodePage", "0"}));

INSTANTIATE_TEST_SUITE_P(
    Resource, HandOver,
    testing::Values(Slot{"resource.loadString", "0"}, Slot{"resource.loadImage", "null"},
                    Slot{"resource.createImage", "1"}, Slot{"resource.createBrush", "262145"},
                    Slot{"resource.fromHandle", "16744512"}, Slot{"resource.GetSystemMetrics", "0"},
                    Slot{"resource.GetBitmap", "1"}, Slot{"resource.GetBitmapBits", "16"},
                    Slot{"resource.GetCursorBits", "0"}, Slot{"resource.EnumPrintersW", "0"},
                    Slot{"resource.deleteObject", "1"}, Slot{"resource.MonitorFromPoint", "1"},
                    Slot{"resource.GetMonitorInfoW", "1"}));

INSTANTIATE_TEST_SUITE_P(Profile, HandOver,
                         testing::Values(Slot{"profile.WritePrivateProfileStringW", "1"},
                                         Slot{"profile.GetPrivateProfileStringW", "2"},
                                         Slot{"profile.WritePrivateProfileStringA", "1"},
                                         Slot{"profile.GetPrivateProfileStringA", "3"},
                                         Slot{"profile.GetPrivateProfileIntW", "12"},
                                         Slot{"profile.GetPrivateProfileIntA", "0"},
                                         Slot{"profile.GetPrivateProfileSectionNamesW", "0"},
                                         Slot{"profile.GetPrivateProfileSectionW", "12"},
                                         Slot{"profile.OpenPrivateProfile", "1"},
                                         Slot{"profile.QueryPrivateProfileString", "0"},
                                         Slot{"profile.ClosePrivateProfile", "1"}));

INSTANTIATE_TEST_SUITE_P(Message, HandOver,
                         testing::Values(Slot{"message.messageBox", "7"},
                                         Slot{"message.postMessage", "0"},
                                         Slot{"message.sendMessage", "0"},
                                         Slot{"message.TaskDialogIndirect", "1"}));

INSTANTIATE_TEST_SUITE_P(
    Register, HandOver,
    testing::Values(Slot{"register.RegCreateKeyExW", "0"}, Slot{"register.RegOpenKeyExW", "0"},
                    Slot{"register.RegSetValueExW", "0"}, Slot{"register.RegQueryValueExW", "0"},
                    Slot{"register.value", "12345678 type=4 size=4"},
                    Slot{"register.RegQueryInfoKeyW", "0"}, Slot{"register.values", "1"},
                    Slot{"register.RegEnumValueW", "0"}, Slot{"register.name", "Value length=5"},
                    Slot{"register.RegEnumKeyW", "0"}, Slot{"register.RegEnumKeyExW", "0"},
                    Slot{"register.RegQueryValueW", "0"}, Slot{"register.RegDeleteValueW", "0"},
                    Slot{"register.RegCloseKey", "0"}, Slot{"register.RegOpenKeyW", "0"},
                    Slot{"register.RegDeleteKeyW", "0"}, Slot{"register.RegDeleteKeyExW", "0"},
                    Slot{"register.RegCreateKeyW", "0"}));

TEST(HandOverRun, WritesToTheHostLibrarysStore)
{
    const QSettings store(slotsRun().folder() + "/store.ini", QSettings::IniFormat);
    EXPECT_TRUE(store.contains("Other"));
    EXPECT_FALSE(store.contains("Key/Value"));
}

} // namespace
