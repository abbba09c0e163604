#include "platform/profiles/ProfileWriting.h"
#include "tests/platform/profiles/ProfileManagerTest.h"

#include <random>

namespace {

/// Entries that are written at once leave the file that as many calls of the service leave.
class ProfileWritingTest : public ProfileManagerTest
{
protected:
    static std::vector<ProfileEntry> entries(std::mt19937& random)
    {
        std::vector<ProfileEntry> entries;
        const auto letter = [&] {
            return QString(QLatin1Char(static_cast<char>('a' + random() % 5)));
        };
        for (auto count = 1 + random() % 9; count > 0; --count)
            entries.push_back({letter(), letter(), QString::number(static_cast<int>(count))});
        return entries;
    }

    QString newFile(const QByteArray& bytes)
    {
        QFile file(folder.filePath(QString::number(++m_files)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    static QByteArray bytesOf(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QByteArray before(std::mt19937& random)
    {
        QByteArray bytes;
        for (const ProfileEntry& entry : entries(random))
            bytes += '[' + entry.section.toUtf8() + "]\n" + entry.key.toUtf8() + "=0\n";
        return bytes;
    }

private:
    int m_files = 0;
};

TEST_F(ProfileWritingTest, IsThatOfTheNarrowCalls)
{
    std::mt19937 random(5);
    for (int file = 0; file < 200; ++file) {
        const QByteArray former = before(random);
        const std::vector<ProfileEntry> given = entries(random);
        write(former);
        for (const ProfileEntry& entry : given)
            writeNarrow(entry.section.toUtf8(), entry.key.toUtf8(), entry.value.toUtf8());
        const QByteArray expected = content();
        write(former);
        EXPECT_TRUE(ProfileWriting::narrow(path, given));
        ASSERT_EQ(content(), expected) << former.toStdString();
    }
}

TEST_F(ProfileWritingTest, IsThatOfTheWideCalls)
{
    std::mt19937 random(6);
    for (int file = 0; file < 50; ++file) {
        const QByteArray former = before(random);
        const std::vector<ProfileEntry> given = entries(random);
        const QString single = newFile(former);
        const QString other = newFile(former);
        for (const ProfileEntry& entry : given)
            manager.WritePrivateProfileStringW(
                entry.section.toStdWString().c_str(), entry.key.toStdWString().c_str(),
                entry.value.toStdWString().c_str(), single.toStdWString().c_str());
        EXPECT_TRUE(ProfileWriting::wide(other.toStdWString().c_str(), given));
        ASSERT_EQ(bytesOf(other), bytesOf(single)) << former.toStdString();
    }
}

TEST_F(ProfileWritingTest, FailsWhereThereCanBeNoFile)
{
    EXPECT_FALSE(ProfileWriting::narrow(folder.path(), {{"s", "k", "v"}}));
}

} // namespace
