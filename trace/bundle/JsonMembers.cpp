#include "trace/bundle/JsonMembers.h"

namespace trace {

void JsonMembers::setWrong(const char* name)
{
    if (m_wrong.isEmpty())
        m_wrong = QLatin1String(name);
}

QJsonValue JsonMembers::value(const char* name, QJsonValue::Type type)
{
    QJsonValue value = m_object.value(QLatin1String(name));
    if (value.type() != type)
        setWrong(name);
    return value;
}

QString JsonMembers::text(const char* name)
{
    return value(name, QJsonValue::String).toString();
}

qint64 JsonMembers::number(const char* name)
{
    return static_cast<qint64>(value(name, QJsonValue::Double).toDouble());
}

bool JsonMembers::optionalFlag(const char* name)
{
    return has(name) && value(name, QJsonValue::Bool).toBool();
}

QJsonArray JsonMembers::optionalArray(const char* name)
{
    return has(name) ? value(name, QJsonValue::Array).toArray() : QJsonArray();
}

} // namespace trace
