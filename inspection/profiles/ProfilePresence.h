#pragma once

#include "platform/files/FileStamp.h"

/// Remembers which file a profile was when it was read, to tell whether it is still the same one.
class ProfilePresence
{
public:
    enum class Fate
    {
        Same,    ///< also where there was none, or where it was only written to
        Deleted, ///< there was one while this path was open, and now there is none
        Replaced ///< another file lies there under the name
    };

    /// To be called when the file has been read, or written by us.
    void note(const QString& path);
    /// To be called when the file has been removed by us.
    void forget();
    /// What has become of the file since.
    Fate fate(const QString& path) const;

private:
    QString m_path;
    FileStamp m_file; ///< of the file when it was there last
};
