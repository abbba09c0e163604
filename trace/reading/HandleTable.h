#pragma once

#include "trace/reading/Call.h"

#include <QHash>

#include <functional>
#include <utility>
#include <vector>

namespace trace {

class TraceFile;
struct CallEntry;
struct Operation;
enum class Role : unsigned char;

/// What the caller owns after each call: handles and arrays that were made and not given back.
class HandleTable
{
public:
    enum class Kind
    {
        Key,
        Search,
        Graphics, ///< an image, a cursor or a brush
        Array     ///< memory; that it is given back shows only when its address is used again
    };

    struct Entry
    {
        Kind kind;
        QString handle;      ///< as it is recorded
        QString description; ///< what it was made for, such as the path of a key
        qint64 maker;        ///< the number of the call
        qint64 order;        ///< from 1 on, among those of its kind
    };

    /// Is told of each handle that a call makes, and of each that it takes back, with null.
    using Listener = std::function<void(const QString& handle, const Entry* made, qint64 call)>;
    void setListener(Listener listener) { m_listener = std::move(listener); }

    /// Whether a call of the operation may make handles or take them back.
    static bool isConcerned(const Operation* operation);

    /// Whether it may make some.
    static bool isMaking(const Operation* operation);

    /// Follows a call and shows it: a handle that it makes is shown with what it stands for, and so
    /// is one that it gives back. Hence the two orders.
    template <typename Follow, typename Show>
    static void inOrder(const Operation* operation, Follow follow, Show show)
    {
        const bool isFirst = isMaking(operation);
        if (isFirst)
            follow();
        show();
        if (!isFirst)
            follow();
    }

    /// Takes over what a call has made and taken back; the calls come in the order of entry.
    void follow(const Call& call, const Operation& operation);

    /// The same for a call of a recording; its line is read only where it is concerned.
    void follow(TraceFile& file, const CallEntry& entry);

    /// What a handle is at present; null for a root, and for one that is not known.
    const Entry* find(const QString& handle) const;
    /// The path of a key: of a root its name, of a key that is not known the handle.
    QString path(const QString& handle) const;
    /// All that is owned, in the order of the calls that made it.
    std::vector<Entry> all() const;

private:
    void add(Role role, const RecordedValue& value, const Call& call);
    void end(const QString& handle, const Call& call);
    QString described(Kind kind, const Call& call) const;
    QString keyPath(const Call& call) const;

    QHash<QString, Entry> m_entries; ///< by handle
    QHash<int, qint64> m_made;       ///< how many, by kind
    Listener m_listener;
};

} // namespace trace
