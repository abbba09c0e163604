#include "pages/profiles/DifferenceColumns.h"

#include "inspection/profiles/ReadableLine.h"
#include "pages/profiles/ProfileText.h"
#include "platform/profiles/LineStateText.h"
#include "window/FaintText.h"

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>

namespace {

using Kind = DifferenceRow::Kind;
using Difference = std::shared_ptr<const ProfileDifference>;

QString sign(const DifferenceRow& row)
{
    switch (row.kind) {
    case Kind::Gap: return QString(QChar(u'⋯'));
    case Kind::Kept: return {};
    case Kind::Removed: return QString(QChar(u'−'));
    case Kind::Added: return QStringLiteral("+");
    }
    return {};
}

QString spokenSign(const DifferenceRow& row)
{
    switch (row.kind) {
    case Kind::Gap: return DifferenceColumns::tr("equal lines left out");
    case Kind::Kept: return DifferenceColumns::tr("kept");
    case Kind::Removed: return DifferenceColumns::tr("removed");
    case Kind::Added: return DifferenceColumns::tr("added");
    }
    return {};
}

QString number(int line)
{
    return line < 0 ? QString() : QLocale().toString(line + 1);
}

ReadableLine line(const ProfileDifference& difference, const DifferenceRow& row)
{
    return row.kind == Kind::Added ? ReadableLine(difference.lines().after(), row.after)
                                   : ReadableLine(difference.lines().before(), row.before);
}

QString end(const ProfileDifference& difference, const DifferenceRow& row)
{
    if (row.kind == Kind::Gap)
        return {};
    switch (line(difference, row).end()) {
    case ReadableLine::End::None: return DifferenceColumns::tr("none", "end of a line");
    case ReadableLine::End::LineFeed: return QStringLiteral("LF");
    case ReadableLine::End::CarriageReturnLineFeed: return QStringLiteral("CRLF");
    }
    return {};
}

QString text(const ProfileDifference& difference, const DifferenceRow& row)
{
    return row.kind == Kind::Gap ? QString() : shownText(line(difference, row).text());
}

QString reason(const ProfileDifference& difference, const DifferenceRow& row)
{
    if (row.kind != Kind::Removed)
        return {};
    const LineReading& reading = difference.reading(row.before);
    if (!line(difference, row).isText())
        return DifferenceColumns::tr("not text");
    const bool isAltered = isLost(reading) || reading.isEscaped;
    if (isAltered || reading.state == LineState::Blank)
        return shortText(reading);
    switch (difference.fate(row.before)) {
    case ProfileDifference::Fate::Gone: return {};
    case ProfileDifference::Fate::Moved: return DifferenceColumns::tr("moved");
    case ProfileDifference::Fate::EndChanged: return DifferenceColumns::tr("line end");
    }
    return {};
}

QVariant reasonLook(const ProfileDifference& difference, const DifferenceRow& row, int role)
{
    if (role != Qt::ToolTipRole || row.kind != Kind::Removed)
        return {};
    return plainToolTip(longText(difference.reading(row.before), difference.family()));
}

// Stays near the palette's base, so that its text can be read on it, light or dark.
QColor tinted(const QColor& base, const QColor& tint)
{
    constexpr int share = 6; // one part of this many
    const auto mix = [](int a, int b) { return (a * (share - 1) + b) / share; };
    return {mix(base.red(), tint.red()), mix(base.green(), tint.green()),
            mix(base.blue(), tint.blue())};
}

QVariant look(const QPalette& palette, const DifferenceRow& row, int role)
{
    const bool isChanged = row.kind == Kind::Removed || row.kind == Kind::Added;
    if (role == Qt::ForegroundRole && !isChanged)
        return faintText();
    if (role == Qt::BackgroundRole && isChanged)
        return tinted(palette.base().color(), row.kind == Kind::Removed ? Qt::red : Qt::green);
    if (role != Qt::FontRole || !isChanged)
        return {};
    QFont bold = QGuiApplication::font();
    bold.setBold(true);
    return bold;
}

QVariant signLook(const QPalette& palette, const DifferenceRow& row, int role)
{
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
        return spokenSign(row);
    return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignCenter) : look(palette, row, role);
}

RecordColumn<DifferenceRow> numberColumn(const QString& title, int DifferenceRow::*line,
                                         const QPalette& palette)
{
    const auto right = [palette](const DifferenceRow& row, int role) {
        return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                             : look(palette, row, role);
    };
    return RecordColumn<DifferenceRow>(
               title, [line](const DifferenceRow& row) { return number(row.*line); }, right)
        .sortedBy([line](const DifferenceRow& row) { return SortKey::number(row.*line); });
}

} // namespace

std::vector<RecordColumn<DifferenceRow>> DifferenceColumns::of(const Difference& difference,
                                                               const QPalette& palette)
{
    using Row = DifferenceRow;
    const auto plain = [palette](const Row& row, int role) { return look(palette, row, role); };
    return {{tr("±", "column of signs"), &sign,
             [palette](const Row& row, int role) { return signLook(palette, row, role); },
             tr("− removed, + added, ⋯ equal lines left out")},
            numberColumn(tr("Before", "number of a line"), &Row::before, palette),
            numberColumn(tr("After", "number of a line"), &Row::after, palette),
            {tr("End", "of a line"), [difference](const Row& row) { return end(*difference, row); },
             plain},
            {tr("Why"), [difference](const Row& row) { return reason(*difference, row); },
             [difference, plain](const Row& row, int role) {
                 const QVariant tip = reasonLook(*difference, row, role);
                 return tip.isValid() ? tip : plain(row, role);
             }},
            {tr("Line"), [difference](const Row& row) { return text(*difference, row); }, plain}};
}

// Numbers of five digits fit too.
QStringList DifferenceColumns::samples()
{
    const QString more = QStringLiteral("00");
    return {QStringLiteral("⋯00"), tr("Before", "number of a line") + more,
            tr("After", "number of a line") + more, QStringLiteral("CRLF"),
            tr("line end") + more + more};
}
