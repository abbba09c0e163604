#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryWalk.h"
#include "regfile/RegFileWriter.h"

#include <QCoreApplication>
#include <QSaveFile>

/// Writes a key with everything below it into a registry file. What a host library cannot read is
/// left out and told in a comment, and so are names that the format cannot hold.
class RegistryExportJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(RegistryExportJob)

public:
    /// Nothing is left at `file` unless `commit` succeeds; an older file stays as it was until
    /// then.
    RegistryExportJob(const QString& path, const QString& file, RegFileWriter::Encoding encoding);

    /// Why it could not be written, in words; empty while all is well.
    QString error() const;
    /// Writes one key or value; false at the end, and after an error.
    bool step() override;
    /// The number of values written.
    QString progress() const override;
    /// Puts the file in place.
    bool commit();

    int values() const { return m_values; }
    int leftOut() const { return m_leftOut; }

private:
    void writeKey();
    void writeValue();
    void write(const QString& name, const RegistryReading& reading);
    void leaveOut(const QString& name, const QString& why);

    QSaveFile m_file;
    bool m_open;
    RegFileWriter m_writer;
    RegistryWalk m_walk;
    bool m_underKey = false; ///< the key that the walk is in has been written
    int m_values = 0;
    int m_leftOut = 0;
};
