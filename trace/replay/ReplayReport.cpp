#include "trace/replay/ReplayReport.h"

#include <QDataStream>

#include <algorithm>

namespace replay {

namespace {

constexpr quint32 wholeMark = 0x52504C59; // behind all the rest

QDataStream& operator<<(QDataStream& stream, const Difference& difference)
{
    return stream << difference.part << difference.was << difference.is;
}

QDataStream& operator>>(QDataStream& stream, Difference& difference)
{
    return stream >> difference.part >> difference.was >> difference.is;
}

// The templates find what is declared before them alone.
QDataStream& operator<<(QDataStream& stream, const ReplayReport::DifferentCall& call);
QDataStream& operator>>(QDataStream& stream, ReplayReport::DifferentCall& call);
QDataStream& operator<<(QDataStream& stream, const ReplayReport::SkippedCall& call);
QDataStream& operator>>(QDataStream& stream, ReplayReport::SkippedCall& call);

template <typename T>
void writeAll(QDataStream& stream, const std::vector<T>& all)
{
    stream << static_cast<quint64>(all.size());
    for (const T& one : all)
        stream << one;
}

template <typename T>
void readAll(QDataStream& stream, std::vector<T>& all)
{
    quint64 count = 0;
    stream >> count;
    for (; count > 0 && stream.status() == QDataStream::Ok; --count)
        stream >> all.emplace_back();
}

QDataStream& operator<<(QDataStream& stream, const ReplayReport::DifferentCall& call)
{
    stream << call.number;
    writeAll(stream, call.differences);
    return stream;
}

QDataStream& operator>>(QDataStream& stream, ReplayReport::DifferentCall& call)
{
    stream >> call.number;
    readAll(stream, call.differences);
    return stream;
}

QDataStream& operator<<(QDataStream& stream, const ReplayReport::SkippedCall& call)
{
    return stream << call.number << static_cast<qint32>(call.reason);
}

QDataStream& operator>>(QDataStream& stream, ReplayReport::SkippedCall& call)
{
    qint32 reason = 0;
    stream >> call.number >> reason;
    call.reason = static_cast<SkipReason>(reason);
    return stream;
}

} // namespace

qint64 ReplayReport::skippedCount() const
{
    return std::count_if(skipped.begin(), skipped.end(),
                         [](const SkippedCall& call) { return call.reason != SkipReason::Inner; });
}

QByteArray ReplayReport::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << performed << watchedAnswer;
    writeAll(stream, different);
    writeAll(stream, skipped);
    stream << wholeMark;
    return bytes;
}

bool ReplayReport::fromBytes(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream >> performed >> watchedAnswer;
    readAll(stream, different);
    readAll(stream, skipped);
    quint32 mark = 0;
    stream >> mark;
    return stream.status() == QDataStream::Ok && mark == wholeMark;
}

} // namespace replay
