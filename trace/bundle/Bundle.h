#pragma once

#include "trace/bundle/BundleArchive.h"
#include "trace/bundle/BundleIndex.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace trace {

/// A recording with what it needs, as users name it: the archive of a bundle, the folder of an
/// unpacked one, or a recording alone. What an archive is unpacked into goes away with this object.
class Bundle
{
    Q_DECLARE_TR_FUNCTIONS(Bundle)

public:
    explicit Bundle(const QString& path) : m_path(path) {}

    /// False where it cannot be read; `error` tells why. A recording alone is not looked into.
    bool open(const BundleArchive::Pause& pause = {});
    const QString& error() const { return m_error; }

    /// The file of the recording.
    const QString& recording() const { return m_recording; }
    /// What it has taken along; nothing for a recording alone.
    const std::optional<BundleIndex>& index() const { return m_index; }
    /// The path of what the index calls `name`.
    QString pathOf(const QString& name) const;

private:
    bool readFolder();

    QString m_path;
    QString m_folder;
    QString m_recording;
    QString m_error;
    std::optional<BundleIndex> m_index;
    std::unique_ptr<QTemporaryDir> m_unpacked;
};

/// Names within a bundle.
namespace bundleName {
inline constexpr char index[] = "bundle.json";
inline constexpr char recording[] = "recording.trace";
inline constexpr char store[] = "store.ini";
inline constexpr char profiles[] = "profiles";
inline constexpr char directories[] = "directories";
} // namespace bundleName

} // namespace trace
