#pragma once

#include <QString>

#include <vector>

/// A system metric with what GetSystemMetrics answers for it.
struct SystemMetric
{
    int index;
    const char* name;
    int value;
};

/// Those that programs written for Windows ask for most, as they are answered now.
std::vector<SystemMetric> systemMetrics();

/// The value; where it is 0, with the remark that the metric is not provided.
QString valueText(const SystemMetric& metric);

/// What GetSystemMetrics answers for any index.
int systemMetric(int index);
