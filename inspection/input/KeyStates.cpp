#include "inspection/input/KeyStates.h"

#include "platform/PlatformServicesImp.h"

const std::array<VirtualKey, 25> KeyStates::unknownKeys{{
    {VK_XBUTTON1, "VK_XBUTTON1"},
    {VK_XBUTTON2, "VK_XBUTTON2"},
    {VK_BACK, "VK_BACK"},
    {VK_TAB, "VK_TAB"},
    {VK_PAUSE, "VK_PAUSE"},
    {VK_CAPITAL, "VK_CAPITAL"},
    {VK_ESCAPE, "VK_ESCAPE"},
    {VK_PRIOR, "VK_PRIOR"},
    {VK_NEXT, "VK_NEXT"},
    {VK_END, "VK_END"},
    {VK_HOME, "VK_HOME"},
    {VK_LEFT, "VK_LEFT"},
    {VK_UP, "VK_UP"},
    {VK_RIGHT, "VK_RIGHT"},
    {VK_DOWN, "VK_DOWN"},
    {VK_SNAPSHOT, "VK_SNAPSHOT"},
    {VK_INSERT, "VK_INSERT"},
    {VK_DELETE, "VK_DELETE"},
    {VK_LWIN, "VK_LWIN"},
    {VK_RWIN, "VK_RWIN"},
    {VK_APPS, "VK_APPS"},
    {VK_F1, "VK_F1"},
    {VK_F12, "VK_F12"},
    {VK_NUMLOCK, "VK_NUMLOCK"},
    {VK_SCROLL, "VK_SCROLL"},
}};

namespace {

int state(int virtualKey)
{
    return g_PlatformServices.userInputManager()->getKeyState(virtualKey);
}

} // namespace

bool KeyStates::isDown(int virtualKey)
{
    return state(virtualKey) < 0;
}

QString KeyStates::name(bool isDown)
{
    return isDown ? tr("down") : tr("up");
}

QString KeyStates::answer(int virtualKey)
{
    const int answered = state(virtualKey);
    const QString meaning = isKnownKey(virtualKey) ? name(answered < 0) : tr("always up");
    return tr("getKeyState answers %1: %2").arg(answered).arg(meaning);
}
