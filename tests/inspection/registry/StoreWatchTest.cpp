#include "inspection/registry/StoreWatch.h"

#include "tests/inspection/registry/StoreFileFixture.h"

#include <QCoreApplication>

namespace {

using State = StoreWatch::State;

class StoreWatchTest : public RegistryTest
{
protected:
    StoreWatchTest()
    {
        store("A/v", "1$1");
        store("B/w", "5$text");
        QCoreApplication::processEvents();
        m_watch = std::make_unique<StoreWatch>();
    }

    // The state, once a comparison has been made where one is needed.
    State settled()
    {
        if (m_watch->state() != State::Unknown)
            return m_watch->state();
        StoreComparisonJob comparison;
        while (comparison.step()) {
        }
        m_watch->settle(comparison);
        return m_watch->state();
    }

    // True when a change has been noticed since the last call.
    bool hasGrown() { return std::exchange(m_revision, m_watch->revision()) != m_revision; }

    std::unique_ptr<StoreWatch> m_watch;
    int m_revision = 0;
};

TEST_F(StoreWatchTest, NoticesEachChangeOfTheStoreInThisProcess)
{
    hasGrown();
    EXPECT_FALSE(hasGrown());
    store("A/v", "1$2");
    QCoreApplication::processEvents();
    EXPECT_TRUE(hasGrown());
    EXPECT_EQ(m_watch->state(), State::InStep);
    g_globalSettings->remove("A");
    QCoreApplication::processEvents();
    EXPECT_TRUE(hasGrown());
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, TakesAStoreThatTheHostLibrarySavesForInStep)
{
    store("A/v", "1$2");
    g_globalSettings->sync();
    EXPECT_EQ(m_watch->state(), State::Unknown);
    EXPECT_EQ(settled(), State::InStep);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, KnowsAFileThatHasGone)
{
    StoreFile::remove();
    EXPECT_EQ(settled(), State::Vanished);
    EXPECT_TRUE(m_watch->text().contains("is gone")) << m_watch->text().toStdString();
}

TEST_F(StoreWatchTest, KnowsAFileThatHasGoneBeforeItLooked)
{
    StoreFile::remove();
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(settled(), State::Vanished);
}

TEST_F(StoreWatchTest, TakesAStoreThatWasNeverSavedForInStep)
{
    StoreFile::remove();
    g_globalSettings->clear();
    g_globalSettings->sync();
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(settled(), State::InStep);
    store("A/v", "1$1");
    m_watch = std::make_unique<StoreWatch>();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, KnowsAFileThatAnotherProgramHasReplaced)
{
    StoreFile::replace("[A]\nv=1$7\n");
    EXPECT_EQ(settled(), State::Replaced);
    EXPECT_TRUE(m_watch->text().contains("has replaced")) << m_watch->text().toStdString();
}

TEST_F(StoreWatchTest, KnowsAFileThatAnotherProgramHasWrittenTo)
{
    StoreFile::append("[C]\nx=1$7\n");
    EXPECT_EQ(settled(), State::Changed);
    EXPECT_TRUE(m_watch->text().contains("has changed")) << m_watch->text().toStdString();
}

TEST_F(StoreWatchTest, TakesAFileThatSaysTheSameForInStep)
{
    StoreFile::replace(StoreFile::bytes());
    EXPECT_EQ(m_watch->state(), State::Unknown);
    EXPECT_EQ(settled(), State::InStep);
}

TEST_F(StoreWatchTest, NoticesThatTheStoreHasReadTheFile)
{
    for (const char* text : {"[A]\nv=1$7\n", "[C]\nx=1$1\n", "[A]\nv=1$1\n\n[B]\nw=1$3\n"}) {
        StoreFile::replace(text);
        EXPECT_EQ(settled(), State::Replaced) << text;
        hasGrown();
        g_globalSettings->sync();
        EXPECT_EQ(settled(), State::InStep) << text;
        EXPECT_TRUE(hasGrown()) << text;
    }
    StoreFile::remove();
    EXPECT_EQ(settled(), State::Vanished);
    g_globalSettings->sync();
    EXPECT_EQ(settled(), State::InStep);
}

TEST_F(StoreWatchTest, IsInStepAgainWhenTheStoreHasSavedItself)
{
    StoreFile::replace("[A]\nv=1$7\n");
    EXPECT_EQ(settled(), State::Replaced);
    store("A/new", "1$1");
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
    EXPECT_EQ(stored("A/v").toStdString(), "1$7");
}

TEST_F(StoreWatchTest, DropsAComparisonWithAFileThatHasChangedMeanwhile)
{
    StoreFile::replace("[A]\nv=1$7\n");
    StoreComparisonJob comparison;
    while (comparison.step()) {
    }
    StoreFile::replace("[A]\nv=1$8\n");
    m_watch->settle(comparison);
    EXPECT_EQ(m_watch->state(), State::Unknown);
}

TEST_F(StoreWatchTest, LeavesTheStoreAsItIs)
{
    StoreFile::replace("[A]\nv=1$7\n");
    const QByteArray before = StoreFile::bytes();
    EXPECT_EQ(settled(), State::Replaced);
    EXPECT_EQ(stored("A/v").toStdString(), "1$1");
    EXPECT_EQ(StoreFile::bytes().toStdString(), before.toStdString());
}

// A store of an organisation and an application answers from the organisation's file, too.
TEST_F(StoreWatchTest, ComparesNothingButTheStoresOwnFile)
{
    QSettings shared(QSettings::IniFormat, QSettings::UserScope, "maker");
    shared.setValue("shared", "5$from elsewhere");
    shared.sync();
    QSettings own(QSettings::IniFormat, QSettings::UserScope, "maker", "program");
    own.setValue("A/v", "1$1");
    own.sync();
    QSettings* hosts = std::exchange(g_globalSettings, &own);
    EXPECT_EQ(stored("shared").toStdString(), "5$from elsewhere");
    StoreComparisonJob comparison;
    while (comparison.step()) {
    }
    EXPECT_FALSE(comparison.difference());
    EXPECT_TRUE(own.fallbacksEnabled());
    EXPECT_EQ(stored("shared").toStdString(), "5$from elsewhere");
    g_globalSettings = hosts;
}

TEST_F(StoreWatchTest, IsInStepWithoutAStore)
{
    QSettings* hosts = std::exchange(g_globalSettings, nullptr);
    EXPECT_EQ(m_watch->state(), State::InStep);
    EXPECT_EQ(m_watch->text().toStdString(), "");
    g_globalSettings = hosts;
    EXPECT_EQ(m_watch->state(), State::InStep);
}

} // namespace
