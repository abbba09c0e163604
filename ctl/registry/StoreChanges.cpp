#include "ctl/registry/StoreChanges.h"

#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/Store.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreChangeJob.h"

void StoreChanges::print(const StoreChange& change, Output& output)
{
    output.begin({Columns::change, Columns::key, Columns::name, Columns::stored});
    for (const EntryChange& each : change) {
        const QVariant entry = each.after.value_or(each.before.value_or(QVariant()));
        const bool isKey = entry.isNull();
        output.record({each.after ? QStringLiteral("added") : QStringLiteral("removed"),
                       RegistryPath::shown(isKey ? each.path : RegistryPath::parent(each.path)),
                       isKey ? QString() : RegistryPath::name(each.path), rawRegistryText(entry)},
                      each.after ? Output::Tone::Good : Output::Tone::Bad);
    }
}

void StoreChanges::apply(StoreChange change, Output& output)
{
    output.flush();
    StoreChangeJob job(std::make_shared<const StoreChange>(std::move(change)),
                       StoreChangeJob::Direction::Make, StoreChangeJob::Others::StopAll);
    finish(job);
    Store::save();
}
