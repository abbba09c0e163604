#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace trace {

/// Reads members of a JSON object and remembers the first that is not what it should be.
class JsonMembers
{
public:
    explicit JsonMembers(const QJsonObject& object) : m_object(object) {}

    /// The member, which has to be there; without a value where it is of another type.
    QString text(const char* name);
    qint64 number(const char* name);
    /// The member, or nothing where it is not there.
    bool optionalFlag(const char* name);
    QJsonArray optionalArray(const char* name);

    bool has(const char* name) const { return m_object.contains(QLatin1String(name)); }
    /// The name of the first member that is not as it should be; empty without one.
    const QString& wrong() const { return m_wrong; }
    void setWrong(const char* name);

private:
    QJsonValue value(const char* name, QJsonValue::Type type);

    QJsonObject m_object;
    QString m_wrong;
};

} // namespace trace
