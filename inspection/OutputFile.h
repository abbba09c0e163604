#pragma once

#include <QFileDevice>

#include <memory>

/// A file that a result is written to. A regular file gets the result in one step, by `commit`, and
/// stays as it was until then. What cannot be replaced, such as a pipe, a device or a descriptor
/// that the program has been started with, is written to as it is.
class OutputFile
{
public:
    explicit OutputFile(const QString& name);

    /// False where it cannot be written; `device` tells why.
    bool open();
    /// Owned by this; what is written goes there.
    QFileDevice& device() const { return *m_file; }
    /// Puts the file in place; false where anything could not be written.
    bool commit();

private:
    int m_descriptor; ///< negative where the name means none
    bool m_isReplaced;
    std::unique_ptr<QFileDevice> m_file;
};
