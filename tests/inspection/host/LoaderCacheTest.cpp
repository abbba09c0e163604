#include "inspection/host/LoaderCache.h"
#include "tests/inspection/host/HostFile.h"

#include <QVector>

namespace {

#if defined(__aarch64__)
constexpr quint32 here = 0x0a03;
#else
constexpr quint32 here = 0x0303;
#endif

struct ListedLibrary
{
    QByteArray name;
    QByteArray path;
    quint32 flags = here;
    quint64 features = 0;
};

template <typename Number>
QByteArray number(Number value)
{
    return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
}

// As ldconfig writes it.
QByteArray cacheOf(const QVector<ListedLibrary>& libraries)
{
    const int texts = 48 + 24 * libraries.size();
    QByteArray entries;
    QByteArray text;
    for (const ListedLibrary& library : libraries) {
        entries += number(library.flags) + number<quint32>(quint32(texts + text.size()));
        text += library.name + '\0';
        entries += number<quint32>(quint32(texts + text.size())) + number<quint32>(0) +
                   number(library.features);
        text += library.path + '\0';
    }
    return "glibc-ld.so.cache1.1" + number<quint32>(quint32(libraries.size())) +
           number<quint32>(quint32(text.size())) + QByteArray(20, '\0') + entries + text;
}

class LoaderCacheFile : public testing::Test
{
protected:
    LoaderCache read(const QByteArray& bytes)
    {
        return LoaderCache::read(m_folder.file("cache", bytes));
    }

    FileFolder m_folder;
};

TEST_F(LoaderCacheFile, NamesThePathOfALibrary)
{
    const LoaderCache cache =
        read(cacheOf({{"liba.so.1", "/a/liba.so.1"}, {"libb.so", "/libb.so"}}));
    EXPECT_EQ("/a/liba.so.1", cache.pathOf("liba.so.1"));
    EXPECT_EQ("/libb.so", cache.pathOf("libb.so"));
    EXPECT_EQ("", cache.pathOf("libc.so"));
}

TEST_F(LoaderCacheFile, PassesOtherMachinesAndSpecialProcessorsOver)
{
    const LoaderCache cache = read(cacheOf({{"liba.so", "/32/liba.so", 0x0803},
                                            {"liba.so", "/fast/liba.so", here, 1ULL << 62},
                                            {"liba.so", "/first/liba.so"},
                                            {"liba.so", "/second/liba.so"}}));
    EXPECT_EQ("/first/liba.so", cache.pathOf("liba.so"));
}

TEST_F(LoaderCacheFile, IsReadBehindAListOfTheOlderForm)
{
    const QByteArray old = QByteArray("ld.so-1.7.0", 12) + number<quint32>(2) + QByteArray(24, 'x');
    EXPECT_EQ("/liba.so", read(old + cacheOf({{"liba.so", "/liba.so"}})).pathOf("liba.so"));
}

TEST_F(LoaderCacheFile, MayBeCutOrMissing)
{
    const QByteArray whole = cacheOf({{"liba.so", "/liba.so"}});
    for (int size = 0; size < whole.size(); ++size)
        EXPECT_EQ("", read(whole.left(size)).pathOf("liba.so")) << size;
    EXPECT_EQ("", LoaderCache::read(m_folder.path("none")).pathOf("liba.so"));
    EXPECT_EQ("", read(QByteArray("ld.so-1.7.0", 12) + "\xff\xff\xff\xff").pathOf("liba.so"));
}

} // namespace
