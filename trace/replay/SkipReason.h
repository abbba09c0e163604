#pragma once

#include <QCoreApplication>
#include <QString>

namespace replay {

/// Why a call of a recording cannot be performed again.
enum class SkipReason
{
    None,
    NeverReturned,
    LeftOtherwise, ///< by an exception or a jump
    UnknownOperation,
    Hidden,        ///< a value was left out of the recording
    Shortened,     ///< and so is a value
    Unreadable,    ///< an address at which nothing could be read
    UnknownHandle, ///< no call of the recording has made it
    MissingHandle, ///< the call that made it there has not made one here
    EndedHandle,   ///< used after it was given back, where the service relies on it
    RootGivenBack, ///< the service would free what is no key
    Module,        ///< a library of the recorded program
    Inner,         ///< made by a service within another call, and so it is here
    UnknownPath,   ///< it differs, and what was at its path is not known
    AfterGap,      ///< it differs, and a call that may have changed that was not performed
    NoManager      ///< the services have no such manager
};

/// The reasons in words.
class SkipReasonText
{
    Q_DECLARE_TR_FUNCTIONS(SkipReasonText)

public:
    static QString of(SkipReason reason);
};

} // namespace replay
