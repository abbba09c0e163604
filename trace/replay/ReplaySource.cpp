#include "trace/replay/ReplaySource.h"

#include "trace/replay/ReplayFolder.h"

#include <QDir>

namespace replay {

QStringList ReplaySource::findIn(const QString& folder)
{
    QStringList paths;
    const QDir directory(folder);
    const QFileInfoList entries =
        directory.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        const bool isRecording = entry.isFile() && entry.suffix() == QLatin1String("trace");
        if (isRecording || BundleLayout::isBundle(entry.filePath()))
            paths += entry.filePath();
    }
    return paths;
}

bool ReplaySource::open(const Pause& pause)
{
    if (!BundleLayout::isBundle(m_path))
        return openRecording(m_path, pause);
    m_bundle.emplace(m_path);
    if (m_bundle->read())
        return openRecording(m_bundle->recording(), pause);
    m_error = m_bundle->error();
    return false;
}

bool ReplaySource::openRecording(const QString& path, const Pause& pause)
{
    m_file = std::make_unique<trace::TraceFile>(path);
    if (!m_file->open()) {
        m_error = m_file->error();
        return false;
    }
    while (m_file->readOn())
        pause();
    return true;
}

std::unique_ptr<ReplayFolder> ReplaySource::makeFolder() const
{
    auto folder = std::make_unique<ReplayFolder>(m_file->header().textOf("cwd"));
    if (m_bundle && folder->isValid())
        m_bundle->lay(*folder);
    return folder;
}

} // namespace replay
