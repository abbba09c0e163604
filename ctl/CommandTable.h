#pragma once

#include <QCoreApplication>

#include <memory>
#include <vector>

class Command;

/// The one table of all commands: help, parsing and completion follow it.
class CommandTable
{
    Q_DECLARE_TR_FUNCTIONS(CommandTable)

public:
    /// What has to be there before the command is made.
    enum class Needs
    {
        Nothing,
        Store,        ///< the store, with its file, to be read
        AnyStore,     ///< the same, but its file may be missing
        ChangedStore, ///< the store, with its file, to be changed
        NewStore,     ///< the same, but its file may still be missing
        Display       ///< a graphical application, and the host library
    };

    struct Row
    {
        const char* group;
        const char* name;
        const char* arguments; ///< as the help shows them
        const char* help;      ///< a text of this class
        int fewest;            ///< arguments
        int most;
        Needs needs;
        std::unique_ptr<Command> (*make)();
    };

    static const std::vector<Row>& rows();
    /// Null where there is no such command.
    static const Row* find(const QString& group, const QString& name);
    static bool hasGroup(const QString& group);
    /// The help of a row, translated.
    static QString helpOf(const Row& row) { return tr(row.help); }
};
