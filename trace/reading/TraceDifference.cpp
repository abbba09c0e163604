#include "trace/reading/TraceDifference.h"

#include "trace/reading/TraceFile.h"

#include <QElapsedTimer>
#include <QLocale>

namespace trace {

namespace {

constexpr std::chrono::milliseconds patience(4);
constexpr int batch = 16; // pairs between two looks at the clock

using Form = ValueText::Form;

int count(const SignedCalls& calls)
{
    return static_cast<int>(calls.signatures().size());
}

qint64 numberOf(const SignedCalls& calls, int place)
{
    return calls.file().calls()[static_cast<std::size_t>(place)].number;
}

int partner(const std::vector<int>& partners, int place)
{
    return partners[static_cast<std::size_t>(place)];
}

} // namespace

TraceDifference::TraceDifference(TraceFile& before, TraceFile& after)
    : m_before(before, m_names),
      m_after(after, m_names),
      m_beforeWalk(before, [this](const CallEntry& entry) { m_before.add(entry); }),
      m_afterWalk(after, [this](const CallEntry& entry) { m_after.add(entry); })
{
}

bool TraceDifference::step()
{
    if (!m_isBeforeWalked) {
        m_isBeforeWalked = !m_beforeWalk.step();
        return true;
    }
    if (!m_isWalked) {
        m_isWalked = !m_afterWalk.step();
        return true;
    }
    return m_alignment ? compareBatch() : align();
}

// Always true: the comparison follows.
bool TraceDifference::align()
{
    if (!m_computation)
        m_computation = std::make_unique<Computation<Alignment>>(
            [before = m_before.signatures(), after = m_after.signatures()] {
                return std::make_shared<CallAlignment>(before, after);
            });
    if (m_computation->isDone(patience))
        m_alignment = m_computation->take();
    return true;
}

bool TraceDifference::compareBatch()
{
    QElapsedTimer clock;
    clock.start();
    while (m_next < count(m_before)) {
        compareNext();
        if (m_next % batch == 0 && clock.elapsed() >= patience.count())
            return true;
    }
    addAfterUpTo(count(m_after));
    return false;
}

void TraceDifference::compareNext()
{
    const int before = m_next++;
    const int after = partner(m_alignment->partnersOfBefore(), before);
    if (after < 0) {
        m_rows.push_back({Kind::Removed, numberOf(m_before, before), 0, {}, {}, {}});
        return;
    }
    addAfterUpTo(after);
    m_nextAfter = qMax(m_nextAfter, after + 1);
    comparePair(before, after);
}

// The calls of the second recording alone that come before that place.
void TraceDifference::addAfterUpTo(int place)
{
    for (; m_nextAfter < place; ++m_nextAfter) {
        if (partner(m_alignment->partnersOfAfter(), m_nextAfter) < 0)
            m_rows.push_back({Kind::Added, 0, numberOf(m_after, m_nextAfter), {}, {}, {}});
    }
}

void TraceDifference::comparePair(int before, int after)
{
    const auto ofBefore = [this](qint64 maker) { return madeBy(maker); };
    const auto ofAfter = [this](qint64 maker) { return madeByPartnerOf(maker); };
    const CallParts was(m_before, before, ofBefore, Form::ByRole);
    const CallParts is(m_after, after, ofAfter, Form::ByRole);
    const Row row{Kind::Changed, numberOf(m_before, before), numberOf(m_after, after), {}, {}, {}};
    compareParts(row, was, is);
}

void TraceDifference::compareParts(const Row& row, const CallParts& before, const CallParts& after)
{
    for (const CallParts::Part& part : before.all()) {
        const QString is = after.text(part.name);
        if (is != part.text)
            m_rows.push_back({row.kind, row.before, row.after, part.name, part.text, is});
    }
    for (const CallParts::Part& part : after.all()) {
        if (before.text(part.name).isNull() && !part.text.isNull())
            m_rows.push_back({row.kind, row.before, row.after, part.name, {}, part.text});
    }
}

QString TraceDifference::madeBy(qint64 maker) const
{
    return tr("handle of call %1").arg(maker);
}

// In the words of the first recording, so that the same handle has the same text.
QString TraceDifference::madeByPartnerOf(qint64 maker) const
{
    const int place = m_after.file().indexOf(maker);
    const int before = place < 0 ? -1 : partner(m_alignment->partnersOfAfter(), place);
    return before < 0 ? tr("handle of call %1 of the second recording").arg(maker)
                      : madeBy(numberOf(m_before, before));
}

QString TraceDifference::progress() const
{
    return QLocale().toString(qMax(m_next, count(m_before)));
}

} // namespace trace
