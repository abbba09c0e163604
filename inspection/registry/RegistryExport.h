#pragma once

#include "inspection/registry/RegistryWalk.h"
#include "regfile/RegFileWriter.h"

#include <QCoreApplication>
#include <QSaveFile>

/// Writes a key with everything below it into a registry file, step by step, for a sliced job. What
/// a host library cannot read is left out and told in a comment, and so are names that the format
/// cannot hold.
class RegistryExport
{
    Q_DECLARE_TR_FUNCTIONS(RegistryExport)

public:
    /// Nothing is left at `file` unless `commit` succeeds; an older file stays as it was until
    /// then.
    RegistryExport(const QString& path, const QString& file, RegFileWriter::Encoding encoding);

    /// Why it could not be written, in words; empty while all is well.
    QString error() const;
    /// False at the end, and after an error.
    bool step();
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
