#include "inspection/registry/RegistryExportJob.h"

#include <QLocale>

RegistryExportJob::RegistryExportJob(const QString& path, const QString& file,
                                     RegFileWriter::Encoding encoding)
    : m_file(file), m_open(m_file.open()), m_writer(m_file.device(), encoding), m_walk(path)
{
}

QString RegistryExportJob::error() const
{
    return m_open && m_writer.isGood() ? QString() : m_file.device().errorString();
}

bool RegistryExportJob::step()
{
    if (!m_open || !m_writer.isGood())
        return false;
    switch (m_walk.next()) {
    case RegistryWalk::Step::Key: m_writer.key(m_walk.path()); return true;
    case RegistryWalk::Step::Value: m_writer.value(m_walk.key(), m_walk.name()); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

QString RegistryExportJob::progress() const
{
    return QLocale().toString(values());
}

bool RegistryExportJob::commit()
{
    return m_open && m_writer.isGood() && m_file.commit();
}
