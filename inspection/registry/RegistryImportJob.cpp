#include "inspection/registry/RegistryImportJob.h"

#include "inspection/registry/RegistryPath.h"

#include <QIODevice>
#include <QLocale>

RegistryImportJob::RegistryImportJob(std::unique_ptr<QIODevice> file, const QByteArray& codePage,
                                     const QString& prefix)
    : m_reader(std::move(file), codePage), m_prefix(prefix)
{
}

RegistryImportJob::RegistryImportJob(const QByteArray& file, const QByteArray& codePage)
    : m_reader(file, codePage)
{
}

bool RegistryImportJob::step()
{
    RegFileEntry entry;
    const RegFileReader::Step step = m_reader.next(entry);
    if (step == RegFileReader::Step::Statement) {
        addPrefix(entry);
        m_plan->add(entry);
    }
    return step != RegFileReader::Step::End;
}

// A key whose root is not known keeps it: that is why it is refused.
void RegistryImportJob::addPrefix(RegFileEntry& entry) const
{
    QString path;
    if (m_prefix.isEmpty() || !RegistryPath::parse(entry.key, path))
        return;
    entry.key = RegistryPath::shown(path.isEmpty() ? m_prefix : RegistryPath::join(m_prefix, path));
}

QString RegistryImportJob::progress() const
{
    return QLocale().toString(static_cast<qulonglong>(m_plan->statements().size()));
}
