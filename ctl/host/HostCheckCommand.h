#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

#include <chrono>

struct HostReport;

/// Tells whether host libraries can be loaded here, and if not, why.
class HostCheckCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(HostCheckCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;

private:
    static void print(const QString& library, const HostReport& report, Output& output);
    static bool printTrial(const QString& library, std::chrono::milliseconds limit, Output& output);
    static std::chrono::milliseconds limit(const Arguments& arguments);
};
