#pragma once

#include "inspection/Job.h"
#include "inspection/registry/SubKeyScan.h"
#include "inspection/registry/TypingDistance.h"

#include <memory>
#include <optional>

/// Finds the key that is meant by an address that leads to none: one whose path differs in the case
/// of letters only, or else one next to the deepest key that there is whose name differs by a
/// mistake or two of typing.
class NearestKeyJob : public Job
{
public:
    enum class Difference
    {
        None, ///< there is no such key
        Case,
        Typing
    };

    /// `paths` is what the address may mean, as `pathsOfAddress` has it.
    NearestKeyJob(std::shared_ptr<const RegistryIndex> index, const QStringList& paths);

    /// Looks at a few names.
    bool step() override;

    Difference difference() const { return m_difference; }
    /// The path of the key that has been found; empty where there is none.
    const QString& path() const { return m_path; }

private:
    void beginPath();
    bool stepCase();
    void scanForCase();
    void endLevel();
    bool stepTyping();
    void beginTyping();
    void endTyping();
    bool hasKey(const QString& path) const;
    bool find(Difference difference, const QString& path);

    std::shared_ptr<const RegistryIndex> m_index;
    QStringList m_paths;
    int m_at = 0; ///< the path that is looked at; they are looked at twice
    Difference m_difference = Difference::None;
    QString m_path;
    QStringList m_levels; ///< of the path that is looked at
    std::optional<SubKeyScan> m_scan;

    int m_level = 0;       ///< the one that is compared
    QStringList m_parents; ///< keys that the levels before it may mean, still to be looked through
    QStringList m_next;    ///< keys that the levels up to it may mean
    QStringList m_exact;   ///< those below one of the parents
    QStringList m_others;

    std::optional<TypingDistance> m_distance;
    QString m_deepest;
    QString m_nearest;
    int m_mistakes = 0; ///< in the nearest name
};
