#pragma once

#include "platform/files/FileStamp.h"

/// A file as it has been seen, to be told from what it becomes: by its stamp, and, where that was
/// taken so soon after a change that the next one may get the same, by its bytes too.
class KnownFile
{
public:
    /// No file.
    KnownFile() = default;
    static KnownFile of(const QString& path);

    const FileStamp& stamp() const { return m_stamp; }
    bool exists() const { return m_stamp.exists(); }

    /// True when the file of this path is the one that has been seen, as far as can be told by now.
    /// Costs a `stat`, and the reading of the file once after it has been written.
    bool isStill(const QString& path);

private:
    FileStamp m_stamp;
    unsigned m_digest = 0; ///< of the bytes, where the stamp is not sure
};
