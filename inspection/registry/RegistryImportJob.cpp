#include "inspection/registry/RegistryImportJob.h"

#include <QIODevice>
#include <QLocale>

#include <utility>

RegistryImportJob::RegistryImportJob(std::unique_ptr<QIODevice> file, const QByteArray& codePage)
    : m_reader(std::move(file), codePage)
{
}

RegistryImportJob::RegistryImportJob(const QByteArray& file, const QByteArray& codePage)
    : m_reader(file, codePage)
{
}

bool RegistryImportJob::step()
{
    if (m_statement) {
        if (!m_plan->readSome(*m_statement))
            m_plan->add(*std::exchange(m_statement, std::nullopt));
        return true;
    }
    RegFileEntry entry;
    const RegFileReader::Step step = m_reader.next(entry);
    if (step == RegFileReader::Step::Statement)
        m_statement = entry;
    return step != RegFileReader::Step::End;
}

QString RegistryImportJob::progress() const
{
    return QLocale().toString(static_cast<qulonglong>(m_plan->statements().size()));
}
