#include "inspection/profiles/ProfileLoadingJob.h"

#include <QFileInfo>

#include <new>
#include <utility>

namespace {

constexpr qint64 bytesAStep = qint64{512} * 1024;

} // namespace

ProfileLoadingJob::ProfileLoadingJob(const QString& path)
    : m_document(QFileInfo(path).absoluteFilePath()), m_file(m_document.path())
{
}

bool ProfileLoadingJob::step()
{
    try {
        return stepWhole();
    } catch (const std::bad_alloc&) {
        if (!m_document.lines().hasMarks() || !m_lines.hasMarks())
            throw; // not even the lines
    }
    readLinesAlone();
    return true;
}

bool ProfileLoadingJob::stepWhole()
{
    switch (m_stage) {
    case 0: m_stage += readFile() ? 0 : 1; return true;
    case 1: m_stage += readLines() ? 0 : 1; return true;
    case 2: m_stage += readNames() ? 0 : 1; return true;
    default: return false;
    }
}

// Gives back the memory of all that has been read.
void ProfileLoadingJob::readLinesAlone()
{
    m_bytes = QByteArray();
    m_names = ProfileNames();
    m_document = ProfileDocument(m_document.path());
    m_lines = ProfileLines::ofLargeFile(m_document.path());
    m_stage = 1;
}

bool ProfileLoadingJob::readFile()
{
    if (!m_file.isOpen()) {
        if (!QFileInfo(m_file).isFile() || !m_file.open(QIODevice::ReadOnly))
            return false;
        if (m_file.size() > ProfileDocument::largestWhole) {
            m_lines = ProfileLines::ofLargeFile(m_document.path());
            return false;
        }
        m_bytes.reserve(static_cast<int>(m_file.size()));
    }
    const QByteArray piece = m_file.read(bytesAStep);
    m_bytes += piece;
    if (!piece.isEmpty())
        return true;
    m_file.close();
    m_lines = ProfileLines(std::exchange(m_bytes, {}));
    return false;
}

bool ProfileLoadingJob::readLines()
{
    if (m_lines.step())
        return true;
    m_document.setLines(std::move(m_lines));
    return false;
}

bool ProfileLoadingJob::readNames()
{
    if (m_document.lines().hasMarks() && m_names.step(m_document.lines()))
        return true;
    m_document.setNames(std::move(m_names));
    return false;
}
