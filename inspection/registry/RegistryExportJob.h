#pragma once

#include "inspection/Job.h"
#include "inspection/OutputFile.h"
#include "inspection/registry/ExportWriter.h"
#include "inspection/registry/RegistryWalk.h"

/// Writes a key with everything below it into a registry file, as ExportWriter does.
class RegistryExportJob : public Job
{
public:
    /// Nothing is left at `file` unless `commit` succeeds; an older file stays as it was until
    /// then. What is no regular file is written to as it is, see OutputFile.
    RegistryExportJob(const QString& path, const QString& file, RegFileWriter::Encoding encoding);

    /// Why it could not be written, in words; empty while all is well.
    QString error() const;
    /// Writes one key or value; false at the end, and after an error.
    bool step() override;
    /// The number of values written.
    QString progress() const override;
    /// Puts the file in place.
    bool commit();

    int values() const { return m_writer.values(); }
    int leftOut() const { return m_writer.leftOut(); }

private:
    OutputFile m_file;
    bool m_open;
    ExportWriter m_writer;
    RegistryWalk m_walk;
};
