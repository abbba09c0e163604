#include "ctl/JobRun.h"

#include "ctl/Interruption.h"
#include "inspection/Job.h"

void finish(Job& job)
{
    while (job.step())
        Interruption::check();
    Interruption::check(); // what waited for its input has ended because of that
}
