// Ten million calls of the services in one process, mixed: whether the last million takes longer
// than the first one, whether memory grows after the first one, and whether a handle is left over.
// Left out are the calls that keep something by intention: creating keys, setting cursors, adding
// fonts.

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int million = 1000000;
constexpr int millions = 10;
constexpr int callsATurn = 1000;
constexpr double mostGrowth = 1 << 20; // bytes

void require(bool condition)
{
    if (!condition)
        std::abort();
}

// Whatever else the machine does meanwhile does not count.
double processorSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    require(file.open(QIODevice::ReadOnly));
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

int openFiles()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::System | QDir::Files)
        .size();
}

std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

class Soak
{
public:
    Soak()
    {
        for (int i = 0; i < 50; ++i)
            m_store.setValue(QStringLiteral("Key/value%1").arg(i), QStringLiteral("1$%1").arg(i));
        g_globalSettings = &m_store;
        QFile file(m_folder.filePath(QStringLiteral("profile.ini")));
        require(file.open(QIODevice::WriteOnly));
        file.write("[section]\nkey=value\nother=text\n");
        file.close();
        require(registry().RegOpenKeyExW(HKEY_CURRENT_USER, L"Key", 0, 0, &m_key) == 0);
    }
    ~Soak()
    {
        registry().RegCloseKey(m_key);
        g_globalSettings = nullptr;
    }

    Soak(const Soak&) = delete;
    Soak& operator=(const Soak&) = delete;

    // The files that the process has open and the number of the next image.
    std::array<int, 2> handles()
    {
        void* const image = resources().createImage(0, 1, 1);
        resources().deleteObject(image);
        return {openFiles(), static_cast<int>(reinterpret_cast<quintptr>(image) & 0xFFFF)};
    }

    void runMillion()
    {
        for (int i = 0; i < million; ++i) {
            call(i);
            if (i % callsATurn == 0)
                QCoreApplication::processEvents();
        }
    }

private:
    IPlatformRegisterManager& registry() { return *g_PlatformServices.registerManager(); }
    IPlatformResourceManager& resources() { return *g_PlatformServices.resourceManager(); }
    IPlatformDirectoryManager& directories() { return *g_PlatformServices.directoryManager(); }
    IPlatformProfileManager& profiles() { return *g_PlatformServices.profileManager(); }

    // One call in twenty of the lesser ones reads or searches files.
    void call(int i)
    {
        switch (i % 100) {
        case 0: searchFolder(); break;
        case 1: readNarrow(); break;
        case 2: readWide(); break;
        case 3: openKey(); break;
        case 4: describeKey(); break;
        case 5: findExtension(); break;
        case 6: writeSometimes(i); break;
        default: callLight(i);
        }
    }

    void callLight(int i)
    {
        switch (i % 7) {
        case 0: readValue(i); break;
        case 1: enumerate(i); break;
        case 2: useImage(); break;
        case 3: useBrush(i); break;
        case 4: require(directories().isURL(L"https://www.example.org/a?b=c") == 1); break;
        case 5:
            g_PlatformServices.userInputManager()->setKeyPressed(Qt::Key_Space, i % 2 == 0);
            break;
        default: require(g_PlatformServices.userInputManager()->getKeyState(0x7F) == 0);
        }
    }

    void searchFolder()
    {
        _WIN32_FIND_DATAW data = {};
        void* const search = directories().findFirstFile(m_pattern.c_str(), &data);
        require(search != INVALID_HANDLE_VALUE);
        while (directories().findNextFile(search, &data) == 1) {
        }
        require(directories().findClose(search) == 1);
    }

    void readNarrow()
    {
        char buffer[32] = {};
        profiles().GetPrivateProfileStringA("section", "key", nullptr, buffer, sizeof buffer,
                                            m_profile.c_str());
        require(std::string(buffer) == "value");
    }

    void readWide()
    {
        wchar_t buffer[32] = {};
        profiles().GetPrivateProfileStringW(L"section", L"key", nullptr, buffer, 32,
                                            m_wideProfile.c_str());
        require(std::wstring(buffer) == L"value");
    }

    void openKey()
    {
        HKEY key = nullptr;
        require(registry().RegOpenKeyExW(HKEY_CURRENT_USER, L"Key", 0, 0, &key) == 0);
        require(registry().RegCloseKey(key) == 0);
    }

    void describeKey()
    {
        unsigned int values = 0;
        require(registry().RegQueryInfoKeyW(m_key, nullptr, nullptr, nullptr, nullptr, nullptr,
                                            nullptr, &values, nullptr, nullptr, nullptr,
                                            nullptr) == 0);
        require(values >= 50);
    }

    void findExtension()
    {
        const std::unique_ptr<wchar_t[]> extension(directories().PathFindExtensionW(L"/a/b.txt"));
        require(std::wstring(extension.get()) == L".txt");
    }

    // One in a thousand of these writes and deletes a value, and another one a line of the profile.
    void writeSometimes(int i)
    {
        const unsigned int number = static_cast<unsigned int>(i);
        if (i % 100000 != 6 && i % 100000 != 50006)
            return readValue(i);
        if (i % 100000 == 6) {
            require(registry().RegSetValueExW(m_key, L"written", 0, REG_DWORD,
                                              reinterpret_cast<const unsigned char*>(&number),
                                              sizeof number) == 0);
            require(registry().RegDeleteValueW(m_key, L"written") == 0);
        } else {
            require(profiles().WritePrivateProfileStringA("section", "other",
                                                          i % 200000 < 100000 ? "a" : "b",
                                                          m_profile.c_str()) == 1);
        }
    }

    void readValue(int i)
    {
        unsigned int data = 0;
        unsigned int size = sizeof data;
        require(registry().RegQueryValueExW(
                    m_key, m_names[static_cast<std::size_t>(i % 50)].c_str(), nullptr, nullptr,
                    reinterpret_cast<unsigned char*>(&data), &size) == 0);
        require(data == static_cast<unsigned int>(i % 50));
    }

    void enumerate(int i)
    {
        wchar_t name[32];
        require(registry().RegEnumValueW(m_key, static_cast<unsigned int>(i % 50), name, nullptr,
                                         nullptr, nullptr, nullptr, nullptr) == 0);
    }

    void useImage()
    {
        void* const image = resources().createImage(0, 4, 4);
        require(resources().fromHandle(image, IPlatformResourceManager::ObjImage) != nullptr);
        resources().deleteObject(image);
    }

    void useBrush(int i)
    {
        void* const brush = resources().createBrush(static_cast<unsigned int>(i));
        require(brush != nullptr);
        resources().deleteObject(brush);
    }

    static std::vector<std::wstring> valueNames()
    {
        std::vector<std::wstring> names;
        for (int i = 0; i < 50; ++i)
            names.push_back(L"value" + std::to_wstring(i));
        return names;
    }

    QTemporaryDir m_folder;
    QSettings m_store{m_folder.filePath(QStringLiteral("registry.ini")), QSettings::IniFormat};
    std::string m_profile = m_folder.filePath(QStringLiteral("profile.ini")).toStdString();
    std::wstring m_wideProfile = wide(m_folder.filePath(QStringLiteral("profile.ini")));
    std::wstring m_pattern = wide(m_folder.filePath(QStringLiteral("*")));
    std::vector<std::wstring> m_names = valueNames();
    HKEY m_key = nullptr;
};

void report(const char* name, double ratio, double most)
{
    std::printf("%s: ratio %.3f (at most %.1f)%s\n", name, ratio, most,
                ratio > most ? "  ABOVE" : "");
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Soak soak;
    std::vector<double> seconds;
    std::vector<double> bytes;
    std::array<int, 2> handles = {};
    for (int i = 0; i < millions; ++i) {
        const double start = processorSeconds();
        soak.runMillion();
        seconds.push_back(processorSeconds() - start);
        bytes.push_back(residentBytes());
        std::printf("million %d: %.2f s, %.2f MiB\n", i + 1, seconds.back(),
                    bytes.back() / (1 << 20));
        std::fflush(stdout);
        if (i == 0)
            handles = soak.handles();
    }
    report("time of the last million to that of the first", seconds.back() / seconds.front(), 1.1);
    report("growth of memory after the first million, to 1 MiB",
           (bytes.back() - bytes.front()) / mostGrowth, 1);
    report("handles left over", soak.handles() == handles ? 0 : 1, 0);
    return 0;
}
