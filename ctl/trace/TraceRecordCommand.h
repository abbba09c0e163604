#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Runs a program and records the calls of its services. Ends with the program's status, or with
/// 128 and the number of the signal that has ended it.
class TraceRecordCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceRecordCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
