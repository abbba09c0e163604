#include "trace/reading/TraceReadingJob.h"

#include <QLocale>

namespace trace {

QString TraceReadingJob::progress() const
{
    return QLocale().toString(static_cast<qulonglong>(m_file.calls().size()));
}

} // namespace trace
