#pragma once

#include "inspection/registry/RegistryKey.h"
#include "regfile/RegFileWriter.h"

#include <QCoreApplication>

/// Writes keys and values of the registry as a registry file has them. What a host library cannot
/// read is left out and told in a comment, and so are names that the format cannot hold.
class ExportWriter
{
    Q_DECLARE_TR_FUNCTIONS(ExportWriter)

public:
    /// Writes the header. `device` is open for writing and outlives the writer.
    ExportWriter(QIODevice& device, RegFileWriter::Encoding encoding);

    /// Begins a key; an empty path is the root.
    void key(const QString& path);
    /// Writes a value of the key that was begun last, which `key` has open.
    void value(const RegistryKey& key, const QString& name);

    /// False once something could not be written.
    bool isGood() const { return m_writer.isGood(); }
    /// How many values have been written, and how many values and keys have been left out.
    int values() const { return m_values; }
    int leftOut() const { return m_leftOut; }

private:
    void write(const QString& name, const RegistryReading& reading);
    void leaveOut(const QString& name, const QString& why);

    RegFileWriter m_writer;
    QString m_path;          ///< of the key that was begun last
    bool m_underKey = false; ///< that key has been written
    int m_values = 0;
    int m_leftOut = 0;
};
