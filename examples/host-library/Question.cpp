#include "Sample.h"

#include "platform/IPlatformServices.h"

// No message box is ever shown, and every question is answered with No: a library asks so that No
// is what does no harm.
std::string sample::useQuestion(IPlatformServices& services)
{
    const int answer = services.messageManager()->messageBox(
        nullptr, L"Delete what was there before?", L"Sample", MB_YESNO | MB_ICONQUESTION);
    return answer == IDNO ? "question: no" : "question: yes";
}
