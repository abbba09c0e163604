#include "ctl/registry/MadeStatement.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/Store.h"
#include "inspection/registry/RegistryApplyJob.h"

namespace {

struct MadeStatementTexts
{
    Q_DECLARE_TR_FUNCTIONS(MadeStatement)
};

} // namespace

std::shared_ptr<const ImportPlan> MadeStatement::planOf(const RegFileEntry& entry)
{
    auto plan = std::make_shared<ImportPlan>();
    while (plan->readSome(entry)) {
    }
    plan->add(entry);
    return plan;
}

void MadeStatement::apply(const std::shared_ptr<const ImportPlan>& plan, Output& output)
{
    output.flush();
    RegistryApplyJob job(plan);
    finish(job);
    if (job.failed() > 0)
        throw Failure(MadeStatementTexts::tr(
                          "The registry service has failed %L1 of the changes: nothing is saved.")
                          .arg(job.failed()));
    Store::save();
}
