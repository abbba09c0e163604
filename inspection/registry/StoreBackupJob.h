#pragma once

#include "inspection/Job.h"

#include <QFile>
#include <QString>

/// Copies the store's file, byte for byte, into a new file beside it. A registry file would not do:
/// it has no room for entries that no host library can read, which a deletion takes along too.
/// Putting the copy in the place of the file brings everything back.
class StoreBackupJob : public Job
{
public:
    StoreBackupJob();
    /// Removes a copy that is not complete.
    ~StoreBackupJob() override;

    /// The file that a backup made now goes into, numbered one above the highest that is there:
    /// no backup ever takes the place of another. Empty where there is nothing to back up: without
    /// a store, with one that has not been saved yet, and with one that cannot be saved.
    static QString nextFile();

    /// Copies a small piece.
    bool step() override;

    /// The copy.
    QString file() const { return m_copy.fileName(); }
    /// Why there is no copy, in words; empty while all is well.
    QString error() const { return m_error; }

private:
    void copyPiece();
    void fail(const QFile& file) { m_error = file.errorString(); }

    QFile m_store;
    QFile m_copy;
    QString m_error;
    bool m_isComplete = false;
};
