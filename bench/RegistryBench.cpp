// Profile files and the registry. The peer is GLib's GKeyFile, on the same file in the same run: it
// reads a file and looks one value up, or reads it, sets one value and writes it back in place.

#include "host/HostLibraries.h"
#include "platform/PlatformProfileManagerImp.h"
#include "platform/PlatformRegisterManagerImp.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>

#include <glib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

// The median time of an operation in microseconds.
double median(int rounds, const std::function<void()>& operation)
{
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const Clock::time_point start = Clock::now();
        operation();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    const auto middle = times.begin() + rounds / 2;
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void report(const std::string& name, double own, double peer)
{
    std::printf("%-52s %10.1f us  peer %10.1f us  ratio %.2f\n", name.c_str(), own, peer,
                own / peer);
}

void report(const std::string& name, double own)
{
    std::printf("%-52s %10.2f us\n", name.c_str(), own);
}

struct KeyFileDeleter
{
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, KeyFileDeleter>;

struct FreeDeleter
{
    void operator()(char* text) const { g_free(text); }
};
using Text = std::unique_ptr<char, FreeDeleter>;

KeyFile loaded(const std::string& path)
{
    KeyFile file(g_key_file_new());
    if (!g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_NONE, nullptr))
        std::abort();
    return file;
}

// A profile of this many entries, spread over sections; the last value is asked for.
class Profile
{
public:
    Profile(int entries, int perSection)
        : m_name(std::to_string(entries) + " entries, " + std::to_string(perSection) +
                 " a section"),
          m_section("Section " + std::to_string((entries - 1) / perSection)),
          m_key("key" + std::to_string(entries - 1))
    {
        QFile file(QString::fromStdString(m_path));
        if (!file.open(QIODevice::WriteOnly))
            std::abort();
        for (int i = 0; i < entries; ++i) {
            if (i % perSection == 0)
                file.write("[Section " + QByteArray::number(i / perSection) + "]\n");
            file.write("key" + QByteArray::number(i) + "=value " + QByteArray::number(i) + "\n");
        }
    }

    void run()
    {
        report("narrow read, " + m_name, median(200, [this] { readNarrow(); }),
               median(200, [this] { readPeer(); }));
        report("narrow write, " + m_name, median(200, [this] { writeNarrow(); }),
               median(200, [this] { writePeer(); }));
        report("wide read, " + m_name, median(50, [this] { readWide(); }),
               median(50, [this] { readPeer(); }));
        report("wide write, " + m_name, median(20, [this] { writeWide(); }),
               median(20, [this] { writePeer(); }));
    }

private:
    void readNarrow()
    {
        char buffer[64] = {};
        m_manager.GetPrivateProfileStringA(m_section.c_str(), m_key.c_str(), nullptr, buffer,
                                           sizeof buffer, m_path.c_str());
        if (buffer[0] == '\0')
            std::abort();
    }

    void writeNarrow()
    {
        if (m_manager.WritePrivateProfileStringA(m_section.c_str(), m_key.c_str(), next().c_str(),
                                                 m_path.c_str()) != 1)
            std::abort();
    }

    void readWide()
    {
        wchar_t buffer[64] = {};
        m_manager.GetPrivateProfileStringW(wide(m_section).c_str(), wide(m_key).c_str(), nullptr,
                                           buffer, 64, wide(m_path).c_str());
        if (buffer[0] == L'\0')
            std::abort();
    }

    void writeWide()
    {
        m_manager.WritePrivateProfileStringW(wide(m_section).c_str(), wide(m_key).c_str(),
                                             wide(next()).c_str(), wide(m_path).c_str());
    }

    void readPeer()
    {
        const KeyFile file = loaded(m_path);
        const Text value(
            g_key_file_get_string(file.get(), m_section.c_str(), m_key.c_str(), nullptr));
        if (!value)
            std::abort();
    }

    // Overwrites the file as the narrow write does, without the replacing and the flushing to disk
    // that g_key_file_save_to_file() adds.
    void writePeer()
    {
        const KeyFile file = loaded(m_path);
        g_key_file_set_string(file.get(), m_section.c_str(), m_key.c_str(), next().c_str());
        gsize length = 0;
        const Text text(g_key_file_to_data(file.get(), &length, nullptr));
        const int out = open(m_path.c_str(), O_WRONLY | O_CLOEXEC);
        if (write(out, text.get(), length) != static_cast<ssize_t>(length) ||
            ftruncate(out, static_cast<off_t>(length)) != 0 || close(out) != 0)
            std::abort();
    }

    static std::wstring wide(const std::string& text)
    {
        return std::wstring(text.begin(), text.end());
    }

    std::string next() { return "value " + std::to_string(++m_count); }

    QTemporaryDir m_folder;
    std::string m_path = m_folder.filePath("profile.ini").toStdString();
    std::string m_name;
    std::string m_section;
    std::string m_key;
    PlatformProfileManagerImp m_manager;
    int m_count = 0;
};

// A store of keys with 100 values each, unless it is all one key.
class Registry
{
public:
    Registry(int values, int perKey) : m_perKey(perKey)
    {
        for (int i = 0; i < values; ++i)
            m_store.setValue(QStringLiteral("Key%1/value%2").arg(i / perKey).arg(i % perKey),
                             QStringLiteral("1$%1").arg(i));
        g_globalSettings = &m_store;
        m_manager = std::make_unique<PlatformRegisterManagerImp>();
        m_key = opened(L"Key0");
    }
    ~Registry()
    {
        m_manager->RegCloseKey(m_key);
        g_globalSettings = nullptr;
    }

    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;

    // Saves the store, and waits until its file's time stamp is older than the steps of the clock.
    void save()
    {
        m_store.sync();
        QCoreApplication::processEvents();
        QThread::msleep(50);
    }

    void readOne()
    {
        unsigned int data = 0;
        unsigned int size = sizeof data;
        if (m_manager->RegQueryValueExW(m_key, L"value42", nullptr, nullptr,
                                        reinterpret_cast<unsigned char*>(&data), &size) != 0)
            std::abort();
    }

    void openAndClose() { m_manager->RegCloseKey(opened(L"Key1")); }

    // Begins in another turn of the event loop than whatever was done before.
    void enumerate()
    {
        QCoreApplication::processEvents();
        unsigned int index = 0;
        while (isValueAt(index))
            ++index;
        if (index != static_cast<unsigned int>(m_perKey))
            std::abort();
    }

    // As programs do it that ask for the number of values each time.
    void enumerateByCount()
    {
        QCoreApplication::processEvents();
        for (unsigned int index = 0; index < countOfValues(); ++index) {
            if (!isValueAt(index))
                std::abort();
        }
    }

    void enumerateKeys(unsigned int expected)
    {
        QCoreApplication::processEvents();
        wchar_t name[64];
        unsigned int index = 0;
        while (m_manager->RegEnumKeyExW(HKEY_CURRENT_USER, index, name, nullptr, nullptr, nullptr,
                                        nullptr, nullptr) == 0)
            ++index;
        if (index != expected)
            std::abort();
    }

    // Takes the first value and deletes it until there is none.
    void deleteAll()
    {
        wchar_t name[64] = {};
        unsigned int length = 0;
        while (m_manager->RegEnumValueW(m_key, 0, name, &length, nullptr, nullptr, nullptr,
                                        nullptr) == 0) {
            name[length] = L'\0';
            m_manager->RegDeleteValueW(m_key, name);
        }
    }

    void deleteAllDirectly()
    {
        m_store.beginGroup(QStringLiteral("Key0"));
        for (QStringList names = m_store.childKeys(); !names.isEmpty(); names = m_store.childKeys())
            m_store.remove(names.first());
        m_store.endGroup();
    }

    // What QSettings alone takes for names and values.
    void readAll()
    {
        m_store.beginGroup(QStringLiteral("Key0"));
        const QStringList names = m_store.childKeys();
        for (const QString& name : names) {
            if (m_store.value(name).isNull())
                std::abort();
        }
        m_store.endGroup();
    }

    void listKeysOnce(int expected)
    {
        if (m_store.childGroups().size() != expected)
            std::abort();
    }

    // What QSettings alone takes for the same listing.
    void listOnce()
    {
        m_store.beginGroup(QStringLiteral("Key0"));
        if (m_store.childKeys().size() != m_perKey)
            std::abort();
        m_store.endGroup();
    }

private:
    bool isValueAt(unsigned int index)
    {
        wchar_t name[64];
        return m_manager->RegEnumValueW(m_key, index, name, nullptr, nullptr, nullptr, nullptr,
                                        nullptr) == 0;
    }

    unsigned int countOfValues()
    {
        unsigned int count = 0;
        m_manager->RegQueryInfoKeyW(m_key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                    &count, nullptr, nullptr, nullptr, nullptr);
        return count;
    }

    HKEY opened(const wchar_t* name)
    {
        HKEY key = nullptr;
        if (m_manager->RegOpenKeyExW(HKEY_CURRENT_USER, name, 0, 0, &key) != 0)
            std::abort();
        return key;
    }

    QTemporaryDir m_folder;
    QSettings m_store{m_folder.filePath("registry.ini"), QSettings::IniFormat};
    std::unique_ptr<PlatformRegisterManagerImp> m_manager;
    HKEY m_key = nullptr;
    int m_perKey;
};

void measureRegistry()
{
    for (const bool saved : {false, true}) {
        Registry store(100000, 100);
        if (saved)
            store.save();
        const std::string name = saved ? " (saved)" : " (unsaved)";
        report("read one of 100000 values" + name, median(20000, [&store] { store.readOne(); }));
        report("open and close a key of 100 values" + name,
               median(2000, [&store] { store.openAndClose(); }));
    }
}

// Ratios above 1 are the cost of one call for each name, which checks each time that the list is
// still true.
void measureEnumeration()
{
    for (const int values : {100, 1000, 10000}) {
        const std::string count = std::to_string(values);
        Registry store(values, values);
        store.save();
        const double all = median(20, [&store] { store.readAll(); });
        const double enumeration = median(5, [&store] { store.enumerate(); });
        report("list " + count + " values once", median(20, [&store] { store.listOnce(); }));
        report("enumerate " + count + " values", enumeration, all);
        report("enumerate " + count + " values, counting them each time",
               median(5, [&store] { store.enumerateByCount(); }), all);
        Registry keys(values, 1);
        keys.save();
        report("enumerate " + count + " keys",
               median(5, [&] { keys.enumerateKeys(static_cast<unsigned int>(values)); }),
               median(20, [&] { keys.listKeysOnce(values); }));
        if (values == 10000)
            std::printf("enumerating 10000 values: %.1f ms (at most 100)\n", enumeration / 1000);
    }
}

void measureDeletion()
{
    Registry ours(3000, 3000);
    Registry peer(3000, 3000);
    report("delete the first of 3000 values until there is none",
           median(1, [&ours] { ours.deleteAll(); }),
           median(1, [&peer] { peer.deleteAllDirectly(); }));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    for (const int entries : {2000, 20000}) {
        Profile(entries, 100).run();
        Profile(entries, entries).run();
    }
    measureRegistry();
    measureEnumeration();
    measureDeletion();
}
