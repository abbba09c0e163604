#pragma once

#include "inspection/JobRunner.h"
#include "trace/reading/CallSearch.h"

#include <QTableView>

class CallRows;
class EmptyHint;

/// The calls of a recording that a query finds, one a row.
class CallTable : public QTableView
{
    Q_OBJECT

public:
    explicit CallTable(QWidget* parent = nullptr);
    ~CallTable() override;

    /// Null where none is open. Nothing is in view until a search.
    void setRecording(std::shared_ptr<trace::OpenRecording> recording);
    /// Looks for other calls. Rows appear as they are found.
    void search(const trace::CallSearch::Query& query);
    /// Looks on from a call: it and later ones are new or have changed.
    void follow(qint64 changed);

    bool isSearching() const { return m_runner.isRunning(); }
    /// The number of the current call; 0 where there is none.
    qint64 currentCall() const;

signals:
    /// Another call is the current one, or none.
    void chosen();
    /// There are other rows, or the search has ended.
    void searched();

private:
    enum class Way
    {
        Anew,
        Following
    };

    void start(qint64 first, Way way);
    void take(std::vector<qint64> found);
    void finish();
    void mergeFound();
    void replace(std::vector<qint64> calls);
    void goTo(qint64 call, int position);

    std::shared_ptr<trace::OpenRecording> m_recording;
    CallRows* m_rows;
    EmptyHint* m_hint;
    trace::CallSearch::Query m_query;
    JobRunner m_runner;
    std::unique_ptr<trace::CallSearch> m_search; ///< the one that runs
    qint64 m_first = 1;                          ///< where it began
    Way m_way = Way::Anew;
    std::vector<qint64> m_found; ///< by a search that follows
    qint64 m_pending = 0;        ///< where the next one begins; 0: there is none
};
