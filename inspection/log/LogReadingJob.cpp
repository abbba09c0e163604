#include "inspection/log/LogReadingJob.h"

#include <QLocale>

QString LogReadingJob::progress() const
{
    return QLocale().toString(m_reader.entries());
}
