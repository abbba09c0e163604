#pragma once

/// What the program ends with, for scripts to rely on.
enum class ExitStatus
{
    Done = 0,       ///< done, found or equal
    No = 1,         ///< a clean no: absent, different, or something would be lost
    WrongUsage = 2, ///< the arguments make no sense
    Failed = 3      ///< could not be done; the message says what, where and why
};
