#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists the records of the font service.
class FontsListCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(FontsListCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
