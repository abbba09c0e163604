#pragma once

#include "inspection/Job.h"
#include "inspection/registry/ExportWriter.h"
#include "inspection/registry/RegistryValueName.h"
#include "inspection/registry/RegistryWalk.h"

#include <QBuffer>

#include <memory>
#include <optional>
#include <vector>

/// Writes a key with everything below it, or some values, as the text of a registry file.
class RegistryTextJob : public Job
{
public:
    explicit RegistryTextJob(const QString& path);
    /// Values that stand one behind the other in the same key get one line with the key.
    explicit RegistryTextJob(std::vector<RegistryValueName> values);

    /// Writes one key or value.
    bool step() override;
    /// The number of values written.
    QString progress() const override;

    /// Complete once the job is done.
    QString text() const { return QString::fromUtf8(m_buffer.data()); }
    int values() const { return m_writer.values(); }
    int leftOut() const { return m_writer.leftOut(); }

private:
    // Opened before the writer, which writes the header at once.
    class Buffer : public QBuffer
    {
    public:
        Buffer() { open(QIODevice::WriteOnly); }
    };

    bool walk();
    void writeValue(const RegistryValueName& value);

    Buffer m_buffer;
    ExportWriter m_writer;
    std::optional<RegistryWalk> m_walk; ///< nothing where values are given
    std::vector<RegistryValueName> m_values;
    std::size_t m_next = 0;
    QString m_path; ///< of the key that is open
    std::unique_ptr<RegistryKey> m_key;
};
