#include "ctl/trace/CallPrinter.h"

#include "trace/Operations.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

QString textOf(const QJsonValue& value);

QString membersOf(const QJsonObject& object)
{
    QStringList members;
    for (auto member = object.begin(); member != object.end(); ++member)
        members += member.key() + '=' + textOf(member.value());
    return members.join(QLatin1String(", "));
}

// A value by the one member that says what it is.
QString objectText(const QJsonObject& object)
{
    for (const char* role : {"handle", "pointer", "callback", "data"}) {
        const QJsonValue value = object.value(QLatin1String(role));
        if (value.isString())
            return value.toString();
    }
    if (object.contains(QLatin1String("text")))
        return '"' + object.value(QLatin1String("text")).toString() + '"';
    if (object.contains(QLatin1String("flags"))) {
        QStringList names;
        const QJsonArray words = object.value(QLatin1String("names")).toArray();
        for (const auto& name : words)
            names += name.toString();
        return names.isEmpty() ? textOf(object.value(QLatin1String("flags"))) : names.join('|');
    }
    return '{' + membersOf(object) + '}';
}

QString textOf(const QJsonValue& value)
{
    if (value.isObject())
        return objectText(value.toObject());
    if (value.isString())
        return value.toString();
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 17) : QStringLiteral("null");
}

// A result as the number that it was: null and an address count, all else is no failure.
quint64 resultOf(const QJsonValue& value)
{
    constexpr quint64 something = 1;
    if (value.isDouble())
        return static_cast<quint64>(static_cast<qint64>(value.toDouble()));
    if (value.isNull())
        return 0;
    const QJsonObject object = value.toObject();
    const QString handle = object.value(QLatin1String("handle")).toString();
    if (handle == QLatin1String("INVALID_HANDLE_VALUE"))
        return ~quint64{0};
    if (object.contains(QLatin1String("flags")))
        return static_cast<quint64>(object.value(QLatin1String("flags")).toDouble());
    return handle == QLatin1String("0x0") ? 0 : something;
}

bool hasFailed(const QJsonObject& call)
{
    const trace::Operation* operation =
        trace::findOperation(call.value(QLatin1String("manager")).toString().toStdString(),
                             call.value(QLatin1String("op")).toString().toStdString());
    return !call.contains(QLatin1String("result")) ||
           (operation &&
            trace::isFailure(*operation, resultOf(call.value(QLatin1String("result")))));
}

QString lineOf(const QJsonObject& call)
{
    const bool isCallback = call.contains(QLatin1String("callback"));
    const QString indent(2 * call.value(QLatin1String("depth")).toInt(), ' ');
    const QString name = call.value(QLatin1String(isCallback ? "callback" : "op")).toString();
    QString line = indent + call.value(QLatin1String("caller")).toString() + ' ' + name + '(' +
                   membersOf(call.value(QLatin1String("args")).toObject()) + ')';
    if (call.contains(QLatin1String("result")))
        line += QStringLiteral(" = ") + textOf(call.value(QLatin1String("result")));
    const QString out = membersOf(call.value(QLatin1String("out")).toObject());
    return out.isEmpty() ? line : line + QStringLiteral(" -> ") + out;
}

} // namespace

bool CallPrinter::isComplete(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    return !object.contains(QLatin1String("n")) ? !object.isEmpty()
                                                : object.contains(QLatin1String("d"));
}

void CallPrinter::print(const QByteArray& line) const
{
    const QJsonObject call = QJsonDocument::fromJson(line).object();
    if (!call.contains(QLatin1String("n")) || (m_hasOnlyFailures && !hasFailed(call)))
        return;
    const QByteArray text = lineOf(call).toLocal8Bit() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
}
