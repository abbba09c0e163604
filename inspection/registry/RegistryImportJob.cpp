#include "inspection/registry/RegistryImportJob.h"

#include "inspection/registry/RegistryPath.h"

#include <QIODevice>
#include <QLocale>

#include <new>
#include <utility>

RegistryImportJob::RegistryImportJob(std::unique_ptr<QIODevice> file, const QByteArray& codePage,
                                     const QString& prefix)
    : m_reader(std::move(file), codePage), m_prefix(prefix)
{
}

RegistryImportJob::RegistryImportJob(const QByteArray& file, const QByteArray& codePage)
    : m_reader(file, codePage)
{
}

// All statements are kept in memory, as the user is to see them before any of them is carried out.
bool RegistryImportJob::step()
{
    try {
        return readOn();
    } catch (const std::bad_alloc&) {
        m_plan.reset(); // what it holds makes room for the empty one
        m_plan = std::make_shared<ImportPlan>();
        m_isTooLarge = true;
        return false;
    }
}

QString RegistryImportJob::error() const
{
    return m_isTooLarge ? tr("There is not enough memory for its statements.") : m_reader.error();
}

bool RegistryImportJob::readOn()
{
    if (m_statement) {
        if (!m_plan->readSome(*m_statement))
            m_plan->add(*std::exchange(m_statement, std::nullopt));
        return true;
    }
    RegFileEntry entry;
    const RegFileReader::Step step = m_reader.next(entry);
    if (step == RegFileReader::Step::Statement) {
        addPrefix(entry);
        m_statement = entry;
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
