#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

namespace replay {

class ReplayFolder;

/// What a bundle, as an unpacked folder, has taken along: `bundle.json` and the copies beside it.
/// It may come from strangers: nothing is read outside of the bundle, nor written outside of the
/// replay's folder.
class BundleLayout
{
    Q_DECLARE_TR_FUNCTIONS(BundleLayout)

public:
    /// Whether this is the folder of a bundle.
    static bool isBundle(const QString& path);

    explicit BundleLayout(const QString& folder) : m_folder(folder) {}

    /// False where `bundle.json` cannot be read; `error` tells why.
    bool read();
    const QString& error() const { return m_error; }

    QString recording() const;

    /// Puts store, profiles and the files of listed folders into their places, each file of a
    /// listing as large as it was.
    void lay(ReplayFolder& replay) const;

private:
    void layStore(ReplayFolder& replay) const;
    void layProfile(const QJsonObject& profile, ReplayFolder& replay) const;
    void layFolder(const QJsonObject& folder, ReplayFolder& replay) const;
    QString copyOf(const QJsonObject& file) const;

    QString m_folder;
    QString m_error;
    QJsonObject m_index;
};

} // namespace replay
