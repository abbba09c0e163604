#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace minimise`: few calls of a recording after which one still gets the same answer.
class TraceMinimiseCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceMinimiseCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
