#pragma once

#include "inspection/Job.h"
#include "inspection/registry/SubKeyScan.h"

#include <memory>
#include <optional>
#include <set>

/// Finds what an address that has been typed half may go on to: the text up to its last separator
/// with each key below that whose name begins with the rest, in any case of letters; before the
/// first separator the roots, too.
class CompletionJob : public Job
{
public:
    /// Ends when `most` have been found.
    CompletionJob(std::shared_ptr<const RegistryIndex> index, const QString& typed, int most);

    /// Looks at a few names.
    bool step() override;

    /// What has been found: the roots, then the keys in their order.
    QStringList completions() const;

private:
    bool begins(const QString& name) const;
    int count() const { return m_roots.size() + static_cast<int>(m_keys.size()); }

    std::shared_ptr<const RegistryIndex> m_index;
    QString m_before; ///< the typed text up to its last separator
    QString m_rest;
    int m_most;
    QStringList m_parents; ///< still to be looked through
    std::optional<SubKeyScan> m_scan;
    QStringList m_roots;
    std::set<QString> m_keys;
};
