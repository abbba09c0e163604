#include "ctl/trace/RecordingFollower.h"

RecordingFollower::RecordingFollower(const QString& path, const CallPrinter& printer)
    : m_file(path), m_printer(printer)
{
    m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void RecordingFollower::read(bool hasEnded)
{
    const qint64 begin = m_file.pos();
    const QByteArray added = m_file.readAll();
    int line = 0;
    for (;;) {
        const int end = added.indexOf('\n', line);
        const bool isLast = end < 0 || end + 1 == added.size();
        const QByteArray text = added.mid(line, end < 0 ? -1 : end - line);
        if (end < 0 || (isLast && !hasEnded && !CallPrinter::isComplete(text)))
            break;
        m_printer.print(text);
        line = end + 1;
    }
    m_file.seek(begin + line);
}
