#pragma once

#include "inspection/Computation.h"
#include "inspection/Job.h"
#include "trace/reading/CallParts.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/SignedCalls.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

namespace trace {

/// Finds what differs between two recordings.
///
/// Calls are paired by caller and manager (`CallAlignment`). Addresses, times and offsets in
/// libraries are not compared, and handles by the calls that made them: they are the same where
/// those are paired.
class TraceDifference : public Job
{
    Q_DECLARE_TR_FUNCTIONS(TraceDifference)

public:
    enum class Kind
    {
        Added,   ///< a call of the second recording alone
        Removed, ///< a call of the first recording alone
        Changed
    };
    struct Row
    {
        Kind kind;
        qint64 before; ///< the number of the call; 0 where there is none
        qint64 after;
        QString part; ///< of a call that has changed: a parameter, or what became of it
        QString was;
        QString is;
    };

    using Alignment = std::shared_ptr<CallAlignment>;

    /// Both recordings have been read, outlive this, and are not read on meanwhile.
    TraceDifference(TraceFile& before, TraceFile& after);

    bool step() override;
    /// The number of calls.
    QString progress() const override;

    /// In the order of the calls.
    const std::vector<Row>& rows() const { return m_rows; }

private:
    bool align();
    bool compareBatch();
    void compareNext();
    void addAfterUpTo(int place);
    void comparePair(int before, int after);
    void compareParts(const Row& row, const CallParts& before, const CallParts& after);
    QString madeBy(qint64 maker) const;
    QString madeByPartnerOf(qint64 maker) const;

    SignedCalls::Names m_names;
    SignedCalls m_before;
    SignedCalls m_after;
    CallWalk m_beforeWalk;
    CallWalk m_afterWalk;
    bool m_isBeforeWalked = false;
    bool m_isWalked = false;
    std::unique_ptr<Computation<Alignment>> m_computation;
    Alignment m_alignment;
    int m_next = 0;      ///< call of the first recording
    int m_nextAfter = 0; ///< call of the second recording
    std::vector<Row> m_rows;
};

} // namespace trace
