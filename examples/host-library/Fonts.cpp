#include "Sample.h"

#include "platform/IPlatformServices.h"

#include <cwchar>

namespace {

// The procedure gets a number of the caller's, here the address of a counter. 0 asks for the next
// record of the family: the opposite of Windows.
int count(const tagLOGFONTW* /*font*/, const tagTEXTMETRICW* /*metrics*/, unsigned int /*type*/,
          long counter)
{
    ++*reinterpret_cast<int*>(counter);
    return 0;
}

} // namespace

// The catalogue is empty until the caller fills it.
std::string sample::useFonts(IPlatformServices& services)
{
    IPlatformFontManager& fonts = *services.fontManager();
    ENUMLOGFONTEXW record{};
    std::wcscpy(record.elfLogFont.lfFaceName, L"Sample local");
    for (const BYTE charSet : {ANSI_CHARSET, GB2312_CHARSET}) {
        record.elfLogFont.lfCharSet = charSet;
        fonts.addLogFont(L"Sample Sans", &record);
    }
    int records = 0;
    LOGFONTW filter{};
    std::wcscpy(filter.lfFaceName, L"Sample Sans");
    filter.lfCharSet = DEFAULT_CHARSET;
    fonts.enumFontFamiliesEx(nullptr, &filter, count, reinterpret_cast<long>(&records), 0);
    const CStdStr<wchar_t> global = fonts.getGlobalNameByLocalName(L"Sample local");
    return "fonts: " + std::to_string(records) + " records of " +
           std::string(global.begin(), global.end());
}
