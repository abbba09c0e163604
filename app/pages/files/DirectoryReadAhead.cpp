#include "app/pages/files/DirectoryReadAhead.h"

#include <QFile>

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
}

bool DirectoryReadAhead::step()
{
    for (int i = 0; m_directory && i < batch; ++i) {
        if (readdir(m_directory.get()))
            ++m_entries;
        else
            m_directory.reset();
    }
    return m_directory != nullptr;
}
