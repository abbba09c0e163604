#include "trace/bundle/Bundle.h"

#include <QFile>
#include <QFileInfo>

namespace trace {

bool Bundle::open(const BundleArchive::Pause& pause)
{
    if (QFileInfo(m_path).isDir()) {
        m_folder = m_path;
        return readFolder();
    }
    if (!BundleArchive::isArchive(m_path)) {
        m_recording = m_path;
        return true;
    }
    m_unpacked = std::make_unique<QTemporaryDir>();
    if (!m_unpacked->isValid()) {
        m_error = tr("%1 cannot be unpacked: %2").arg(m_path, m_unpacked->errorString());
        return false;
    }
    m_folder = m_unpacked->path();
    BundleArchive archive(m_path);
    const bool isUnpacked = archive.unpack(m_folder, pause);
    m_error = archive.error();
    return isUnpacked && readFolder();
}

bool Bundle::readFolder()
{
    QFile list(pathOf(QLatin1String(bundleName::index)));
    m_recording = pathOf(QLatin1String(bundleName::recording));
    if (!list.open(QIODevice::ReadOnly) || !QFileInfo(m_recording).isFile()) {
        m_error = tr("%1 is no bundle.").arg(m_path);
        return false;
    }
    QString fault;
    m_index = BundleIndex::read(list.readAll(), fault);
    if (!m_index)
        m_error = tr("%1 cannot be read: %2.").arg(m_path, fault);
    return m_index.has_value();
}

QString Bundle::pathOf(const QString& name) const
{
    return m_folder + QLatin1Char('/') + name;
}

} // namespace trace
