#include "trace/replay/SkipReason.h"

namespace replay {

QString SkipReasonText::of(SkipReason reason)
{
    switch (reason) {
    case SkipReason::None: break;
    case SkipReason::NeverReturned: return tr("It never returned.");
    case SkipReason::LeftOtherwise: return tr("It was left by an exception or a jump.");
    case SkipReason::UnknownOperation: return tr("There is no such operation here.");
    case SkipReason::Hidden: return tr("A value is hidden in the recording.");
    case SkipReason::Shortened: return tr("A value is shortened in the recording.");
    case SkipReason::Unreadable: return tr("An argument could not be read by the recorder.");
    case SkipReason::UnknownHandle: return tr("No call of the recording made the handle.");
    case SkipReason::MissingHandle: return tr("The call that made the handle made none here.");
    case SkipReason::EndedHandle: return tr("The handle had been given back.");
    case SkipReason::RootGivenBack: return tr("A root must not be given back.");
    case SkipReason::Module: return tr("It asks a library of the recorded program.");
    case SkipReason::Inner: return tr("The service made it within another call.");
    case SkipReason::UnknownPath: return tr("What was at its path is not in the bundle.");
    case SkipReason::AfterGap: return tr("A change that may matter was not performed before it.");
    case SkipReason::NoManager: return tr("The services have no such manager.");
    }
    return {};
}

} // namespace replay
