#pragma once

#include "host/HostLibraries.h"
#include "platform/PlatformRegisterManagerImp.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

/// A register manager over a store of the test's own.
class RegistryFixture : public testing::Test
{
protected:
    RegistryFixture()
    {
        g_globalSettings = &store;
        manager.emplace();
    }
    ~RegistryFixture() override { g_globalSettings = nullptr; }

    /// A handle that is closed at the end of its scope.
    class Key
    {
    public:
        Key(RegistryFixture& fixture, HKEY parent, const wchar_t* subKey) : m_fixture(fixture)
        {
            EXPECT_EQ(0U, fixture.manager->RegOpenKeyExW(parent, subKey, 0, 0, &m_handle));
        }
        ~Key() { m_fixture.manager->RegCloseKey(m_handle); }

        Key(const Key&) = delete;
        Key& operator=(const Key&) = delete;

        operator HKEY() const { return m_handle; } // NOLINT(google-explicit-constructor): a handle
        QString path() const { return *static_cast<const QString*>(m_handle); }

    private:
        RegistryFixture& m_fixture;
        HKEY m_handle = nullptr;
    };

    unsigned int setDword(HKEY key, const wchar_t* name, unsigned int value)
    {
        return manager->RegSetValueExW(
            key, name, 0, REG_DWORD, reinterpret_cast<const unsigned char*>(&value), sizeof value);
    }

    /// The DWORD of a value; nothing when it cannot be read.
    std::optional<unsigned int> dword(HKEY key, const wchar_t* name)
    {
        unsigned int value = 0;
        unsigned int size = sizeof value;
        if (manager->RegQueryValueExW(key, name, nullptr, nullptr,
                                      reinterpret_cast<unsigned char*>(&value), &size) != 0)
            return std::nullopt;
        return value;
    }

    /// Saves the store and reads it from a copy of its file, of which QSettings knows nothing yet.
    std::unique_ptr<QSettings> storeOnDisk()
    {
        store.sync();
        const QString copy = folder.filePath("copy.ini");
        EXPECT_TRUE(QFile::copy(store.fileName(), copy));
        return std::make_unique<QSettings>(copy, QSettings::IniFormat);
    }

    /// Saves the store; what its file then holds.
    QByteArray fileOnDisk()
    {
        store.sync();
        QFile file(store.fileName());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QString stored(const QString& path) { return store.value(path).toString(); }

    QTemporaryDir folder;
    QSettings store{folder.filePath("registry.ini"), QSettings::IniFormat};
    std::optional<PlatformRegisterManagerImp> manager;
};
