#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace dump`: a recording as text, one call a line.
class TraceDumpCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceDumpCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
