#pragma once

#include "inspection/JobRunner.h"
#include "inspection/registry/StoreWatch.h"

#include <QObject>

#include <memory>

class PageContext;

/// Tells the page when the store may have changed since it was read, and the user what another
/// program has done to the store's file.
class StoreFollower : public QObject
{
    Q_OBJECT

public:
    /// `watch` outlives it.
    StoreFollower(PageContext& page, StoreWatch& watch, QObject* parent);

    /// Looks once. Cheap unless something has changed.
    void look();
    /// The page shows the store as it is now.
    void markRead() { m_shown = m_watch.revision(); }
    /// Tells what has happened to the file where that is not told yet.
    bool hasNews();
    void tell();

signals:
    /// The page is to be read anew.
    void changed();

private:
    void endComparison();

    PageContext& m_page;
    StoreWatch& m_watch;
    JobRunner m_runner;
    std::unique_ptr<StoreComparisonJob> m_comparison; ///< the one that runs
    StoreWatch::State m_told = StoreWatch::State::InStep;
    int m_toldFailures = 0; ///< savings that are told to have failed
    bool m_isLossTold = false;
    int m_shown = 0; ///< the revision that the page shows
};
