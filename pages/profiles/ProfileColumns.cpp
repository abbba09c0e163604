#include "pages/profiles/ProfileColumns.h"

#include "pages/profiles/ProfileText.h"
#include "platform/profiles/LineStateText.h"
#include "window/FaintText.h"
#include "window/GlyphIcon.h"

#include <QFont>
#include <QGuiApplication>
#include <QLocale>

namespace {

using Line = ProfileDocument::Line;

bool isDull(const LineReading& reading)
{
    switch (reading.state) {
    case LineState::Blank:
    case LineState::Continuation:
    case LineState::Unreachable:
    case LineState::NotFound:
    case LineState::Untold: return true;
    default: return isLost(reading.state);
    }
}

QString narrowText(const Line& line)
{
    return longText(line.narrow, ProfileFamily::Narrow);
}

QString wideText(const Line& line)
{
    return longText(line.wide, ProfileFamily::Wide);
}

// What one of the families drops stands out from what both of them drop, which recedes.
QVariant lineLook(const Line& line, bool isDullText, int role)
{
    if (role == Qt::ForegroundRole && isDullText)
        return faintText();
    if (role == Qt::ToolTipRole) {
        const QString text =
            ProfileColumns::tr("Narrow: %1\nWide: %2").arg(narrowText(line), wideText(line));
        return line.isUtf8 ? text : text + QLatin1Char('\n') + ProfileColumns::otherEncodingText();
    }
    return {};
}

QVariant textLook(const Line& line, int role)
{
    if (role == Qt::DecorationRole && !line.isUtf8)
        return glyphIcon(Glyph::Warning);
    return lineLook(line, isDull(line.narrow) && isDull(line.wide), role);
}

QVariant stateLook(const LineReading& reading, ProfileFamily family, int role)
{
    if (role == Qt::ForegroundRole && isDull(reading))
        return faintText();
    return role == Qt::ToolTipRole ? longText(reading, family) : QVariant();
}

// What a cell shows; a placeholder stands for a text that cannot be seen.
struct Shown
{
    QString text;
    bool isPlaceholder = false;
};

Shown shownName(const QString& name)
{
    if (name.isEmpty())
        return {ProfileColumns::tr("(no name)"), true};
    return {shownText(name)};
}

Shown shownValue(const ProfileReading& reading, const std::optional<QString>& value)
{
    if (!reading.isRead)
        return {ProfileColumns::tr("(not asked yet)"), true};
    if (!value)
        return {ProfileColumns::tr("(not found)"), true};
    if (value->isEmpty())
        return {ProfileColumns::tr("(empty)"), true};
    return {shownText(*value)};
}

QVariant look(const Shown& shown, bool isBold, int role)
{
    if (role == Qt::ForegroundRole && shown.isPlaceholder)
        return faintText();
    if (role != Qt::FontRole || !isBold || shown.isPlaceholder)
        return {};
    QFont bold = QGuiApplication::font();
    bold.setBold(true);
    return bold;
}

RecordColumn<ProfileReading> nameColumn(const QString& title, QString ProfileReading::*name)
{
    return {title, [name](const ProfileReading& reading) { return shownName(reading.*name).text; },
            [name](const ProfileReading& reading, int role) {
                return look(shownName(reading.*name), false, role);
            }};
}

QVariant differenceLook(const ProfileReading& reading, int role)
{
    switch (role) {
    case Qt::TextAlignmentRole: return Qt::AlignCenter;
    case Qt::ToolTipRole:
        if (!reading.isRead)
            return ProfileColumns::tr("The families have not been asked for this value yet.");
        return reading.differs() ? ProfileColumns::tr("The families read different values.")
                                 : ProfileColumns::tr("The families read the same value.");
    default: return look({}, reading.differs(), role);
    }
}

QVariant narrowLook(const ProfileReading& reading, int role)
{
    if (role == Qt::ToolTipRole && reading.isRead && reading.narrow.isEmpty())
        return ProfileColumns::tr("Empty: the narrow family answers this for missing values too.");
    return look(shownValue(reading, reading.narrow), reading.differs(), role);
}

} // namespace

QString ProfileColumns::otherEncodingText()
{
    return tr("Not UTF-8: the calls of both families lose what it says.");
}

std::vector<RecordColumn<Line>> ProfileColumns::ofLines()
{
    return {RecordColumn<Line>(
                tr("No.", "number of a line"),
                [](const Line& line) { return QLocale().toString(line.number); },
                [](const Line& line, int role) {
                    return role == Qt::TextAlignmentRole
                               ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                               : lineLook(line, true, role);
                })
                .sortedBy([](const Line& line) { return SortKey::number(line.number); }),
            {tr("Narrow"), [](const Line& line) { return shortText(line.narrow); },
             [](const Line& line, int role) {
                 return stateLook(line.narrow, ProfileFamily::Narrow, role);
             }},
            {tr("Wide"), [](const Line& line) { return shortText(line.wide); },
             [](const Line& line, int role) {
                 return stateLook(line.wide, ProfileFamily::Wide, role);
             }},
            {tr("Line (raw)"), [](const Line& line) { return shownText(line.text); }, &textLook}};
}

std::vector<RecordColumn<ProfileReading>> ProfileColumns::ofReadings()
{
    using Reading = ProfileReading;
    return {nameColumn(tr("Section"), &Reading::section),
            nameColumn(tr("Key"), &Reading::key),
            {tr("Wide reading"),
             [](const Reading& reading) { return shownValue(reading, reading.wide).text; },
             [](const Reading& reading, int role) {
                 return look(shownValue(reading, reading.wide), reading.differs(), role);
             }},
            {QString(),
             [](const Reading& reading) {
                 if (!reading.isRead)
                     return QString();
                 return QString(reading.differs() ? QChar(u'≠') : QLatin1Char('='));
             },
             &differenceLook, tr("Whether the families read the same value")},
            {tr("Narrow reading"),
             [](const Reading& reading) { return shownValue(reading, reading.narrow).text; },
             &narrowLook}};
}
