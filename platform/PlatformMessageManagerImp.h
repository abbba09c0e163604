#pragma once

#include "platform/IPlatformServices.h"

/// Shows nothing and sends nothing: every operation ignores its arguments and answers with a fixed
/// value. Host libraries must not be able to stop the application with a modal box.
class PlatformMessageManagerImp : public IPlatformMessageManager
{
public:
    /// Answers every question with IDNO, whatever the style.
    int messageBox(HWND owner, const wchar_t* text, const wchar_t* caption,
                   unsigned int style) override;
    /// Returns 0: nothing was posted.
    int postMessage(HWND window, unsigned int message, unsigned long wParam, long lParam) override;
    /// Returns 0.
    long sendMessage(HWND window, unsigned int message, unsigned long wParam, long lParam) override;
    /// Returns S_FALSE and leaves the three results alone.
    int TaskDialogIndirect(const _TASKDIALOGCONFIG* config, int* button, int* radioButton,
                           int* verificationChecked) override;
};
