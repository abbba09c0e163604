#include "trace/bundle/BundleIndex.h"

#include "trace/bundle/ArchiveEntryName.h"
#include "trace/bundle/JsonMembers.h"

#include <QJsonDocument>

#include <algorithm>

namespace trace {

namespace {

using File = BundleIndex::File;
using Left = BundleIndex::Left;

constexpr qint64 knownVersion = 1;

struct Reason
{
    const char* word;
    const char* text;
};

constexpr Reason reasons[] = {
    {"tooLarge", QT_TRANSLATE_NOOP("BundleIndex", "over the size limit")},
    {"notAFile", QT_TRANSLATE_NOOP("BundleIndex", "no regular file")},
    {"unreadable", QT_TRANSLATE_NOOP("BundleIndex", "cannot be read")},
};

const File* findIn(const std::vector<File>& files, const QString& path)
{
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&](const File& file) { return file.path == path; });
    return found == files.end() ? nullptr : &*found;
}

File readFile(JsonMembers& members)
{
    File file{members.text("path"), {}};
    if (members.optionalFlag("absent"))
        return file;
    file.file = members.text("file");
    if (!isSafeEntryName(file.file))
        members.setWrong("file");
    return file;
}

Left readLeft(JsonMembers& members)
{
    const QString path = members.text("path");
    const qint64 size = members.number("size");
    return {path, size, members.text("reason")};
}

// All objects of an array; the fault is that of the first that is wrong.
template <typename Read>
auto readAll(const QJsonArray& array, const QString& name, QString& fault, Read read)
{
    std::vector<decltype(read(std::declval<JsonMembers&>()))> all;
    for (const auto& value : array) {
        JsonMembers members(value.toObject());
        all.push_back(read(members));
        if (!members.wrong().isEmpty() && fault.isEmpty())
            fault = name + QLatin1Char('[') + QString::number(all.size() - 1) +
                    QLatin1String("].") + members.wrong();
    }
    return all;
}

QJsonObject objectOf(const File& file)
{
    QJsonObject object{{QStringLiteral("path"), file.path}};
    if (file.isAbsent())
        object.insert(QStringLiteral("absent"), true);
    else
        object.insert(QStringLiteral("file"), file.file);
    return object;
}

QJsonObject objectOf(const Left& left)
{
    return {{QStringLiteral("path"), left.path},
            {QStringLiteral("size"), left.size},
            {QStringLiteral("reason"), left.reason}};
}

template <typename Record>
QJsonArray arrayOf(const std::vector<Record>& records)
{
    QJsonArray array;
    for (const Record& record : records)
        array += objectOf(record);
    return array;
}

// The name of the first member that is wrong; empty without one.
QString readMembers(const QJsonObject& object, BundleIndex& index)
{
    JsonMembers members(object);
    QString fault;
    index.isHidden = members.optionalFlag("hidden");
    if (members.has("store")) {
        JsonMembers store(object.value(QLatin1String("store")).toObject());
        index.store = readFile(store);
        if (!store.wrong().isEmpty())
            fault = QLatin1String("store.") + store.wrong();
    }
    index.profiles =
        readAll(members.optionalArray("profiles"), QStringLiteral("profiles"), fault, readFile);
    index.directories = readAll(members.optionalArray("directories"), QStringLiteral("directories"),
                                fault, readFile);
    index.left = readAll(members.optionalArray("left"), QStringLiteral("left"), fault, readLeft);
    return fault.isEmpty() ? members.wrong() : fault;
}

} // namespace

const File* BundleIndex::profile(const QString& path) const
{
    return findIn(profiles, path);
}

const File* BundleIndex::directory(const QString& path) const
{
    return findIn(directories, path);
}

std::optional<BundleIndex> BundleIndex::read(const QByteArray& json, QString& fault)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(json, &error).object();
    const QJsonValue version = object.value(QLatin1String("quaysideBundle"));
    BundleIndex index;
    if (error.error != QJsonParseError::NoError) {
        fault = tr("the list of the bundle is damaged: %1").arg(error.errorString());
    } else if (!version.isDouble()) {
        fault = tr("the list is none of a bundle");
    } else if (version.toDouble() != static_cast<double>(knownVersion)) {
        fault = tr("a bundle of a form that is not known here: %1").arg(version.toDouble());
    } else {
        const QString wrong = readMembers(object, index);
        fault =
            wrong.isEmpty() ? QString() : tr("the list of the bundle is wrong at %1").arg(wrong);
    }
    return fault.isEmpty() ? std::optional<BundleIndex>(std::move(index)) : std::nullopt;
}

QByteArray BundleIndex::toJson() const
{
    QJsonObject object{{QStringLiteral("quaysideBundle"), knownVersion},
                       {QStringLiteral("profiles"), arrayOf(profiles)},
                       {QStringLiteral("directories"), arrayOf(directories)},
                       {QStringLiteral("left"), arrayOf(left)}};
    if (store)
        object.insert(QStringLiteral("store"), objectOf(*store));
    if (isHidden)
        object.insert(QStringLiteral("hidden"), true);
    return QJsonDocument(object).toJson();
}

QString BundleIndex::reasonText(const QString& reason)
{
    const auto* const found =
        std::find_if(std::begin(reasons), std::end(reasons),
                     [&](const Reason& row) { return reason == QLatin1String(row.word); });
    return found == std::end(reasons) ? reason : tr(found->text);
}

} // namespace trace
