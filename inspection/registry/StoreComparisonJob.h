#pragma once

#include "inspection/Job.h"
#include "platform/files/KnownFile.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>
#include <optional>

class QSettings;

/// Compares what the store holds with what its file says, in small steps, and stops at the first
/// difference. The file is read as the store would read it, but from a copy, because reading it in
/// its place would make the store itself read it anew. A file that is not there says nothing.
class StoreComparisonJob : public Job
{
public:
    /// An entry about which the two do not agree.
    struct Difference
    {
        QString name;
        bool isInFile = false;
        QVariant inFile;
    };

    StoreComparisonJob();
    ~StoreComparisonJob() override;

    bool step() override;

    /// The file that was compared.
    const KnownFile& file() const { return m_file; }
    /// The first difference; none where the store holds what its file says.
    const std::optional<Difference>& difference() const { return m_difference; }
    /// True where the file has lines that are no entries: the store leaves them out, and saves
    /// itself without them.
    bool isDamaged() const;

private:
    void open();
    void list();
    bool compareSome();
    void differAt(const QString& name);

    KnownFile m_file;
    QTemporaryDir m_folder; ///< of the copy; nobody else can read it
    std::unique_ptr<QSettings> m_copy;
    QStringList m_sections; ///< of the copy, still to be parsed
    bool m_isListed = false;
    QStringList m_names;
    int m_at = 0;
    std::optional<Difference> m_difference;
};
