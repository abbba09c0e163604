#include "host/HostLibraries.h"
#include "inspection/registry/KeyMovePlanJob.h"
#include "inspection/registry/RegistryApplyJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryRemovalJob.h"
#include "inspection/registry/StoreChangeJob.h"
#include "inspection/registry/StoreEntry.h"
#include "inspection/registry/ValueRemovalJob.h"
#include "regfile/RegFileText.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QMap>
#include <QSettings>

namespace {

using Direction = StoreChangeJob::Direction;
using Entries = QMap<QString, QVariant>;
using Others = StoreChangeJob::Others;

class StoreChanges : public RegistryTest
{
protected:
    static Entries entries()
    {
        Entries all;
        for (const QString& path : g_globalSettings->allKeys())
            all.insert(path, g_globalSettings->value(path));
        return all;
    }

    // Entries of every kind, some of which no host library can write.
    static void fill()
    {
        store("A/number", "1$42");
        store("A/large", "2$100000");
        store("A/untagged", "Maria Lund");
        store("A/list", QStringList({"a", "b"}));
        store("A/fresh", QVariant());
        store("A/twin", "5$value");
        store("A/twin/inside", "5$text");
        store("A/x\\y", "5$backslash");
        store("B/other", "1$1");
        store("X/X", "1$1");
        store("loose", "5$x");
    }

    static void finish(Job& job)
    {
        while (job.step()) {
        }
    }

    static void run(const StoreChange& change, Direction direction, Others others = Others::StopAll)
    {
        StoreChangeJob job(std::make_shared<StoreChange>(change), direction, others);
        finish(job);
        EXPECT_FALSE(job.isStopped());
    }

    // That a change that has been made can be taken back, and made again.
    static void expectReversible(const StoreRecorder& recorder, const Entries& before)
    {
        const Entries after = entries();
        EXPECT_NE(after, before);
        run(recorder.change(), Direction::TakeBack);
        EXPECT_EQ(entries(), before);
        run(recorder.change(), Direction::Make);
        EXPECT_EQ(entries(), after);
    }

    static std::shared_ptr<const ImportPlan> plan(const char* body)
    {
        RegistryImportJob reading((regFileHeader + "\n\n" + body).toUtf8());
        finish(reading);
        return reading.plan();
    }
};

TEST_F(StoreChanges, AnEntryIsRemovedWithoutTheGroupOfItsName)
{
    fill();
    StoreEntry::remove("A/twin");
    EXPECT_FALSE(StoreEntry::read("A/twin"));
    EXPECT_EQ(stored("A/twin/inside").toStdString(), "5$text");
}

TEST_F(StoreChanges, AnEntryWithoutANameIsReadAndLeavesItsGroupAlone)
{
    ASSERT_EQ(RegistryKey("A").set("\\", REG_DWORD, QByteArray(4, '\0')), ERROR_INVALID_FUNCTION);
    store("A/v", "1$1");
    ASSERT_EQ(RegistryKey("A").set("\\", REG_DWORD, QByteArray(4, '\0')), ERROR_SUCCESS);
    EXPECT_EQ(StoreEntry::read("A/"), QVariant("1$0"));
    EXPECT_EQ(StoreEntry::below("A"), QStringList({"A/", "A/v"}));
    StoreEntry::remove("A/");
    EXPECT_TRUE(holds("A/v"));
}

TEST_F(StoreChanges, TheEntryOfAValueIsTheOneThatTheServiceSets)
{
    for (const char* key : {"A", ""}) {
        for (const char* name : {"plain", "a\\b", "a/b", "\\a"}) {
            g_globalSettings->clear();
            store("A/v", "1$1");
            ASSERT_EQ(RegistryKey(key).set(name, REG_DWORD, QByteArray(4, '\0')), ERROR_SUCCESS);
            QStringList added = g_globalSettings->allKeys();
            added.removeOne("A/v");
            EXPECT_EQ(added, QStringList(StoreEntry::ofValue(key, name))) << key << ' ' << name;
        }
    }
}

TEST_F(StoreChanges, ASetValueIsTakenBackAndMadeAgain)
{
    fill();
    const Entries before = entries();
    StoreRecorder recorder;
    for (const char* name : {"untagged", "twin", "new"}) {
        recorder.watch(StoreEntry::ofValue("A", name));
        ASSERT_EQ(RegistryKey("A").set(name, REG_DWORD, QByteArray(4, '\0')), ERROR_SUCCESS);
    }
    recorder.record();
    EXPECT_EQ(recorder.change().size(), 3U);
    expectReversible(recorder, before);
}

TEST_F(StoreChanges, WhatStaysAsItIsIsNoChange)
{
    store("A/v", "1$0");
    StoreRecorder recorder;
    recorder.watch("A/v");
    ASSERT_EQ(RegistryKey("A").set("v", REG_DWORD, QByteArray(4, '\0')), ERROR_SUCCESS);
    recorder.record();
    EXPECT_TRUE(recorder.change().empty());
}

TEST_F(StoreChanges, DeletedValuesComeBackWithTheKeysThatWentAlong)
{
    fill();
    const Entries before = entries();
    const auto recorder = std::make_shared<StoreRecorder>();
    ValueRemovalJob job({{"A", "twin"}, {"A", "list"}, {"X", "X"}, {"", "loose"}}, recorder);
    finish(job);
    EXPECT_FALSE(holds("A/twin/inside"));
    expectReversible(*recorder, before);
}

TEST_F(StoreChanges, ADeletedKeyComesBackWithEverythingBelowIt)
{
    fill();
    const Entries before = entries();
    const auto recorder = std::make_shared<StoreRecorder>();
    RegistryRemovalJob job(registryKeysFrom("A"), recorder);
    finish(job);
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList({"B/other", "X/X", "loose"}));
    expectReversible(*recorder, before);
}

TEST_F(StoreChanges, AnImportIsTakenBackAsAWhole)
{
    fill();
    const Entries before = entries();
    const auto recorder = std::make_shared<StoreRecorder>();
    RegistryApplyJob job(
        plan("[HKEY_USERS\\A]\n\"number\"=dword:7\n\"twin\"=-\n\"sub\\\\v\"=\"x\"\n"
             "[HKEY_USERS\\New\\Deep]\n[-HKEY_USERS\\B]\n"
             "[HKEY_USERS\\B]\n\"again\"=\"x\"\n"
             "[HKEY_USERS]\n\"Under\"=\"x\"\n\"X\"=-\n"),
        recorder);
    finish(job);
    EXPECT_EQ(job.applied(), 11);
    EXPECT_FALSE(holds("A/twin/inside"));
    EXPECT_EQ(stored("Under/Under").toStdString(), "5$x");
    expectReversible(*recorder, before);
}

TEST_F(StoreChanges, AKeyMovesWithAllThatItHolds)
{
    fill();
    const Entries before = entries();
    KeyMovePlanJob plan("A", "Z");
    finish(plan);
    const StoreChange change = plan.takeChange();
    EXPECT_EQ(entries(), before);
    run(change, Direction::Make);
    EXPECT_TRUE(StoreEntry::below("A").isEmpty());
    for (const QString& path : StoreEntry::below("Z"))
        EXPECT_EQ(StoreEntry::read(path), before.value("A" + path.mid(1))) << path.toStdString();
    EXPECT_EQ(entries().size(), before.size());
    run(change, Direction::TakeBack);
    EXPECT_EQ(entries(), before);
}

TEST_F(StoreChanges, OnlyTheMarkOfACreatedKeyMovesWithIt)
{
    fill();
    for (const char* path : {"A/fresh", "A/twin"}) {
        KeyMovePlanJob plan(path, "A/other");
        finish(plan);
        EXPECT_EQ(plan.takeChange().size(), 2U) << path; // an entry goes and one comes
    }
}

// A move of a key that is cancelled after some number of steps.
class CancelledMove : public StoreChanges
{
protected:
    CancelledMove()
    {
        fill();
        KeyMovePlanJob plan("A", "Z");
        finish(plan);
        m_change = std::make_shared<StoreChange>(plan.takeChange());
        m_before = entries();
        run(*m_change, Direction::Make);
        m_after = entries();
    }

    static void put(const Entries& all)
    {
        g_globalSettings->clear();
        for (auto at = all.cbegin(); at != all.cend(); ++at)
            store(at.key(), at.value());
    }

    void expectNothingLost(int steps) const
    {
        for (auto at = m_before.cbegin(); at != m_before.cend(); ++at) {
            const QString moved = at.key().startsWith("A/") ? "Z" + at.key().mid(1) : at.key();
            EXPECT_TRUE(StoreEntry::read(at.key()) == at.value() ||
                        StoreEntry::read(moved) == at.value())
                << at.key().toStdString() << " after " << steps;
        }
    }

    void expectSafe(Direction direction, const Entries& from, const Entries& to) const
    {
        const int all = 3 * static_cast<int>(m_change->size());
        for (int steps = 0; steps <= all; ++steps) {
            put(from);
            StoreChangeJob job(m_change, direction, Others::StopAll);
            for (int i = 0; i < steps; ++i)
                job.step();
            expectNothingLost(steps);
            run(*m_change, direction);
            EXPECT_EQ(entries(), to) << steps;
        }
    }

    std::shared_ptr<const StoreChange> m_change;
    Entries m_before;
    Entries m_after;
};

TEST_F(CancelledMove, LosesNothingAndCanBeEnded)
{
    expectSafe(Direction::Make, m_before, m_after);
}

TEST_F(CancelledMove, LosesNothingOnTheWayBackEither)
{
    expectSafe(Direction::TakeBack, m_after, m_before);
}

TEST_F(CancelledMove, IsTakenBack)
{
    put(m_before);
    StoreChangeJob job(m_change, Direction::Make, Others::StopAll);
    for (std::size_t i = 0; i < m_change->size() * 5 / 2; ++i)
        job.step();
    run(*m_change, Direction::TakeBack);
    EXPECT_EQ(entries(), m_before);
}

class ForeignChange : public StoreChanges
{
protected:
    ForeignChange()
    {
        store("A/v", "1$1");
        store("A/w", "1$1");
        m_recorder.watchTree("A");
        store("A/v", "1$2");
        store("A/w", "1$2");
        m_recorder.record();
        store("A/v", "1$3");
    }

    std::shared_ptr<const StoreChange> change() const
    {
        return std::make_shared<StoreChange>(m_recorder.change());
    }

    StoreRecorder m_recorder;
};

TEST_F(ForeignChange, StopsEverything)
{
    StoreChangeJob stopped(change(), Direction::TakeBack, Others::StopAll);
    finish(stopped);
    EXPECT_TRUE(stopped.isStopped());
    EXPECT_EQ(stopped.foreign(), QStringList("A/v"));
    EXPECT_EQ(stored("A/v").toStdString(), "1$3");
    EXPECT_EQ(stored("A/w").toStdString(), "1$2");
}

TEST_F(ForeignChange, IsLeftBe)
{
    StoreChangeJob leaving(change(), Direction::TakeBack, Others::LeaveBe);
    finish(leaving);
    EXPECT_EQ(leaving.leftBe(), 1);
    EXPECT_EQ(stored("A/v").toStdString(), "1$3");
    EXPECT_EQ(stored("A/w").toStdString(), "1$1");
}

TEST_F(ForeignChange, IsOverwritten)
{
    StoreChangeJob writing(change(), Direction::TakeBack, Others::Overwrite);
    finish(writing);
    EXPECT_EQ(stored("A/v").toStdString(), "1$1");
    EXPECT_EQ(stored("A/w").toStdString(), "1$1");
}

TEST_F(ForeignChange, ThatMadeTheSameIsNone)
{
    store("A/v", "1$1");
    StoreChangeJob undoing(change(), Direction::TakeBack, Others::StopAll);
    finish(undoing);
    EXPECT_FALSE(undoing.isStopped());
    EXPECT_EQ(stored("A/w").toStdString(), "1$1");
}

TEST_F(StoreChanges, ComingFromSomebodyElseBelowADeletedKeyStay)
{
    fill();
    const auto recorder = std::make_shared<StoreRecorder>();
    RegistryRemovalJob job(registryKeysFrom("A"), recorder);
    finish(job);
    store("A/twin/foreign", "1$1");
    run(recorder->change(), Direction::TakeBack);
    run(recorder->change(), Direction::Make);
    EXPECT_EQ(StoreEntry::below("A"), QStringList("A/twin/foreign"));
}

TEST_F(StoreChanges, LeaveALineOfTheAuditTrailEach)
{
    store("A/v", "1$1");
    QStringList lines;
    const auto log = [&lines](const QString& line) { lines.append(line); };
    StoreRecorder recorder(log);
    recorder.watch("A/v");
    recorder.watch("A/B");
    ASSERT_EQ(RegistryKey("A").set("v", REG_DWORD, QByteArray(4, '\0')), ERROR_SUCCESS);
    ASSERT_EQ(RegistryKey("A").createKey("B"), ERROR_SUCCESS);
    recorder.record();
    StoreChangeJob undoing(std::make_shared<StoreChange>(recorder.change()), Direction::TakeBack,
                           Others::StopAll, log);
    finish(undoing);
    EXPECT_EQ(undoing.progress().toStdString(), "2");
    EXPECT_EQ(lines, QStringList({"HKEY_CURRENT_USER\\A: \"v\": \"1$1\" -> \"1$0\"",
                                  "HKEY_CURRENT_USER\\A: \"B\": absent -> \"@Invalid()\"",
                                  "HKEY_CURRENT_USER\\A: \"v\": \"1$0\" -> \"1$1\"",
                                  "HKEY_CURRENT_USER\\A: \"B\": \"@Invalid()\" -> absent"}))
        << lines.join('\n').toStdString();
}

} // namespace
