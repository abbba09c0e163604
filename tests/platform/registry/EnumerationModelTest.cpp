// Enumeration against listing anew. Random steps change one store in all the ways there are, and
// after each of them the services' answers are those that the store itself gives at that moment.

#include "platform/files/FileStamp.h"
#include "tests/platform/registry/PlainEnumeration.h"
#include "tests/platform/registry/RegistryFixture.h"
#include "tests/support/WaitFor.h"

#include <QCoreApplication>
#include <QSaveFile>

#include <array>
#include <random>

namespace {

constexpr int steps = 100000;
constexpr std::array<const wchar_t*, 4> keyPaths = {L"K0", L"K1", L"K1/Sub", L"K2/Sub/Deep"};

class EnumerationModel : public RegistryFixture
{
protected:
    EnumerationModel()
    {
        for (const wchar_t* path : keyPaths) {
            store.setValue(QString::fromWCharArray(path) + "/always", "1$1");
            m_keys.push_back(std::make_unique<Key>(*this, HKEY_CURRENT_USER, path));
        }
    }

    void step()
    {
        const int kind = below(1000);
        if (kind < 6)
            write();
        else if (kind < 9)
            writeDirectly();
        else if (kind < 11)
            save();
        else if (kind < 12)
            writeFile();
        else if (kind < 20)
            turn();
        else if (kind < 40)
            read();
        compare();
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    HKEY anyKey() { return below(8) == 0 ? HKEY_CURRENT_USER : HKEY(*m_keys[pick(m_keys.size())]); }
    std::size_t pick(std::size_t count) { return static_cast<std::size_t>(below(int(count))); }

    QString anyName()
    {
        static const char* const names[] = {"a",         "bb", "Sub",    "Sub/Deep",        "\\x",
                                            "ccc/dd/ee", "\\", "always", "\xF0\x9F\x98\x80"};
        return QString::fromUtf8(names[pick(std::size(names))]);
    }

    // Every call that changes the store.
    void write()
    {
        const std::wstring name = anyName().toStdWString();
        HKEY* result = nullptr;
        switch (below(5)) {
        case 0:
        case 1: setDword(anyKey(), name.c_str(), static_cast<unsigned int>(below(9))); break;
        case 2: manager->RegCreateKeyW(anyKey(), name.c_str(), result); break;
        case 3: manager->RegDeleteValueW(anyKey(), name.c_str()); break;
        default: manager->RegDeleteKeyW(anyKey(), name.c_str());
        }
    }

    QString anyPath()
    {
        return QString::fromWCharArray(keyPaths[pick(keyPaths.size())]) + '/' + anyName();
    }

    void writeDirectly()
    {
        if (below(3) > 0)
            store.setValue(anyPath(), below(2) > 0 ? "1$7" : "5$text");
        else
            store.remove(anyPath());
    }

    // What another program has changed is read in another turn than that of an enumeration.
    void save()
    {
        if (m_isFileChanged)
            turn();
        store.sync();
        m_isFileChanged = false;
    }

    // As another program does it; at times the store is made to read it at once. Sections below
    // sections are left out: each listing parses one more of them, so that two in a row differ.
    void writeFile()
    {
        QFile file(store.fileName());
        QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        switch (below(3)) {
        case 0: text += "\n[K1]\nforeign" + QByteArray::number(below(3)) + "=1$1\n"; break;
        case 1: text.replace("=1$7", "=1$8"); break;
        default: text += "\n[K2]\nSub\\late" + QByteArray::number(below(3)) + "\\x=1$1\n";
        }
        const bool isFirst = !m_isFileChanged;
        replaceFile(text);
        m_isFileChanged = !isFirst || below(2) > 0;
        if (!m_isFileChanged)
            store.sync();
    }

    void replaceFile(const QByteArray& text)
    {
        if (below(2) > 0) {
            QSaveFile file(store.fileName());
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text);
            ASSERT_TRUE(file.commit());
        } else {
            QFile file(store.fileName());
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text);
        }
    }

    // Half of the turns last until the file's time stamp says for sure when it was changed.
    void turn()
    {
        QCoreApplication::processEvents();
        if (below(2) == 0)
            return;
        EXPECT_TRUE(waitFor([this] { return FileStamp::of(store.fileName()).isSure(); }));
    }

    // Reading may make the store parse more of its file.
    void read()
    {
        const std::wstring name = anyName().toStdWString();
        HKEY opened = nullptr;
        if (below(2) > 0)
            dword(anyKey(), name.c_str());
        else if (manager->RegOpenKeyExW(anyKey(), name.c_str(), 0, 0, &opened) == 0)
            manager->RegCloseKey(opened);
    }

    void compare()
    {
        const HKEY key = anyKey();
        const auto index = static_cast<unsigned int>(below(6));
        const int call = below(3);
        const EnumerationAnswer asked = call == 0   ? askedKey(*manager, key, index)
                                        : call == 1 ? askedValue(*manager, key, index)
                                                    : askedInformation(*manager, key);
        const PlainEnumeration plain(store, key);
        EXPECT_EQ(asked, call == 0   ? plain.key(index)
                         : call == 1 ? plain.value(index)
                                     : plain.information());
    }

    std::mt19937 m_random{20221};
    std::vector<std::unique_ptr<Key>> m_keys;
    bool m_isFileChanged = false;
};

TEST_F(EnumerationModel, EveryAnswerIsThatOfListingAnew)
{
    for (int i = 0; i < steps && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        step();
    }
}

} // namespace
