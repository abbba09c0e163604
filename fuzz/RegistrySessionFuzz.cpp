#include "fuzz/FuzzInput.h"
#include "fuzz/PlainRegistry.h"
#include "fuzz/ScratchFile.h"
#include "host/HostLibraries.h"
#include "platform/PlatformRegisterManagerImp.h"

#include <QCoreApplication>

#include <vector>

namespace {

// A key as the services know it and as the plain rules do.
struct OpenKey
{
    HKEY handle;
    PlainRegistry::Key key;
};

// The same calls on two stores: through the services, and by the plain rules.
class Session
{
public:
    explicit Session(FuzzInput& input)
        : m_input(input),
          m_store(m_file.path(), QSettings::IniFormat),
          m_plainStore(m_plainFile.path(), QSettings::IniFormat),
          m_plain(m_plainStore),
          m_manager(managerOn(m_store)),
          m_keys({{HKEY_LOCAL_MACHINE, {}}})
    {
    }
    ~Session()
    {
        for (std::size_t i = 1; i < m_keys.size(); ++i)
            m_manager.RegCloseKey(m_keys[i].handle);
    }

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void step()
    {
        using Step = void (Session::*)();
        const Step steps[] = {&Session::open,        &Session::create,    &Session::setValue,
                              &Session::query,       &Session::queryName, &Session::deleteValue,
                              &Session::deleteKey,   &Session::listKey,   &Session::listValue,
                              &Session::information, &Session::close,     &Session::save};
        (this->*m_input.PickValueInArray(steps))();
    }

    void expectSameStores()
    {
        const QStringList names = m_store.allKeys();
        expectThat(names == m_plainStore.allKeys(), "the same entries in both stores");
        for (const QString& name : names)
            expectThat(m_store.value(name) == m_plainStore.value(name), "with the same content");
    }

private:
    static PlatformRegisterManagerImp managerOn(QSettings& store)
    {
        g_globalSettings = &store;
        return {};
    }

    std::size_t anyKey()
    {
        return m_input.ConsumeIntegralInRange<std::size_t>(0, m_keys.size() - 1);
    }

    std::wstring name()
    {
        static const wchar_t* const known[] = {L"a",   L"b",       L"a\\b",         L"a/b",
                                               L"",    L"General", L"\\",           L"long name",
                                               L"x\\", L"/a//b",   L"\x4E2D\x1F600"};
        return m_input.ConsumeBool() ? std::wstring(m_input.PickValueInArray(known))
                                     : m_input.wideText(6);
    }

    ValueRequest request()
    {
        ValueRequest made;
        made.hasType = m_input.ConsumeBool();
        made.hasData = m_input.ConsumeBool();
        // Without a size, the caller has to know that there is room.
        made.hasSize = !made.hasData || m_input.ConsumeBool();
        made.size = m_input.ConsumeIntegralInRange(1U, 64U);
        made.data = QByteArray(made.hasSize ? static_cast<int>(made.size) : 4096, '#');
        return made;
    }

    static unsigned int* type(ValueRequest& made) { return made.hasType ? &made.type : nullptr; }
    static unsigned int* size(ValueRequest& made) { return made.hasSize ? &made.size : nullptr; }
    static unsigned char* data(ValueRequest& made)
    {
        return made.hasData ? reinterpret_cast<unsigned char*>(made.data.data()) : nullptr;
    }

    void open()
    {
        const OpenKey parent = m_keys[anyKey()];
        const std::wstring subKey = name();
        HKEY handle = nullptr;
        PlainRegistry::Key key;
        const unsigned int status = m_plain.open(parent.key, QString::fromStdWString(subKey), key);
        expectThat(m_manager.RegOpenKeyExW(parent.handle, subKey.c_str(), 0, 0, &handle) == status,
                   "a key is opened where it is one");
        expectThat((handle != nullptr) == (status == ERROR_SUCCESS), "and then has a handle");
        if (handle)
            m_keys.push_back({handle, key});
    }

    void create()
    {
        const OpenKey parent = m_keys[anyKey()];
        const std::wstring subKey = name();
        HKEY handle = nullptr;
        HKEY* result = &handle;
        const unsigned int status = m_plain.create(parent.key, QString::fromStdWString(subKey));
        expectThat(m_manager.RegCreateKeyW(parent.handle, subKey.c_str(), result) == status,
                   "a key is created");
        expectThat(handle == nullptr, "and gives no handle");
    }

    void setValue()
    {
        const OpenKey key = m_keys[anyKey()];
        const std::wstring value = name();
        const auto kind = m_input.ConsumeIntegralInRange(0U, 13U);
        QByteArray bytes = QByteArray::fromStdString(m_input.ConsumeRandomLengthString(16));
        const auto count = static_cast<unsigned int>(bytes.size());
        bytes.append(8 - bytes.size() % 4, '\0'); // a text is read up to its terminator
        const unsigned int status =
            m_plain.setValue(key.key, QString::fromStdWString(value), kind, bytes, count);
        expectThat(m_manager.RegSetValueExW(
                       key.handle, value.c_str(), 0, kind,
                       reinterpret_cast<const unsigned char*>(bytes.constData()), count) == status,
                   "a value is written");
    }

    void query()
    {
        const OpenKey key = m_keys[anyKey()];
        const std::wstring value = name();
        ValueRequest expected = request();
        ValueRequest made = expected;
        const unsigned int status =
            m_plain.value(key.key, QString::fromStdWString(value), expected);
        expectThat(m_manager.RegQueryValueExW(key.handle, value.c_str(), nullptr, type(made),
                                              data(made), size(made)) == status,
                   "a value is read where there is one");
        expectThat(made == expected, "with its type, data and size");
    }

    // The size is signed there, and there is no type.
    void queryName()
    {
        const OpenKey key = m_keys[anyKey()];
        const std::wstring value = name();
        ValueRequest expected = request();
        expected.hasType = false;
        ValueRequest made = expected;
        int length = static_cast<int>(made.size);
        const unsigned int status =
            m_plain.valueOfName(key.key, QString::fromStdWString(value), expected);
        std::vector<wchar_t> text(1024);
        expectThat(m_manager.RegQueryValueW(key.handle, value.c_str(),
                                            made.hasData ? text.data() : nullptr,
                                            made.hasSize ? &length : nullptr) == status,
                   "a value is read by its name");
        expectThat(length == static_cast<int>(expected.size), "with its size");
    }

    void deleteValue()
    {
        const OpenKey key = m_keys[anyKey()];
        const std::wstring value = name();
        expectThat(m_manager.RegDeleteValueW(key.handle, value.c_str()) ==
                       m_plain.deleteValue(key.key, QString::fromStdWString(value)),
                   "a value is deleted");
    }

    void deleteKey()
    {
        const OpenKey key = m_keys[anyKey()];
        const std::wstring subKey = name();
        expectThat(m_manager.RegDeleteKeyW(key.handle, subKey.c_str()) ==
                       m_plain.deleteKey(key.key, QString::fromStdWString(subKey)),
                   "a key is deleted");
    }

    // Names are written without a terminator and without regard to the room.
    void listKey()
    {
        const OpenKey key = m_keys[anyKey()];
        const auto index = m_input.ConsumeIntegralInRange(0U, 12U);
        std::vector<wchar_t> buffer(4096, L'\0');
        unsigned int length = 0;
        QString expected;
        const unsigned int status = m_plain.keyAt(key.key, index, expected);
        expectThat(m_manager.RegEnumKeyExW(key.handle, index, buffer.data(), &length, nullptr,
                                           nullptr, nullptr, nullptr) == status,
                   "keys are listed to the last");
        expectThat(QString::fromWCharArray(buffer.data(), static_cast<int>(length)) == expected,
                   "under their names");
    }

    void listValue()
    {
        const OpenKey key = m_keys[anyKey()];
        const auto index = m_input.ConsumeIntegralInRange(0U, 12U);
        std::vector<wchar_t> buffer(4096, L'\0');
        unsigned int length = 0;
        QString name;
        ValueRequest expected = request();
        ValueRequest made = expected;
        const unsigned int status = m_plain.valueAt(key.key, index, name, expected);
        expectThat(m_manager.RegEnumValueW(key.handle, index, buffer.data(), &length, nullptr,
                                           type(made), data(made), size(made)) == status,
                   "values are listed to the last");
        expectThat(QString::fromWCharArray(buffer.data(), static_cast<int>(length)) == name,
                   "under their names");
        expectThat(made == expected, "with their content");
    }

    void information()
    {
        const OpenKey key = m_keys[anyKey()];
        const PlainRegistry::Information expected = m_plain.information(key.key);
        PlainRegistry::Information made;
        expectThat(m_manager.RegQueryInfoKeyW(key.handle, nullptr, nullptr, nullptr, &made.keys,
                                              &made.longestKey, nullptr, &made.values,
                                              &made.longestValue, &made.dataSize, nullptr,
                                              nullptr) == ERROR_SUCCESS,
                   "a key can be asked about");
        expectThat(made.keys == expected.keys && made.values == expected.values, "counts");
        expectThat(made.longestKey == expected.longestKey, "the longest key");
        expectThat(made.longestValue == expected.longestValue, "the longest value");
        expectThat(made.dataSize == expected.dataSize, "the size of its data");
    }

    void close()
    {
        if (m_keys.size() == 1)
            return;
        expectThat(m_manager.RegCloseKey(m_keys.back().handle) == ERROR_SUCCESS, "a key is closed");
        m_keys.pop_back();
    }

    // Both stores write their files, and drop what they have in memory of it.
    void save()
    {
        m_store.sync();
        m_plainStore.sync();
        QCoreApplication::processEvents();
    }

    FuzzInput& m_input;
    ScratchFile m_file;
    ScratchFile m_plainFile;
    QSettings m_store;
    QSettings m_plainStore;
    PlainRegistry m_plain;
    PlatformRegisterManagerImp m_manager;
    std::vector<OpenKey> m_keys;
};

} // namespace

// Settings warn of each empty name.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int noArguments = 0;
    static const QCoreApplication application(noArguments, nullptr);
    FuzzInput input(data, size);
    Session session(input);
    for (int i = 0; i < 200 && input.remaining_bytes() > 0; ++i)
        session.step();
    session.expectSameStores();
    return 0;
}
