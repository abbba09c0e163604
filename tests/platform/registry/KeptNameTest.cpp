#include "platform/registry/KeptName.h"

#include "tests/platform/registry/RegistryFixture.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

// Names that are written through the service and read from the file by another store: the one that
// wrote it remembers what it has written.
class KeptNameTest : public RegistryFixture
{
protected:
    QStringList entriesAfterRestart()
    {
        store.sync();
        const QString copy = store.fileName() + QString::number(++m_copies); // none is remembered
        EXPECT_TRUE(QFile::copy(store.fileName(), copy));
        return QSettings(copy, QSettings::IniFormat).allKeys();
    }

    void expectForetold()
    {
        QStringList foretold;
        const QStringList written = store.allKeys();
        for (const QString& path : written) {
            const QString later = KeptName::afterRestart(path);
            if (!later.isNull())
                foretold.append(later);
        }
        std::sort(foretold.begin(), foretold.end());
        EXPECT_EQ(entriesAfterRestart().join('|').toStdString(), foretold.join('|').toStdString());
    }

    int m_copies = 0;
    const std::vector<std::wstring> m_names = {
        L"general", L"General", L"\\",      L"a\\",     L"x/",     L"/y",  L"p\\q",
        L" blank ", L"=",       L"a=b",     L";c",      L"[s]",    L"%41", L"\"",
        L"\xe4",    L"\x4e2d",  L"\x1f600", L"\ufeffz", L"z\ufeff"};
};

TEST_F(KeptNameTest, ForetellsTheValuesOfAKey)
{
    store.setValue("A/first", "1$1");
    const Key key(*this, HKEY_CURRENT_USER, L"A");
    for (const std::wstring& name : m_names)
        EXPECT_EQ(0U, setDword(key, name.c_str(), 1));
    expectForetold();
}

TEST_F(KeptNameTest, ForetellsTheValuesOfADeeperKey)
{
    store.setValue("A/B/first", "1$1");
    const Key key(*this, HKEY_CURRENT_USER, L"A/B");
    for (const std::wstring& name : m_names)
        EXPECT_EQ(0U, setDword(key, name.c_str(), 1));
    expectForetold();
    EXPECT_FALSE(entriesAfterRestart().contains("A/B/"));
}

TEST_F(KeptNameTest, ForetellsEachValueDirectlyUnderARoot)
{
    for (const std::wstring& name : m_names) {
        store.clear();
        EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, name.c_str(), 1));
        expectForetold();
    }
}

TEST_F(KeptNameTest, ForetellsKeysThatAreCalledGeneral)
{
    for (const char* entry : {"general/v", "GENERAL/a/v", "A/general/v", "general", "%general/v"}) {
        store.clear();
        store.setValue(entry, "1$1");
        expectForetold();
    }
    EXPECT_EQ("General/a/v", KeptName::afterRestart("gEnerAl/a/v"));
}

TEST_F(KeptNameTest, ForetellsANameThatLosesItsFirstCharacter)
{
    store.setValue("A/first", "1$1");
    const Key key(*this, HKEY_CURRENT_USER, L"A");
    for (const std::wstring& name : {std::wstring(L"\ufeffz"), std::wstring(L"z\ufeff")}) {
        EXPECT_EQ(0U, setDword(key, name.c_str(), 1));
        QString typed;
        for (const wchar_t character : name)
            typed += QChar(static_cast<ushort>(character));
        EXPECT_EQ(KeptName::losesFirst(typed), !store.contains("A/" + typed));
    }
}

} // namespace
