#include "inspection/displays/SystemMetrics.h"

#include "platform/PlatformServicesImp.h"

#include <QCoreApplication>

namespace {

struct Name
{
    int index;
    const char* name;
};

constexpr Name names[] = {
    {SM_CXFULLSCREEN, "SM_CXFULLSCREEN"},
    {SM_CYFULLSCREEN, "SM_CYFULLSCREEN"},
    {SM_CXSCREEN, "SM_CXSCREEN"},
    {SM_CYSCREEN, "SM_CYSCREEN"},
    {2, "SM_CXVSCROLL"},
    {3, "SM_CYHSCROLL"},
    {4, "SM_CYCAPTION"},
    {11, "SM_CXICON"},
    {12, "SM_CYICON"},
    {13, "SM_CXCURSOR"},
    {14, "SM_CYCURSOR"},
    {76, "SM_XVIRTUALSCREEN"},
    {77, "SM_YVIRTUALSCREEN"},
    {78, "SM_CXVIRTUALSCREEN"},
    {79, "SM_CYVIRTUALSCREEN"},
    {80, "SM_CMONITORS"},
};

} // namespace

std::vector<SystemMetric> systemMetrics()
{
    std::vector<SystemMetric> list;
    for (const auto& [index, name] : names)
        list.push_back({index, name, systemMetric(index)});
    return list;
}

QString valueText(const SystemMetric& metric)
{
    return metric.value != 0 ? QString::number(metric.value)
                             : QCoreApplication::translate("SystemMetrics", "0 (not provided)");
}

int systemMetric(int index)
{
    return g_PlatformServices.resourceManager()->GetSystemMetrics(index);
}
