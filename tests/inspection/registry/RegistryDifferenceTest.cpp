#include "inspection/registry/RegistryDifference.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QBuffer>

namespace {

class RegistryDifferences : public RegistryTest
{
protected:
    static RegistryContents fromFile(const QByteArray& statements, const QString& path = {})
    {
        auto file = std::make_unique<QBuffer>();
        file->setData("REGEDIT4\r\n" + statements);
        file->open(QIODevice::ReadOnly);
        return RegistryContents::ofRegistryFile(std::move(file), path);
    }

    /// One line a difference: its kind as a sign, key, name, both sides.
    static std::string differences(const RegistryContents& before, const RegistryContents& after)
    {
        QString text;
        for (const RegistryDifference& one : registryDifferences(before, after))
            text += QStringLiteral("%1%2:%3:%4:%5\n")
                        .arg(QStringLiteral("+-~").at(static_cast<int>(one.kind)))
                        .arg(one.key, one.name, one.before, one.after);
        return text.toStdString();
    }
};

TEST_F(RegistryDifferences, AreNoneBetweenAKeyAndItself)
{
    store("A/v", "5$x");
    EXPECT_EQ(differences(RegistryContents::ofKey("A"), RegistryContents::ofKey("A")), "");
}

TEST_F(RegistryDifferences, TellKeysAndValuesThatAreAddedRemovedOrChanged)
{
    store("A/gone", "5$x");
    store("A/v", "5$x");
    store("B/new/w", "1$2");
    store("B/v", "1$3");
    EXPECT_EQ(differences(RegistryContents::ofKey("A"), RegistryContents::ofKey("B")),
              "-:gone:REG_SZ x:\n+new:::\n+new:w::REG_DWORD 2\n~:v:REG_SZ x:REG_DWORD 3\n");
}

TEST_F(RegistryDifferences, CompareWhatAHostLibraryReads)
{
    store("A/v", "1$7");
    store("B/v", "1$07");
    EXPECT_EQ(differences(RegistryContents::ofKey("A"), RegistryContents::ofKey("B")), "");
}

TEST_F(RegistryDifferences, CompareTheStoredTextsOfWhatNobodyReads)
{
    store("A/v", "text");
    store("B/v", "other");
    EXPECT_EQ(differences(RegistryContents::ofKey("A"), RegistryContents::ofKey("B")),
              "~:v:unreadable: text:unreadable: other\n");
}

TEST_F(RegistryDifferences, TellKeysThatHoldNothing)
{
    store("A/empty", QVariant());
    store("B/v", "5$x");
    EXPECT_EQ(differences(RegistryContents::ofKey("A"), RegistryContents::ofKey("B")),
              "-empty:::\n+:v::REG_SZ x\n");
}

TEST_F(RegistryDifferences, TakeARegistryFileAsItIsImported)
{
    store("A/v", "5$x");
    const RegistryContents file =
        fromFile("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n\"w\"=\"y\"\r\n\"w\"=-\r\n"
                 "[HKEY_CURRENT_USER\\B\\C]\r\n\"v\"=\"x\"\r\n[-HKEY_CURRENT_USER\\B]\r\n"
                 "\"stray\"=\"x\"\r\n");
    EXPECT_EQ(differences(RegistryContents::ofKey({}), file), "");
    EXPECT_EQ(file.refused(), 1);
}

TEST_F(RegistryDifferences, RestrictARegistryFileToAKey)
{
    store("A/v", "5$x");
    const RegistryContents file = fromFile("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n"
                                           "[HKEY_CURRENT_USER\\AB]\r\n\"v\"=\"x\"\r\n",
                                           "A");
    EXPECT_EQ(differences(RegistryContents::ofKey("A"), file), "");
}

TEST_F(RegistryDifferences, TellAFileThatIsNoRegistryFile)
{
    auto file = std::make_unique<QBuffer>();
    file->setData("nonsense");
    file->open(QIODevice::ReadOnly);
    EXPECT_FALSE(RegistryContents::ofRegistryFile(std::move(file), {}).error().isEmpty());
}

} // namespace
