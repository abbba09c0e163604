#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace stat`: how often and how long each operation was called, and what was asked for.
class TraceStatCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceStatCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
