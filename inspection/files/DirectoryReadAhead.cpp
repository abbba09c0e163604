#include "inspection/files/DirectoryReadAhead.h"

#include <QFile>
#include <QTextCodec>

#include <cerrno>
#include <cstring>

namespace {

constexpr int batch = 500; // entries that a step reads: well below 1 ms when they come from a disk

DIR* opened(const QString& pattern)
{
    const int separator = pattern.lastIndexOf(QLatin1Char('/'));
    return opendir(QFile::encodeName(pattern.left(separator + 1)).constData());
}

bool isDecodable(const char* name)
{
    const QTextCodec& codec = *QTextCodec::codecForLocale();
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    codec.toUnicode(name, static_cast<int>(std::strlen(name)), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
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
    for (int i = 0; m_directory && i < batch; ++i) {
        const dirent* entry = readdir(m_directory.get());
        if (!entry) {
            m_directory.reset();
            return;
        }
        ++m_entries;
        if (!isDecodable(entry->d_name))
            ++m_undecodableNames;
    }
}
