#include "platform/PlatformMessageManagerImp.h"

int PlatformMessageManagerImp::messageBox(HWND /*owner*/, const wchar_t* /*text*/,
                                          const wchar_t* /*caption*/, unsigned int /*style*/)
{
    return IDNO;
}

int PlatformMessageManagerImp::postMessage(HWND /*window*/, unsigned int /*message*/,
                                           unsigned long /*wParam*/, long /*lParam*/)
{
    return 0;
}

long PlatformMessageManagerImp::sendMessage(HWND /*window*/, unsigned int /*message*/,
                                            unsigned long /*wParam*/, long /*lParam*/)
{
    return 0;
}

int PlatformMessageManagerImp::TaskDialogIndirect(const _TASKDIALOGCONFIG* /*config*/,
                                                  int* /*button*/, int* /*radioButton*/,
                                                  int* /*verificationChecked*/)
{
    return S_FALSE;
}
