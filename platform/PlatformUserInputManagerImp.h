#pragma once

#include "platform/IPlatformServices.h"

#include <map>

/// Key states from Qt's mouse-button and modifier state as of the last processed events, with a
/// table for Return and Space that the caller keeps; and the search for top-level windows.
///
/// Like its interface it has no virtual destructor: destroy it as what it is.
class PlatformUserInputManagerImp : public IPlatformUserInputManager
{
public:
    PlatformUserInputManagerImp();

    /// As `getKeyState`, and through it: a press since the last call is not told.
    int getAsyncKeyState(int virtualKey) override;

    /// -32768 (the high bit of a short, sign-extended) when the key is down, else 0. The toggle bit
    /// is never set.
    int getKeyState(int virtualKey) override;

    /// Remembers whether the key of this `Qt::Key` is down. Any code is kept; only those of Return
    /// and Space are ever asked for.
    void setKeyPressed(int qtKey, bool pressed) override;

    /// The first top-level widget whose meta-object has the class name; only when `className` is
    /// null, the first whose title is `windowName`; when both are null, the first of all. Names are
    /// compared exactly, and an empty title is never found. Returns null where there is none; the
    /// widget remains its owner's.
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
