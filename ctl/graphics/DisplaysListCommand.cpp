#include "ctl/graphics/DisplaysListCommand.h"

#include "ctl/Output.h"
#include "inspection/displays/MonitorList.h"
#include "inspection/displays/SystemMetrics.h"

namespace {

void printMetrics(Output& output)
{
    output.begin({Columns::index, Columns::name, Columns::value});
    for (const SystemMetric& metric : systemMetrics())
        output.record({QString::number(metric.index), QLatin1String(metric.name),
                       QString::number(metric.value)});
}

void printMonitors(Output& output)
{
    output.begin({Columns::monitor, Columns::full, Columns::work, Columns::primary});
    int number = 0;
    for (const Monitor& monitor : monitors())
        output.record({QString::number(++number), edgesText(monitor.full), edgesText(monitor.work),
                       monitor.isPrimary() ? QStringLiteral("yes") : QStringLiteral("no")});
}

} // namespace

void DisplaysListCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("metrics"), tr("Lists the system metrics instead.")});
}

ExitStatus DisplaysListCommand::run(const Arguments& arguments, Output& output)
{
    if (arguments.has("metrics"))
        printMetrics(output);
    else
        printMonitors(output);
    return ExitStatus::Done;
}
