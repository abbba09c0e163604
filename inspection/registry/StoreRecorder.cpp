#include "inspection/registry/StoreRecorder.h"

#include "inspection/registry/StoreEntry.h"

#include <utility>

StoreRecorder::StoreRecorder(Log log) : m_lines(std::move(log)) {}

void StoreRecorder::watch(const QString& path)
{
    const auto [at, isNew] = m_states.try_emplace(path);
    if (isNew)
        at->second.before = at->second.after = StoreEntry::read(path);
    m_watched.push_back(at);
}

void StoreRecorder::watchTree(const QString& path)
{
    watch(path);
    const QStringList paths = StoreEntry::below(path);
    for (const QString& each : paths)
        watch(each);
}

void StoreRecorder::record()
{
    for (const States::iterator& at : m_watched) {
        State& state = at->second;
        std::optional<QVariant> now = StoreEntry::read(at->first);
        if (now == state.after)
            continue;
        m_lines.add([&] { return auditLine({at->first, state.after, now}); });
        state.after = std::move(now);
    }
    m_watched.clear();
}

StoreChange StoreRecorder::change() const
{
    StoreChange change;
    for (const auto& [path, state] : m_states) {
        if (state.before != state.after)
            change.push_back({path, state.before, state.after});
    }
    return change;
}
