#include "pages/registry/StoreFollower.h"

#include "inspection/registry/RawStore.h"
#include "window/PageContext.h"

#include <utility>

using Report = PageContext::Report;
using State = StoreWatch::State;

StoreFollower::StoreFollower(PageContext& page, StoreWatch& watch, QObject* parent)
    : QObject(parent), m_page(page), m_watch(watch)
{
    connect(&m_runner, &JobRunner::finished, this, &StoreFollower::endComparison);
}

void StoreFollower::look()
{
    if (m_runner.isRunning())
        return;
    if (m_watch.state() == State::Unknown) {
        m_comparison = std::make_unique<StoreComparisonJob>();
        if (m_runner.start(*m_comparison))
            endComparison();
        return;
    }
    if (m_watch.revision() != m_shown)
        emit changed();
    tell();
}

void StoreFollower::endComparison()
{
    m_watch.settle(*m_comparison);
    m_comparison.reset();
    if (m_watch.state() != State::Unknown)
        look();
}

// Of what may happen again in the same state.
bool StoreFollower::hasNews()
{
    const int failures = std::exchange(m_toldFailures, m_watch.failedSavings());
    const bool wasLossTold = std::exchange(m_isLossTold, m_watch.hasLost());
    return failures != m_toldFailures || (m_isLossTold && !wasLossTold);
}

void StoreFollower::tell()
{
    const State state = m_watch.state();
    if (state == State::Unknown || (!hasNews() && state == m_told))
        return;
    m_told = state;
    if (state != State::InStep)
        m_page.report(state == State::Unsaved ? Report::Error : Report::Warning, m_watch.text());
    else if (m_watch.hasLost())
        m_page.report(Report::Warning,
                      tr("The store has been saved to %1; what the file lacked is gone.")
                          .arg(RawStore::fileName()));
    else
        m_page.report(Report::Info,
                      tr("The store is in step with its file %1 again.").arg(RawStore::fileName()));
}
