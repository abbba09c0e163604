#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

namespace trace {

/// The archive of a bundle, a zip file. It may come from strangers: what would be written outside
/// of the folder that it is unpacked into, or is no file and no folder, makes it a wrong one.
class BundleArchive
{
    Q_DECLARE_TR_FUNCTIONS(BundleArchive)

public:
    /// Called between two pieces of work of a few milliseconds; may throw, which ends the work.
    using Pause = std::function<void()>;

    /// An archive that becomes this many times as large is refused, beyond the size that is never
    /// too large. Recordings become some twenty times smaller in an archive.
    static constexpr qint64 mostGrowth = 200;
    static constexpr qint64 usualSize = qint64{256} * 1024 * 1024; ///< bytes
    static constexpr int mostEntries = 100000;

    explicit BundleArchive(const QString& path) : m_path(path) {}

    /// Whether the file begins as an archive does.
    static bool isArchive(const QString& path);

    /// Writes the files below a folder, by their names from there; links and what is no file stay
    /// out. A file of that name is replaced in one step, when all is written. False where that
    /// fails.
    bool pack(const QString& folder, const Pause& pause = {});

    /// Unpacks into a folder, which is there and empty. False where that fails, or the archive is a
    /// wrong one; what is unpacked by then stays.
    bool unpack(const QString& folder, const Pause& pause = {});

    /// What failed, in words, with the name of the archive.
    const QString& error() const { return m_error; }

private:
    bool fail(const QString& reason);

    QString m_path;
    QString m_error;
};

} // namespace trace
