#include "inspection/input/WindowSearch.h"

#include "platform/PlatformServicesImp.h"

#include <QCoreApplication>

namespace {

const wchar_t* textOrNull(const std::wstring& text)
{
    return text.empty() ? nullptr : text.c_str();
}

} // namespace

HWND findWindow(const QString& className, const QString& windowName)
{
    const std::wstring wideClassName = className.toStdWString();
    const std::wstring wideWindowName = windowName.toStdWString();
    return g_PlatformServices.userInputManager()->FindWindowW(textOrNull(wideClassName),
                                                              textOrNull(wideWindowName));
}

QString searchRemark(HWND found)
{
    if (found)
        return QCoreApplication::translate("WindowSearch", "A window was found.");
    return QCoreApplication::translate(
        "WindowSearch", "No window was found. Names must match exactly, upper and lower case "
                        "included.");
}
