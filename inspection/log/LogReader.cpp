#include "inspection/log/LogReader.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

constexpr qint64 bytesAtOnce = 64LL * 1024;

} // namespace

LogReader::LogReader(const QString& file, Receiver receiver)
    : m_file(file), m_receiver(std::move(receiver))
{
}

bool LogReader::readMore()
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const bool startsAnew = file.size() < m_position;
    if (startsAnew) {
        m_parser = {};
        m_position = 0;
        m_entries = 0;
    }
    file.seek(m_position);
    const QByteArray bytes = file.read(bytesAtOnce);
    m_position += bytes.size();
    LogPiece piece = m_parser.parse(bytes);
    piece.startsAnew = startsAnew;
    m_entries += static_cast<int>(piece.entries.size());
    m_receiver(std::move(piece));
    return !bytes.isEmpty();
}

bool LogReader::hasNews() const
{
    const QFileInfo file(m_file);
    return file.exists() && file.size() != m_position;
}
