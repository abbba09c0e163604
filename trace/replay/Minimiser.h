#pragma once

#include "trace/replay/ReplayProcess.h"

#include <QCoreApplication>
#include <QSet>

#include <vector>

namespace replay {

class ReplaySource;

/// Finds few calls of a recording after which one call still gets the same answer: the one that it
/// gets here when all calls are performed, as far as it is compared with a recording. A crash in
/// that call is an answer too. No call of those that are found can be left out.
class Minimiser
{
    Q_DECLARE_TR_FUNCTIONS(Minimiser)

public:
    /// The source has been opened, and outlives this.
    Minimiser(const ReplaySource& source, qint64 call);

    void setServices(const ReplayProcess::MakeServices& make) { m_makeServices = make; }
    void setPause(const ReplayProcess::Pause& pause) { m_pause = pause; }

    /// False where the call gets no answer here, or no process can be made; `error` tells why.
    bool run();
    const QString& error() const { return m_error; }

    /// The numbers of the calls that are found, that one and all calls within them included.
    std::vector<qint64> calls() const;
    /// How many calls they are without those within.
    int outermostCount() const { return static_cast<int>(m_kept.size()) + 1; }
    int replayCount() const { return m_replays; }

private:
    using Numbers = std::vector<qint64>;

    qint64 outermostOf(qint64 number) const;
    Numbers before() const;
    Numbers needed() const;
    bool takeAnswer();
    QString answerAfter(const Numbers& numbers);
    bool fail(const QString& error);

    const ReplaySource& m_source;
    qint64 m_call;
    qint64 m_outermost = 0; ///< the call that encloses it, or itself
    ReplayProcess::MakeServices m_makeServices;
    ReplayProcess::Pause m_pause;
    QString m_answer; ///< after all calls
    ReplayReport m_report;
    Numbers m_kept;
    QString m_error;
    int m_replays = 0;
};

} // namespace replay
