#include "trace/replay/ReplaySource.h"

#include "trace/replay/BundleLayout.h"
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
        const bool isFile =
            entry.suffix() == QLatin1String("trace") || entry.suffix() == QLatin1String("qtrace");
        const bool isBundle =
            QFile::exists(entry.filePath() + '/' + QLatin1String(trace::bundleName::index));
        if ((entry.isFile() && isFile) || isBundle)
            paths += entry.filePath();
    }
    return paths;
}

bool ReplaySource::open(const Pause& pause)
{
    if (!m_bundle.open(pause)) {
        m_error = m_bundle.error();
        return false;
    }
    m_file = std::make_unique<trace::TraceFile>(m_bundle.recording());
    if (!m_file->open()) {
        m_error = QString(m_file->error()).replace(m_bundle.recording(), m_path);
        return false;
    }
    while (m_file->readOn())
        pause();
    return true;
}

std::unique_ptr<ReplayFolder> ReplaySource::makeFolder() const
{
    auto folder = std::make_unique<ReplayFolder>(m_file->header().textOf("cwd"));
    if (m_bundle.index() && folder->isValid())
        BundleLayout(m_bundle).lay(*folder);
    return folder;
}

} // namespace replay
