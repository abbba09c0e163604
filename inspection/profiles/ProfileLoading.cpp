#include "inspection/profiles/ProfileLoading.h"

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

ProfileLoading::ProfileLoading(const QString& path) : m_document(QFileInfo(path).absoluteFilePath())
{
}

bool ProfileLoading::step()
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

void ProfileLoading::readFile()
{
    m_text = textOf(m_document.path());
    m_bytes = ProfileDocument::bytesOf(m_document.path());
}

void ProfileLoading::readNarrow()
{
    m_narrow = NarrowLines(m_text).readings();
}

void ProfileLoading::readWide()
{
    m_wide = WideLines(m_bytes).readings();
}

void ProfileLoading::joinLines()
{
    const QStringList texts = m_text.split(QLatin1Char('\n'));
    std::vector<ProfileDocument::Line>& lines = m_document.lines();
    lines.reserve(m_narrow.size());
    for (std::size_t i = 0; i < m_narrow.size(); ++i)
        lines.push_back({texts.at(static_cast<int>(i)), m_narrow[i],
                         i < m_wide.size() ? m_wide[i] : LineReading{}});
}

void ProfileLoading::collectNames()
{
    m_names = m_document.names();
}
