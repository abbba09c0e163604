#include "platform/PlatformUserInputManagerImp.h"

#include "platform/input/VirtualKeys.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int keyDown = -0x8000;
constexpr int firstVirtualKey = 1;
constexpr int lastVirtualKey = 254;

template <typename Matches>
HWND firstTopLevelWidget(Matches matches)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto found =
        std::find_if(widgets.begin(), widgets.end(),
                     [&matches](const QWidget* widget) { return widget && matches(*widget); });
    return found == widgets.end() ? nullptr : *found;
}

HWND findByClass(const QString& name)
{
    return firstTopLevelWidget([&name](const QWidget& widget) {
        return name == QLatin1String(widget.metaObject()->className());
    });
}

HWND findByTitle(const QString& title)
{
    return firstTopLevelWidget([&title](const QWidget& widget) {
        return !widget.windowTitle().isEmpty() && widget.windowTitle() == title;
    });
}

} // namespace

PlatformUserInputManagerImp::PlatformUserInputManagerImp()
{
    initKeyMap();
}

int PlatformUserInputManagerImp::getAsyncKeyState(int virtualKey)
{
    return getKeyState(virtualKey);
}

int PlatformUserInputManagerImp::getKeyState(int virtualKey)
{
    return isKeyPressed(virtualKey) ? keyDown : 0;
}

void PlatformUserInputManagerImp::setKeyPressed(int qtKey, bool pressed)
{
    m_pressed[qtKey] = pressed;
}

HWND PlatformUserInputManagerImp::FindWindowW(const wchar_t* className, const wchar_t* windowName)
{
    if (className)
        return findByClass(QString::fromWCharArray(className));
    if (windowName)
        return findByTitle(QString::fromWCharArray(windowName));
    return firstTopLevelWidget([](const QWidget& /*widget*/) { return true; });
}

bool PlatformUserInputManagerImp::isKeyPressed(int virtualKey)
{
    if (virtualKey < firstVirtualKey || virtualKey > lastVirtualKey)
        return false;
    const auto row = m_keyMap.find(virtualKey);
    return row != m_keyMap.end() && isQtCodePressed(row->second);
}

void PlatformUserInputManagerImp::initKeyMap()
{
    m_keyMap.clear();
    for (const VirtualKey& key : knownKeys)
        m_keyMap.emplace(key.code, key.qtCode);
}

// By the exact code, not by its bits: Space has the code of a mouse button, and Return's contains
// the middle button's bit.
bool PlatformUserInputManagerImp::isQtCodePressed(int qtCode)
{
    switch (qtCode) {
    case Qt::LeftButton:
    case Qt::RightButton:
    case Qt::MiddleButton:
        return QGuiApplication::mouseButtons().testFlag(static_cast<Qt::MouseButton>(qtCode));
    case Qt::ShiftModifier:
    case Qt::ControlModifier:
    case Qt::AltModifier:
    case Qt::MetaModifier:
        return QGuiApplication::keyboardModifiers().testFlag(
            static_cast<Qt::KeyboardModifier>(qtCode));
    case Qt::Key_Space:
    case Qt::Key_Return: return m_pressed[qtCode]; // the first question makes the entry
    default: return false;
    }
}
