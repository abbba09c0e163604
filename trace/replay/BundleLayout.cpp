#include "trace/replay/BundleLayout.h"

#include "trace/replay/ReplayFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace replay {

namespace {

constexpr int knownVersion = 1;

QString textOf(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toString();
}

QString indexOf(const QString& folder)
{
    return folder + QStringLiteral("/bundle.json");
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A name that leads out of its folder is none.
bool isName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/'));
}

// As far as it is compared: size, when it was changed, and whether it can be written.
void layFile(const QString& path, const QJsonObject& entry)
{
    QFile file(path);
    if (file.exists() || !file.open(QIODevice::WriteOnly))
        return;
    file.resize(static_cast<qint64>(entry.value(QLatin1String("size")).toDouble()));
    const auto modified = static_cast<qint64>(entry.value(QLatin1String("modified")).toDouble());
    file.setFileTime(QDateTime::fromSecsSinceEpoch(modified), QFile::FileModificationTime);
    file.close();
    if (entry.value(QLatin1String("readOnly")).toBool())
        file.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
}

} // namespace

bool BundleLayout::isBundle(const QString& path)
{
    return QFile::exists(indexOf(path));
}

bool BundleLayout::read()
{
    QJsonParseError fault;
    m_index = QJsonDocument::fromJson(bytesOf(indexOf(m_folder)), &fault).object();
    const int version = m_index.value(QLatin1String("quaysideBundle")).toInt();
    if (fault.error != QJsonParseError::NoError)
        m_error = tr("%1 cannot be read: %2").arg(indexOf(m_folder), fault.errorString());
    else if (version != knownVersion)
        m_error =
            tr("%1 is no index of a bundle of a form that is known here.").arg(indexOf(m_folder));
    return m_error.isEmpty();
}

QString BundleLayout::recording() const
{
    return m_folder + QStringLiteral("/recording.trace");
}

// The path of a copy in the bundle; empty where there was nothing.
QString BundleLayout::copyOf(const QJsonObject& file) const
{
    const QString name = QDir::cleanPath(textOf(file, "file"));
    const bool leadsOut = QDir::isAbsolutePath(name) || name.startsWith(QLatin1String(".."));
    return name.isEmpty() || leadsOut ? QString() : m_folder + QLatin1Char('/') + name;
}

void BundleLayout::lay(ReplayFolder& replay) const
{
    layStore(replay);
    const QJsonArray profiles = m_index.value(QLatin1String("profiles")).toArray();
    for (const auto& profile : profiles)
        layProfile(profile.toObject(), replay);
    const QJsonArray folders = m_index.value(QLatin1String("directories")).toArray();
    for (const auto& folder : folders)
        layFolder(folder.toObject(), replay);
}

void BundleLayout::layStore(ReplayFolder& replay) const
{
    const QString copy = copyOf(m_index.value(QLatin1String("store")).toObject());
    if (!copy.isEmpty())
        QFile::copy(copy, replay.storePath());
}

void BundleLayout::layProfile(const QJsonObject& profile, ReplayFolder& replay) const
{
    const QString path = textOf(profile, "path");
    const QString copy = copyOf(profile);
    if (!QDir::isAbsolutePath(path))
        return;
    replay.setKnown(path);
    if (copy.isEmpty())
        return;
    replay.makeFolderOf(path);
    QFile file(replay.toReplay(path));
    if (file.open(QIODevice::WriteOnly))
        file.write(bytesOf(copy));
}

void BundleLayout::layFolder(const QJsonObject& folder, ReplayFolder& replay) const
{
    const QString path = textOf(folder, "path");
    const QString copy = copyOf(folder);
    if (!QDir::isAbsolutePath(path))
        return;
    replay.setFolderKnown(path);
    if (copy.isEmpty())
        return;
    const QDir directory(replay.toReplay(path));
    directory.mkpath(QStringLiteral("."));
    const QJsonArray entries =
        QJsonDocument::fromJson(bytesOf(copy)).object().value(QLatin1String("entries")).toArray();
    for (const auto& value : entries) {
        const QJsonObject entry = value.toObject();
        const QString name = textOf(entry, "name");
        if (!isName(name))
            continue;
        if (entry.value(QLatin1String("directory")).toBool())
            directory.mkpath(name);
        else
            layFile(directory.filePath(name), entry);
    }
}

} // namespace replay
