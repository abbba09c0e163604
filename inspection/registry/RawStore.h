#pragma once

#include "platform/registry/GroupScope.h"

#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

/// One group of the host library's settings store as it stands there, past the registry service:
/// what is shown of it is marked as raw. Nothing else of the window or the tools reads the store,
/// or writes to it: what is undone or renamed goes back as it stood, for which the service has no
/// call.
///
/// Without a store every group is empty. While one lives, no registry call may be made: the calls
/// would begin in the group that it has entered.
class RawStore
{
public:
    /// How far the entries reach.
    enum class Reach
    {
        Everything, ///< to all files from which the store answers
        OwnFile     ///< to its own file and no fallback, as long as the object lives
    };

    /// Enters a group, levels separated by "/"; the empty one is the whole store.
    explicit RawStore(const QString& group = {}, Reach reach = Reach::Everything);
    ~RawStore();

    RawStore(const RawStore&) = delete;
    RawStore& operator=(const RawStore&) = delete;

    /// True when the host library has set up a store.
    static bool exists();
    /// The store's file; empty without a store.
    static QString fileName();
    /// True for a store in the INI format of QSettings, false for one in a format of the host
    /// library's own.
    static bool isIniFile();
    /// What QSettings knows of its right to write the file; false without a store.
    static bool isWritable();
    /// True where the store's file is there and could not be read, and where saving has failed.
    static bool isInaccessible();
    /// Writes what has changed into the file, and reads what others have changed there, at once.
    /// False where that could not be done, and without a store.
    static bool save();
    /// True when QSettings has met lines that are no entries in a part of the file that it has
    /// parsed, since it was opened: it never forgets that.
    static bool hasMetDamage();
    /// True when QSettings has failed to read, to parse or to save the file since it was opened. It
    /// tells the first failure only, and never forgets it.
    static bool hasFailed();
    /// The object that gets the store's events; null without a store. Owned by the host library.
    static QObject* receiver();

    /// Opens another file as the store's own is opened, in the same format and encoding. There must
    /// be a store.
    static std::unique_ptr<QSettings> opened(const QString& file);

    /// Names of all entries below the group, with their levels, sorted.
    QStringList allEntries() const;
    /// Names of the entries right in the group.
    QStringList entries() const;
    /// True when the group has neither entries nor groups.
    bool isEmpty() const;
    /// True when there is an entry of this name, with or without a value.
    bool contains(const QString& name) const;
    /// What an entry holds; null where there is none, and for one without a value.
    QVariant value(const QString& name) const;

    /// Writes an entry as it is to stand in the file. Does nothing without a store, like `remove`.
    void set(const QString& name, const QVariant& value);
    /// Removes an entry, and with it the group of the same name.
    void remove(const QString& name);

private:
    QSettings* m_store; ///< the host library's; may be null
    std::optional<GroupScope> m_group;
    bool m_hadFallbacks = false;
};
