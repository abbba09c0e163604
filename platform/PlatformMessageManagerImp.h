#pragma once

#include "platform/IPlatformServices.h"

/// Implements `IPlatformMessageManager` by fixed results, whatever the arguments.
class PlatformMessageManagerImp : public IPlatformMessageManager
{
public:
    int messageBox(HWND owner, const wchar_t* text, const wchar_t* caption,
                   unsigned int style) override;
    int postMessage(HWND window, unsigned int message, unsigned long wParam, long lParam) override;
    long sendMessage(HWND window, unsigned int message, unsigned long wParam, long lParam) override;
    int TaskDialogIndirect(const _TASKDIALOGCONFIG* config, int* button, int* radioButton,
                           int* verificationChecked) override;
};
