#include "inspection/registry/RegistryTextJob.h"

#include <QLocale>

namespace {

constexpr auto encoding = RegFileWriter::Encoding::Utf8;

} // namespace

RegistryTextJob::RegistryTextJob(const QString& path) : m_writer(m_buffer, encoding), m_walk(path)
{
}

RegistryTextJob::RegistryTextJob(std::vector<RegistryValueName> values)
    : m_writer(m_buffer, encoding), m_values(std::move(values))
{
}

bool RegistryTextJob::step()
{
    if (m_walk)
        return walk();
    if (m_next >= m_values.size())
        return false;
    writeValue(m_values[m_next++]);
    return true;
}

bool RegistryTextJob::walk()
{
    switch (m_walk->next()) {
    case RegistryWalk::Step::Key: m_writer.key(m_walk->path()); return true;
    case RegistryWalk::Step::Value: m_writer.value(m_walk->key(), m_walk->name()); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

void RegistryTextJob::writeValue(const RegistryValueName& value)
{
    if (!m_key || m_path != value.key) {
        m_path = value.key;
        m_key = std::make_unique<RegistryKey>(m_path);
        m_writer.key(m_path);
    }
    m_writer.value(*m_key, value.name);
}

QString RegistryTextJob::progress() const
{
    return QLocale().toString(values());
}
