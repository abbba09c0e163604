#include "inspection/Job.h"

Job::~Job() = default;

QString Job::progress() const
{
    return {};
}

bool Job::isNextStepLong() const
{
    return false;
}
