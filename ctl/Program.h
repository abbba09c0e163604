#pragma once

#include "ctl/CommandTable.h"
#include "ctl/ExitStatus.h"
#include "ctl/Output.h"
#include "ctl/Store.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <memory>
#include <optional>

/// Finds the command among the arguments, and runs it.
class Program
{
    Q_DECLARE_TR_FUNCTIONS(Program)

public:
    /// `arguments` begin with the program's name.
    explicit Program(const QStringList& arguments);

    /// What the program ends with.
    ExitStatus run();
    /// True where a Failure has ended the command: what it has changed by then must not be saved.
    bool isToBeDropped() const { return m_isToBeDropped; }

private:
    ExitStatus runParsed();
    ExitStatus runCommand(const CommandTable::Row& row);
    ExitStatus runIn(Output& output, Command& command, const CommandTable::Row& row);
    void openStore(CommandTable::Needs needs, const QString& file, const Output& output);
    ExitStatus wrongUsage(const QString& message) const;
    static ExitStatus print(const QString& text);
    bool isSet(const char* option) const;
    Output::Form form() const;
    QString storeFile() const;
    QString overview(const QString& group) const;
    static QString helpOf(const CommandTable::Row& row, const QCommandLineParser& parser);

    QStringList m_arguments;
    QCommandLineParser m_global;  ///< what stands before the command
    QCommandLineParser m_own;     ///< the command's arguments
    std::optional<Store> m_store; ///< kept after a Failure, for its destructor would save it
    bool m_isToBeDropped = false;
};
