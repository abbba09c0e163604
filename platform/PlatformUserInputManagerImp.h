#pragma once

#include "platform/IPlatformServices.h"

#include <map>

/// Implements `IPlatformUserInputManager` on Qt's mouse-button and modifier state as of the last
/// processed events, with a table for Return and Space that the caller keeps.
///
/// Like its interface it has no virtual destructor: destroy it as what it is.
class PlatformUserInputManagerImp : public IPlatformUserInputManager
{
public:
    PlatformUserInputManagerImp();

    int getAsyncKeyState(int virtualKey) override;
    int getKeyState(int virtualKey) override;
    void setKeyPressed(int qtKey, bool pressed) override;
    HWND FindWindowW(const wchar_t* className, const wchar_t* windowName) override;

    /// Whether the virtual key is down. Unknown keys are up.
    bool isKeyPressed(int virtualKey);

    /// Fills the key map afresh with the keys that are known.
    void initKeyMap();

protected:
    std::map<int, int> m_keyMap;   ///< virtual key: Qt mouse button, modifier or key
    std::map<int, bool> m_pressed; ///< Qt key: whether it is down

private:
    bool isQtCodePressed(int qtCode);
};
