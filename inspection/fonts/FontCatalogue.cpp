#include "inspection/fonts/FontCatalogue.h"

#include "platform/PlatformServicesImp.h"

#include <algorithm>
#include <cwchar>

namespace {

template <std::size_t Size>
QString fromField(const wchar_t (&field)[Size])
{
    return QString::fromWCharArray(field,
                                   static_cast<int>(std::find(field, field + Size, L'\0') - field));
}

// Cuts the text where it does not fit; the field is terminated in any case.
template <std::size_t Size>
void toField(wchar_t (&field)[Size], const QString& text)
{
    std::wcsncpy(field, text.toStdWString().c_str(), Size - 1);
    field[Size - 1] = L'\0';
}

CStdStr<wchar_t> wide(const QString& text)
{
    return text.toStdWString().c_str();
}

// The enumeration procedure appends the record to `vector`; its result 0 asks for the next one.
int append(const tagLOGFONTW* font, const tagTEXTMETRICW* /*metrics*/, unsigned int /*type*/,
           long vector)
{
    const auto* record = reinterpret_cast<const ENUMLOGFONTEXW*>(font);
    auto* records = reinterpret_cast<std::vector<RegisteredFont>*>(vector);
    records->push_back({fromField(font->lfFaceName), fromField(record->elfFullName),
                        fromField(record->elfStyle), fromField(record->elfScript), font->lfCharSet,
                        font->lfWeight, font->lfItalic != 0});
    return 0;
}

// The same for a procedure that only counts.
int countOne(const tagLOGFONTW* /*font*/, const tagTEXTMETRICW* /*metrics*/, unsigned int /*type*/,
             long counter)
{
    ++*reinterpret_cast<int*>(counter);
    return 0;
}

} // namespace

std::vector<RegisteredFont> FontCatalogue::records(const QString& face, BYTE charSet)
{
    LOGFONTW filter{};
    toField(filter.lfFaceName, face);
    filter.lfCharSet = charSet;
    std::vector<RegisteredFont> records;
    g_PlatformServices.fontManager()->enumFontFamiliesEx(nullptr, &filter, &append,
                                                         reinterpret_cast<long>(&records), 0);
    return records;
}

int FontCatalogue::count()
{
    LOGFONTW all{};
    all.lfCharSet = DEFAULT_CHARSET;
    int count = 0;
    g_PlatformServices.fontManager()->enumFontFamiliesEx(nullptr, &all, &countOne,
                                                         reinterpret_cast<long>(&count), 0);
    return count;
}

QString FontCatalogue::globalName(const QString& localName)
{
    return QString::fromStdWString(
        g_PlatformServices.fontManager()->getGlobalNameByLocalName(wide(localName)));
}

void FontCatalogue::add(const QString& globalName, const RegisteredFont& font)
{
    ENUMLOGFONTEXW record{};
    record.elfLogFont.lfWeight = font.weight;
    record.elfLogFont.lfItalic = font.italic ? 1 : 0;
    record.elfLogFont.lfCharSet = font.charSet;
    toField(record.elfLogFont.lfFaceName, font.face);
    toField(record.elfFullName, font.fullName);
    toField(record.elfStyle, font.style);
    g_PlatformServices.fontManager()->addLogFont(wide(globalName), &record);
}

bool FontCatalogue::fits(const QString& face)
{
    return face.toStdWString().size() < static_cast<std::size_t>(LF_FACESIZE);
}
