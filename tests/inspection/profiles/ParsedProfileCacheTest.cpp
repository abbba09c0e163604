#include "inspection/profiles/ParsedProfileCache.h"

#include "inspection/profiles/ProfileReader.h"
#include "platform/PlatformServicesImp.h"
#include "tests/inspection/profiles/ProfileFixture.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

// More keys than QSettings remembers of a file that nobody has open.
constexpr int manyKeys = 1000;

class ParsedProfileCacheTest : public testing::Test
{
protected:
    void SetUp() override { write('1'); }

    // Every value is this digit: all files are of the same size.
    void write(char digit) const { m_file.write(content(digit)); }
    static QByteArray content(char digit)
    {
        QByteArray text = "[S]\n";
        for (int i = 0; i < manyKeys; ++i)
            text += "k" + QByteArray::number(i) + '=' + digit + '\n';
        return text;
    }
    // Nothing tells this change from none but the bytes.
    void writeUnnoticed(char digit) const
    {
        const QDateTime stamp = m_file.stamp();
        write(digit);
        m_file.setStamp(stamp);
    }
    std::optional<QString> read() const
    {
        return ProfileReader(m_file.path()).wide(QStringLiteral("S"), QStringLiteral("k5"));
    }

    ProfileFixture m_file;
};

TEST_F(ParsedProfileCacheTest, KeepsTheFileInMemoryForTheService)
{
    const ParsedProfileCache cache(m_file.path());
    EXPECT_EQ(read(), QStringLiteral("1"));
    writeUnnoticed('2');
    EXPECT_EQ(read(), QStringLiteral("1"));
}

TEST_F(ParsedProfileCacheTest, KeepsWhatItHasParsed)
{
    const ParsedProfileCache cache(m_file.path());
    cache.parse();
    writeUnnoticed('2');
    EXPECT_EQ(read(), QStringLiteral("1"));
}

TEST_F(ParsedProfileCacheTest, LetsGoOfTheFile)
{
    {
        const ParsedProfileCache cache(m_file.path());
        EXPECT_EQ(read(), QStringLiteral("1"));
    }
    writeUnnoticed('2');
    EXPECT_EQ(read(), QStringLiteral("2"));
}

TEST_F(ParsedProfileCacheTest, ShowsTheServiceAFileOfTheSameSizeThatOthersWrote)
{
    const ParsedProfileCache cache(m_file.path());
    EXPECT_EQ(read(), QStringLiteral("1"));
    const QDateTime stamp = m_file.stamp();
    write('2');
    m_file.setStamp(stamp.addMSecs(1));
    EXPECT_EQ(read(), QStringLiteral("2"));
}

TEST_F(ParsedProfileCacheTest, ShowsTheServiceAFileOfAnotherSizeWithTheSameStamp)
{
    const ParsedProfileCache cache(m_file.path());
    EXPECT_EQ(read(), QStringLiteral("1"));
    const QDateTime stamp = m_file.stamp();
    m_file.write("[S]\nk5=22\n");
    m_file.setStamp(stamp);
    EXPECT_EQ(read(), QStringLiteral("22"));
}

TEST_F(ParsedProfileCacheTest, ShowsTheServiceThatTheFileIsGone)
{
    const ParsedProfileCache cache(m_file.path());
    EXPECT_EQ(read(), QStringLiteral("1"));
    ASSERT_TRUE(QFile::remove(m_file.path()));
    EXPECT_EQ(read(), std::nullopt);
}

TEST_F(ParsedProfileCacheTest, LeavesWhatTheServiceAndOthersWriteMeanwhile)
{
    {
        const ParsedProfileCache cache(m_file.path());
        cache.parse();
        g_PlatformServices.profileManager()->WritePrivateProfileStringW(
            L"S", L"k5", L"written", m_file.path().toStdWString().c_str());
        EXPECT_EQ(read(), QStringLiteral("written"));
        EXPECT_TRUE(m_file.bytes().contains("k5=written\n"));
        m_file.write("[S]\nk5=by others\n");
    }
    EXPECT_EQ(m_file.bytes(), "[S]\nk5=by others\n");
}

TEST_F(ParsedProfileCacheTest, WritesNothing)
{
    const QDateTime stamp = m_file.stamp();
    ParsedProfileCache(m_file.path()).parse();
    EXPECT_EQ(m_file.bytes(), content('1'));
    EXPECT_EQ(m_file.stamp(), stamp);
    const QString missing = m_file.folder() + QStringLiteral("/missing.ini");
    ParsedProfileCache(missing).parse();
    EXPECT_FALSE(QFile::exists(missing));
}

TEST_F(ParsedProfileCacheTest, ParsesInTheCodecOfTheService)
{
    m_file.write("[S]\nk5=\xe8\x8a\x82\n");
    const ParsedProfileCache cache(m_file.path());
    cache.parse();
    EXPECT_EQ(read(), QString::fromUtf8("\xe8\x8a\x82"));
}

} // namespace
