#include "inspection/files/DirectoryReadAhead.h"

#include "platform/files/FileNameDecoder.h"

#include <QFile>

#include <cerrno>

namespace {

constexpr int batch = 500; // entries that a step reads: well below 1 ms when they come from a disk

DIR* opened(const QString& pattern)
{
    const int separator = pattern.lastIndexOf(QLatin1Char('/'));
    return opendir(QFile::encodeName(pattern.left(separator + 1)).constData());
}

} // namespace

DirectoryReadAhead::DirectoryReadAhead(const QString& pattern)
    : m_directory(opened(pattern), closedir)
{
    if (!m_directory)
        m_error = qt_error_string(errno);
}

void DirectoryReadAhead::step()
{
    const FileNameDecoder decoder;
    QString text;
    for (int i = 0; m_directory && i < batch; ++i) {
        const dirent* entry = readdir(m_directory.get());
        if (!entry) {
            m_directory.reset();
            return;
        }
        ++m_entries;
        if (decoder.decode(entry->d_name, text) != FileNameDecoder::Result::Text)
            ++m_undecodableNames;
    }
}
