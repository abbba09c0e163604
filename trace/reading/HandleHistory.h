#pragma once

#include "trace/reading/HandleTable.h"

#include <QSet>

namespace trace {

/// What each handle of a recording stood for at each call.
class HandleHistory
{
public:
    /// Takes over what the calls make and take back, as `HandleTable::Listener`.
    void add(const QString& handle, const HandleTable::Entry* made, qint64 call);

    /// What the handle stood for in that call, which may have made it or taken it back; null where
    /// that is not known.
    QString description(const QString& handle, qint64 call) const;
    /// The path of a key: of a root its name, of a key that is not known the handle.
    QString path(const QString& handle, qint64 call) const;

private:
    struct Life
    {
        qint64 from;  ///< the number of the call that made it
        qint64 until; ///< the number of the call that took it back
        QString description;
    };

    QHash<QString, std::vector<Life>> m_lives; ///< by handle, in the order of the calls
    QSet<QString> m_descriptions;              ///< each is kept once
};

} // namespace trace
