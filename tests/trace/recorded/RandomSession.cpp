// A session of any length, the same for the same seed on every architecture.

#include "platform/IPlatformServices.h"
#include "tests/trace/recorded/Caller.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace {

class RandomSession
{
public:
    RandomSession(IPlatformServices& services, unsigned int seed)
        : m_registry(*services.registerManager()),
          m_profiles(*services.profileManager()),
          m_directory(*services.directoryManager()),
          m_resources(*services.resourceManager()),
          m_fonts(*services.fontManager()),
          m_random(seed)
    {
    }

    void call()
    {
        const unsigned int choice = below(100);
        if (choice < 70)
            callRegistry();
        else if (choice < 80)
            callResources();
        else if (choice < 95)
            callPaths();
        else if (choice < 97)
            callFonts();
        else
            callProfiles();
    }

private:
    // Not by a distribution, which each library makes in its own way.
    unsigned int below(unsigned int limit) { return static_cast<unsigned int>(m_random() % limit); }

    std::wstring name()
    {
        static const wchar_t* const names[] = {L"A", L"b/c", L"general", L"\u4E2D\u6587", L"d\\e",
                                               L"",  L"f g", L"=;,",     L"N1",           L"N2"};
        return names[below(10)];
    }
    std::string narrowName()
    {
        return std::string(1 + below(3), static_cast<char>('a' + below(3)));
    }
    HKEY key() { return m_keys.empty() || below(4) == 0 ? HKEY_CURRENT_USER : m_keys.back(); }

    void callRegistry()
    {
        switch (below(8)) {
        case 0: return openKey();
        case 1: return closeKey();
        case 2: return makeOrDelete();
        case 3:
        case 4: return setValue();
        case 5: return enumerate();
        default: return queryValue();
        }
    }

    void openKey()
    {
        HKEY opened = nullptr;
        if (m_keys.size() < 20 &&
            m_registry.RegOpenKeyExW(key(), name().c_str(), 0, 0x20019, &opened) == ERROR_SUCCESS)
            m_keys.push_back(opened);
    }

    void closeKey()
    {
        if (m_keys.empty())
            return;
        m_registry.RegCloseKey(m_keys.back());
        m_keys.pop_back();
    }

    void makeOrDelete()
    {
        HKEY made = nullptr;
        HKEY* result = &made;
        const std::wstring subKey = name();
        if (below(3) == 0)
            m_registry.RegDeleteKeyW(key(), subKey.c_str());
        else if (below(3) == 0)
            m_registry.RegDeleteValueW(key(), subKey.c_str());
        else
            m_registry.RegCreateKeyW(key(), subKey.c_str(), result);
    }

    void setValue()
    {
        static const unsigned int types[] = {REG_DWORD, REG_SZ, REG_BINARY, REG_QWORD, REG_LINK};
        unsigned char data[16] = {};
        for (unsigned int i = 0; i < 12; ++i)
            data[i] = static_cast<unsigned char>(i % 4 == 0 ? 'a' + below(20) : 0);
        m_registry.RegSetValueExW(key(), name().c_str(), 0, types[below(5)], data, below(13));
    }

    void queryValue()
    {
        unsigned char data[32] = {};
        DWORD type = 0;
        DWORD size = below(30);
        m_registry.RegQueryValueExW(key(), name().c_str(), nullptr, below(2) ? &type : nullptr,
                                    below(4) ? data : nullptr, &size);
    }

    void enumerate()
    {
        wchar_t text[300] = L"";
        unsigned char data[64] = {};
        DWORD length = 300;
        DWORD type = 0;
        DWORD size = below(64);
        DWORD keys = 0;
        DWORD values = 0;
        if (below(3) == 0)
            m_registry.RegEnumKeyExW(key(), below(4), text, &length, nullptr, nullptr, nullptr,
                                     nullptr);
        else if (below(2) == 0)
            m_registry.RegEnumValueW(key(), below(4), text, &length, nullptr, &type, data, &size);
        else
            m_registry.RegQueryInfoKeyW(key(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr,
                                        &values, &length, &size, nullptr, nullptr);
    }

    void callResources()
    {
        BITMAP bitmap = {};
        if (m_objects.size() < 30 && below(2) == 0) {
            m_objects.push_back(below(2)
                                    ? m_resources.createBrush(m_random() & 0xFFFFFFU)
                                    : m_resources.createImage(0, static_cast<int>(below(9)), 4));
        } else if (!m_objects.empty() && below(2) == 0) {
            m_resources.deleteObject(m_objects.back());
            m_objects.pop_back();
        } else if (!m_objects.empty()) {
            m_resources.GetBitmap(&bitmap,
                                  m_objects[below(static_cast<unsigned>(m_objects.size()))]);
        }
    }

    void callPaths()
    {
        WIN32_FIND_DATAW data = {};
        CStdStr<wchar_t> real;
        wchar_t path[300] = L"a\\b";
        switch (below(6)) {
        case 0: m_directory.isURL(name().c_str()); break;
        case 1: m_directory.AddBackslash(path); break;
        case 2: m_directory.isFileExist(L"./FILES/ONE.txt", real); break;
        case 3: m_directory.GetFileAttributesW(below(2) ? L"./files" : L"./files/none"); break;
        case 4: delete[] m_directory.PathFindExtensionW((name() + L".x").c_str()); break;
        default: m_directory.findClose(m_directory.findFirstFile(L"./files/*", &data)); break;
        }
    }

    void callFonts()
    {
        ENUMLOGFONTEXW record = {};
        record.elfLogFont.lfFaceName[0] = static_cast<wchar_t>(L'A' + below(5));
        record.elfLogFont.lfCharSet = static_cast<unsigned char>(below(3));
        if (++m_added < 20)
            m_fonts.addLogFont(name().c_str(), &record);
        else if (below(2) == 0)
            m_fonts.getGlobalNameByLocalName(record.elfLogFont.lfFaceName);
        else
            m_fonts.enumFontFamiliesEx(nullptr, &record.elfLogFont, answer,
                                       static_cast<long>(below(2)), 0);
    }

    static int answer(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/,
                      unsigned int /*type*/, long value)
    {
        return static_cast<int>(value);
    }

    void callProfiles()
    {
        wchar_t text[16] = L"";
        char narrow[16] = "";
        const std::wstring key = L"k" + std::to_wstring(below(5));
        switch (below(4)) {
        case 0:
            m_profiles.WritePrivateProfileStringW(L"S", key.c_str(), name().c_str(), L"./wide.ini");
            break;
        case 1:
            m_profiles.GetPrivateProfileStringW(L"S", key.c_str(), name().c_str(), text, below(16),
                                                L"./wide.ini");
            break;
        case 2:
            m_profiles.WritePrivateProfileStringA("S", narrowName().c_str(), narrowName().c_str(),
                                                  "./narrow.ini");
            break;
        default:
            m_profiles.GetPrivateProfileStringA("S", narrowName().c_str(), "", narrow, below(16),
                                                "./narrow.ini");
        }
    }

    IPlatformRegisterManager& m_registry;
    IPlatformProfileManager& m_profiles;
    IPlatformDirectoryManager& m_directory;
    IPlatformResourceManager& m_resources;
    IPlatformFontManager& m_fonts;
    std::mt19937 m_random;
    std::vector<HKEY> m_keys;
    std::vector<void*> m_objects;
    int m_added = 0;
};

} // namespace

void callAtRandom(IPlatformServices& services, unsigned int seed, int times)
{
    RandomSession session(services, seed);
    for (int i = 0; i < times; ++i)
        session.call();
}
