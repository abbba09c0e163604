#include "trace/bundle/DirectoryListing.h"

#include "trace/bundle/JsonMembers.h"

#include <QJsonDocument>

namespace trace {

namespace {

using Entry = DirectoryListing::Entry;

// Any name that a file can have; none that leads out of the folder.
bool isName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar());
}

Entry readEntry(JsonMembers& members)
{
    Entry entry{};
    entry.name = members.text("name");
    entry.isDirectory = members.optionalFlag("directory");
    entry.size = members.number("size");
    entry.modified = members.number("modified");
    entry.isReadOnly = members.optionalFlag("readOnly");
    if (!isName(entry.name))
        members.setWrong("name");
    return entry;
}

QJsonObject objectOf(const Entry& entry)
{
    return {{QStringLiteral("name"), entry.name},
            {QStringLiteral("directory"), entry.isDirectory},
            {QStringLiteral("size"), entry.size},
            {QStringLiteral("modified"), entry.modified},
            {QStringLiteral("readOnly"), entry.isReadOnly}};
}

} // namespace

std::optional<DirectoryListing> DirectoryListing::read(const QByteArray& json)
{
    const QJsonValue array = QJsonDocument::fromJson(json).object().value(QLatin1String("entries"));
    if (!array.isArray())
        return std::nullopt;
    DirectoryListing listing;
    const QJsonArray values = array.toArray();
    for (const auto& value : values) {
        JsonMembers members(value.toObject());
        listing.entries.push_back(readEntry(members));
        if (!members.wrong().isEmpty())
            return std::nullopt;
    }
    return listing;
}

QByteArray DirectoryListing::toJson() const
{
    QJsonArray array;
    for (const Entry& entry : entries)
        array += objectOf(entry);
    return QJsonDocument(QJsonObject{{QStringLiteral("entries"), array}}).toJson();
}

} // namespace trace
