#include "platform/profiles/LineStateText.h"

#include <QCoreApplication>

namespace {

class LineStateText
{
    Q_DECLARE_TR_FUNCTIONS(LineStateText)
};

QString shortText(LineState state)
{
    switch (state) {
    case LineState::Blank: return LineStateText::tr("blank");
    case LineState::Header: return LineStateText::tr("header");
    case LineState::Entry: return LineStateText::tr("kept");
    case LineState::Comment: return LineStateText::tr("comment");
    case LineState::NoEquals: return LineStateText::tr("no “=”");
    case LineState::TwoEquals: return LineStateText::tr("two “=”");
    case LineState::BeforeHeader: return LineStateText::tr("no section");
    case LineState::ReplacedHeader: return LineStateText::tr("replaced");
    case LineState::ReplacedKey: return LineStateText::tr("overwritten");
    case LineState::Unreachable: return LineStateText::tr("unreachable");
    case LineState::Continuation: return LineStateText::tr("continued");
    case LineState::NotFound: return LineStateText::tr("not found");
    case LineState::Untold: return LineStateText::tr("untold");
    }
    return {};
}

QString sentence(LineState state, ProfileFamily family)
{
    const bool narrow = family == ProfileFamily::Narrow;
    switch (state) {
    case LineState::Blank: return LineStateText::tr("Blank: skipped.");
    case LineState::Header: return LineStateText::tr("Kept: begins a section.");
    case LineState::Entry: return LineStateText::tr("Kept: the family finds this entry.");
    case LineState::Comment:
        return narrow ? LineStateText::tr("Dropped. The narrow family has no comments: one with "
                                          "exactly one “=” would be an entry.")
                      : LineStateText::tr("Dropped: a comment.");
    case LineState::NoEquals: return LineStateText::tr("Dropped: no “=”.");
    case LineState::TwoEquals: return LineStateText::tr("Dropped: more than one “=”.");
    case LineState::BeforeHeader:
        return LineStateText::tr("Dropped: stands before the first header, in no section.");
    case LineState::ReplacedHeader:
        return LineStateText::tr(
            "Dropped: a later section with the same header replaces this one.");
    case LineState::ReplacedKey:
        return LineStateText::tr("Dropped: the same key comes again later in the section.");
    case LineState::Unreachable:
        return LineStateText::tr(
            "Kept in the file, but the header does not end with “]”, so that no "
            "section name leads to it.");
    case LineState::Continuation: return LineStateText::tr("Part of the line above.");
    case LineState::NotFound:
        return LineStateText::tr("An entry, but the family does not find it under its name.");
    case LineState::Untold:
        return LineStateText::tr("Not looked at: the file is too large for that.");
    }
    return {};
}

// Of a kept line of which the family does not read all that stands there.
QString cutText()
{
    return LineStateText::tr("cut at “;”");
}

QString listText()
{
    return LineStateText::tr("list");
}

QString escapeText()
{
    return LineStateText::tr("escape");
}

} // namespace

QString shortText(const LineReading& reading)
{
    if (isLost(reading.state) || reading.state == LineState::NotFound)
        return shortText(reading.state);
    if (reading.isCut)
        return cutText();
    if (reading.isList)
        return listText();
    return reading.isEscaped ? escapeText() : shortText(reading.state);
}

QStringList shortTexts()
{
    QStringList texts = {cutText(), listText(), escapeText()};
    for (int state = 0; state <= static_cast<int>(LineState::Untold); ++state)
        texts << shortText(static_cast<LineState>(state));
    return texts;
}

QString longText(const LineReading& reading, ProfileFamily family)
{
    QStringList sentences = {sentence(reading.state, family)};
    if (isLost(reading.state) || reading.state == LineState::NotFound)
        return sentences.first();
    if (reading.isList)
        sentences << LineStateText::tr(
            "A comma without quotes makes it a list, which reads as empty.");
    if (reading.isCut)
        sentences << LineStateText::tr("It ends at the “;” without quotes.");
    if (reading.isEscaped)
        sentences << LineStateText::tr("A backslash in it begins an escape.");
    return sentences.join(QLatin1Char(' '));
}
