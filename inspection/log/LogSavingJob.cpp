#include "inspection/log/LogSavingJob.h"

#include <QLocale>

#include <utility>

namespace {

constexpr int many = 1000; // lines, which may take long to reach the disk

} // namespace

LogSavingJob::LogSavingJob(const QString& file, int lines, std::function<QString(int number)> line)
    : m_file(file), m_lines(lines), m_line(std::move(line))
{
    if (!m_file.open(QIODevice::WriteOnly))
        m_error = m_file.errorString();
}

bool LogSavingJob::step()
{
    if (!m_file.isOpen())
        return false;
    if (m_written < m_lines) {
        m_file.write(m_line(m_written).toUtf8() + '\n');
        ++m_written;
        return true;
    }
    if (!m_file.commit())
        m_error = m_file.errorString();
    return false;
}

QString LogSavingJob::progress() const
{
    return QLocale().toString(m_written);
}

bool LogSavingJob::isNextStepLong() const
{
    return m_written == m_lines && m_lines >= many;
}
