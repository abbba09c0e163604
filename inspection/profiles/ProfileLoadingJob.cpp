#include "inspection/profiles/ProfileLoadingJob.h"

#include "platform/profiles/NarrowLines.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/WideLines.h"

#include <QFileInfo>

namespace {

// As the narrow family decodes it.
QString textOf(const QString& path)
{
    NarrowProfileFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.text() : QString();
}

} // namespace

ProfileLoadingJob::ProfileLoadingJob(const QString& path)
    : m_document(QFileInfo(path).absoluteFilePath())
{
}

bool ProfileLoadingJob::step()
{
    switch (m_stage++) {
    case 0: readFile(); return true;
    case 1: readNarrow(); return true;
    case 2: readWide(); return true;
    case 3: joinLines(); return true;
    case 4: collectNames(); return true;
    default: return false;
    }
}

void ProfileLoadingJob::readFile()
{
    m_text = textOf(m_document.path());
    m_bytes = ProfileDocument::bytesOf(m_document.path());
}

void ProfileLoadingJob::readNarrow()
{
    m_narrow = NarrowLines(m_text).readings();
}

void ProfileLoadingJob::readWide()
{
    m_wide = WideLines(m_bytes).readings();
}

void ProfileLoadingJob::joinLines()
{
    const QStringList texts = m_text.split(QLatin1Char('\n'));
    std::vector<ProfileDocument::Line>& lines = m_document.lines();
    lines.reserve(m_narrow.size());
    for (std::size_t i = 0; i < m_narrow.size(); ++i) {
        const int index = static_cast<int>(i);
        lines.push_back({index + 1, texts.at(index), m_narrow[i],
                         i < m_wide.size() ? m_wide[i] : LineReading{}});
    }
}

void ProfileLoadingJob::collectNames()
{
    m_names = m_document.names();
}
