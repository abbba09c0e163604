#include "platform/registry/ListingCache.h"
#include "platform/files/FileStamp.h"
#include "tests/platform/registry/RegistryFixture.h"
#include "tests/support/WaitFor.h"

#include <QCoreApplication>
#include <QThread>

#include <functional>
#include <new>

namespace {

// That a list is kept is seen by what it does not see: the change that another settings object
// makes in the same file. Intended: nothing tells of it.
class ListingCacheTest : public RegistryFixture
{
protected:
    ListingCacheTest()
    {
        store.setValue("Key/alpha", "1$1");
        store.setValue("Key/Sub/x", "1$1");
        saveForLong();
        key.emplace(*this, HKEY_CURRENT_USER, L"Key");
    }

    // Saves the store; a change of its file from now on gives it another time.
    void saveForLong()
    {
        store.sync();
        turn();
        EXPECT_TRUE(waitFor([this] { return FileStamp::of(store.fileName()).isSure(); }));
        turn();
    }

    static void turn() { QCoreApplication::processEvents(); }

    // The change that is not noticed.
    void changeUnseen(const QString& name) { other.setValue(name, "1$1"); }

    // Another program's change, of which the store knows nothing before it reads the file.
    void writeFile(const QByteArray& text) const
    {
        QFile file(store.fileName());
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(text);
    }

    QStringList keys()
    {
        QStringList names;
        wchar_t name[64];
        unsigned int length = 0;
        while (manager->RegEnumKeyExW(*key, static_cast<unsigned int>(names.size()), name, &length,
                                      nullptr, nullptr, nullptr, nullptr) == 0)
            names.append(QString::fromWCharArray(name, static_cast<int>(length)));
        return names;
    }

    QStringList values()
    {
        QStringList names;
        wchar_t name[64];
        unsigned int length = 0;
        while (manager->RegEnumValueW(*key, static_cast<unsigned int>(names.size()), name, &length,
                                      nullptr, nullptr, nullptr, nullptr) == 0)
            names.append(QString::fromWCharArray(name, static_cast<int>(length)));
        return names;
    }

    unsigned int countOfValues()
    {
        unsigned int count = 0;
        manager->RegQueryInfoKeyW(*key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                  &count, nullptr, nullptr, nullptr, nullptr);
        return count;
    }

    QSettings other{store.fileName(), QSettings::IniFormat};
    std::optional<Key> key;
};

TEST_F(ListingCacheTest, AListIsKeptWithinATurnOfTheEventLoop)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    EXPECT_EQ(QStringList{"Sub"}, keys());
    changeUnseen("Key/beta");
    changeUnseen("Key/Sub2/x");
    EXPECT_EQ(QStringList{"alpha"}, values());
    EXPECT_EQ(QStringList{"Sub"}, keys());
    EXPECT_EQ(1U, countOfValues());
}

TEST_F(ListingCacheTest, AListGoesWhenControlReturnsToTheEventLoop)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    changeUnseen("Key/beta");
    turn();
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, AListGoesBeforeAnyOtherEventIsDelivered)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    QStringList seen;
    QObject context;
    QMetaObject::invokeMethod(
        &context,
        [&] {
            changeUnseen("Key/beta");
            seen = values();
        },
        Qt::QueuedConnection);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ((QStringList{"alpha", "beta"}), seen);
}

TEST_F(ListingCacheTest, AListGoesWithTheEventThatWasToEndIt)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    changeUnseen("Key/beta");
    QCoreApplication::removePostedEvents(nullptr);
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, ADirectWriteIsSeenAtOnce)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    store.setValue("Key/beta", "1$1");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    store.remove("Key/alpha");
    EXPECT_EQ(QStringList{"beta"}, values());
    store.clear();
    EXPECT_EQ(QStringList{}, values());
}

TEST_F(ListingCacheTest, AsLongAsAChangeIsUnsavedNothingIsKept)
{
    store.setValue("Key/beta", "1$1");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    changeUnseen("Key/gamma");
    EXPECT_EQ((QStringList{"alpha", "beta", "gamma"}), values());
    store.sync(); // which leaves the store's event in the queue
    EXPECT_EQ((QStringList{"alpha", "beta", "gamma"}), values());
    changeUnseen("Key/delta");
    EXPECT_EQ((QStringList{"alpha", "beta", "delta", "gamma"}), values());
}

TEST_F(ListingCacheTest, AListIsKeptAgainWhenTheStoreHasSavedItself)
{
    store.setValue("Key/beta", "1$1");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    saveForLong();
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    changeUnseen("Key/gamma");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, AskingForUnsavedChangesNeitherSavesNorLosesThem)
{
    store.setValue("Key/beta", "1$1");
    const FileStamp before = FileStamp::of(store.fileName());
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    EXPECT_EQ(before, FileStamp::of(store.fileName()));
    turn();
    QFile file(store.fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("beta=1$1"));
}

TEST_F(ListingCacheTest, OthersSeeTheStoreSaveItselfOnce)
{
    struct Counter : QObject
    {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            count += event->type() == QEvent::UpdateRequest ? 1 : 0;
            return false;
        }
        int count = 0;
    } counter;
    store.installEventFilter(&counter);
    store.setValue("Key/beta", "1$1");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    EXPECT_EQ(0, counter.count);
    turn();
    turn();
    EXPECT_EQ(1, counter.count);
}

// Asking puts the event behind what is posted already, which must not go on for ever.
TEST_F(ListingCacheTest, TheStoreSavesItselfThoughEveryTurnEnumerates)
{
    struct Chain : QObject
    {
        bool event(QEvent* event) override
        {
            if (event->type() != QEvent::User)
                return QObject::event(event);
            if (--left > 0)
                QCoreApplication::postEvent(this, new QEvent(QEvent::User));
            enumerate();
            return true;
        }
        std::function<void()> enumerate;
        int left = 5;
    } chain;
    FileStamp last;
    const FileStamp before = FileStamp::of(store.fileName());
    chain.enumerate = [&] {
        EXPECT_EQ((QStringList{"alpha", "beta"}), values());
        last = FileStamp::of(store.fileName());
    };
    QCoreApplication::postEvent(&chain, new QEvent(QEvent::User));
    store.setValue("Key/beta", "1$1");
    for (int i = 0; i < 5; ++i)
        turn();
    EXPECT_EQ(0, chain.left);
    EXPECT_NE(before, last);
}

TEST_F(ListingCacheTest, AWriteOfTheServicesIsSeenThoughTheStoresSavingIsWithheld)
{
    struct Withholder : QObject
    {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            return event->type() == QEvent::UpdateRequest;
        }
    } withholder;
    store.installEventFilter(&withholder);
    store.setValue("Key/beta", "1$1");
    turn();
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
    EXPECT_EQ(0U, setDword(*key, L"gamma", 1));
    EXPECT_EQ((QStringList{"alpha", "beta", "gamma"}), values());
    EXPECT_EQ(0U, manager->RegDeleteValueW(*key, L"beta"));
    EXPECT_EQ((QStringList{"alpha", "gamma"}), values());
    HKEY* result = nullptr;
    EXPECT_EQ(0U, manager->RegCreateKeyW(*key, L"delta", result));
    EXPECT_EQ(3U, countOfValues());
    EXPECT_EQ(QStringList{"Sub"}, keys());
    EXPECT_EQ(0U, manager->RegDeleteKeyW(*key, L"Sub"));
    EXPECT_EQ(QStringList{}, keys());
}

TEST_F(ListingCacheTest, NothingIsKeptDuringASuspension)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    const ListingCache::Suspension suspension;
    changeUnseen("Key/beta");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, AListGoesWhenTheFileChanges)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    changeUnseen("Key/beta");
    writeFile("\n");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, NothingMoreIsKeptInTheTurnInWhichTheFileChanges)
{
    EXPECT_EQ(QStringList{"alpha"}, values());
    writeFile("\n[Key]\nbeta=1$1\n");
    ASSERT_TRUE(FileStamp::of(store.fileName()).exists());
    while (!FileStamp::of(store.fileName()).isSure())
        QThread::msleep(1);
    EXPECT_EQ(QStringList{"alpha"}, values());
    store.sync();
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, NothingIsKeptWhereAChangeMightGiveTheFileTheSameTime)
{
    writeFile("\n");
    EXPECT_EQ(QStringList{"alpha"}, values());
    if (FileStamp::of(store.fileName()).isSure())
        GTEST_SKIP() << "the machine is too slow";
    changeUnseen("Key/beta");
    EXPECT_EQ((QStringList{"alpha", "beta"}), values());
}

TEST_F(ListingCacheTest, AKeptListIsThatOfTheGroupThatTheHostIsIn)
{
    store.setValue("Outer/Key/inner", "1$1");
    saveForLong();
    EXPECT_EQ(QStringList{"alpha"}, values());
    store.beginGroup("Outer");
    EXPECT_EQ(QStringList{"inner"}, values());
    store.endGroup();
    EXPECT_EQ(QStringList{"alpha"}, values());
}

TEST_F(ListingCacheTest, AKeptListDoesNotOutliveItsStore)
{
    alignas(QSettings) unsigned char place[sizeof(QSettings)];
    const auto list = [&place](const char* file) {
        auto* const settings =
            new (place) QSettings(QString::fromLatin1(file), QSettings::IniFormat);
        const QStringList names = {
            QString::number(ListingCache::names(*settings, ListingCache::Kind::Values)->count())};
        settings->~QSettings();
        return names;
    };
    EXPECT_EQ(QStringList{"0"}, list("/nowhere/a.ini"));
    store.setValue("top", "1$1");
    saveForLong();
    EXPECT_EQ(QStringList{"0"}, list("/nowhere/a.ini"));
    EXPECT_EQ(QStringList{"1"}, list(store.fileName().toLatin1().constData()));
}

TEST_F(ListingCacheTest, MoreKeysThanAreKeptAreListedRightly)
{
    for (int i = 0; i < 40; ++i)
        store.setValue(QStringLiteral("Many/K%1/v%1").arg(i), "1$1");
    saveForLong();
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 40; ++i) {
            key.emplace(*this, HKEY_CURRENT_USER,
                        QStringLiteral("Many/K%1").arg(i).toStdWString().c_str());
            EXPECT_EQ(QStringList{QStringLiteral("v%1").arg(i)}, values());
        }
    }
}

TEST_F(ListingCacheTest, AGroupThatIsParsedLaterIsListedFromThenOn)
{
    const QString path = folder.filePath("nested.ini");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Key]\nalpha=1$1\n[Key\\Late]\nx=1$1\n");
    file.close();
    ASSERT_TRUE(waitFor([&path] { return FileStamp::of(path).isSure(); }));
    turn();
    QSettings nested(path, QSettings::IniFormat);
    nested.beginGroup("Key");
    const auto groups = [&nested] {
        return ListingCache::names(nested, ListingCache::Kind::Keys)->count();
    };
    const unsigned int before = groups();
    EXPECT_EQ(before, groups());
    EXPECT_TRUE(nested.contains("Late/x"));
    EXPECT_EQ(static_cast<unsigned int>(nested.childGroups().size()), groups());
    EXPECT_EQ(1U, groups());
}

TEST_F(ListingCacheTest, AnotherThreadsStoreIsListedAnewWithoutAWarning)
{
    const QString path = folder.filePath("thread.ini");
    unsigned int counts[2] = {};
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        QSettings own(path, QSettings::IniFormat);
        for (unsigned int& count : counts) {
            own.setValue(QString::number(reinterpret_cast<quintptr>(&count)), "1$1");
            count = ListingCache::names(own, ListingCache::Kind::Values)->count();
        }
    }));
    thread->start();
    ASSERT_TRUE(thread->wait());
    EXPECT_EQ(1U, counts[0]);
    EXPECT_EQ(2U, counts[1]);
}

} // namespace
