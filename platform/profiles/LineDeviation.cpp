#include "platform/profiles/LineDeviation.h"

#include "platform/profiles/WrittenLine.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr char byteOrderMark[] = "\xef\xbb\xbf";

class LineDeviation
{
    Q_DECLARE_TR_FUNCTIONS(LineDeviation)
};

struct ValueForm
{
    const char* beginning;
    int arguments; ///< separated by spaces; 0 for any number
};

// What QSettings writes for values that are no texts, and reads as such. It takes sizes and points
// with another number of arguments for texts.
constexpr ValueForm valueForms[] = {{"@ByteArray(", 0}, {"@String(", 0}, {"@Variant(", 0},
                                    {"@DateTime(", 0},  {"@Rect(", 4},   {"@Size(", 2},
                                    {"@Point(", 2}};

bool hasForm(const QByteArray& value, const ValueForm& form)
{
    const QByteArray rest = value.mid(static_cast<int>(qstrlen(form.beginning)));
    return value.startsWith(form.beginning) &&
           (form.arguments == 0 || rest.count(' ') + rest.count(')') == form.arguments);
}

// The first "@" of two stands for an "@" that begins a text.
bool isOtherThanText(const QByteArray& value)
{
    if (!value.startsWith('@') || value.startsWith("@@") || value == "@Invalid()")
        return value.startsWith('@');
    return value.endsWith(')') &&
           std::any_of(std::begin(valueForms), std::end(valueForms),
                       [&](const ValueForm& form) { return hasForm(value, form); });
}

QString wideValueText(const QByteArray& value, const LineReading& reading)
{
    if (value.contains('"'))
        return LineDeviation::tr("The quotes are no part of the value.");
    if (value.contains('\\') && !reading.isEscaped)
        return LineDeviation::tr("The backslash at its end joins the next line to it.");
    if (value.startsWith(byteOrderMark))
        return LineDeviation::tr("The byte order mark is no part of the value.");
    return isOtherThanText(value)
               ? LineDeviation::tr("What begins with “@” is read as a value of another form.")
               : QString();
}

// The narrow family takes all that Unicode calls a space for a blank.
QString narrowValueText(const QByteArray& value)
{
    const QString text = QString::fromUtf8(' ' + value).mid(1); // which keeps a byte order mark
    return text == text.trimmed() ? QString()
                                  : LineDeviation::tr("The spaces around the value are lost.");
}

QStringList entryTexts(const WrittenLine& line, const QByteArray& section,
                       const LineReading& reading, ProfileFamily family)
{
    if (line.kind() != WrittenLine::Kind::Entry)
        return {LineDeviation::tr("It does not look like an entry, but is one to the family.")};
    QStringList texts;
    if (reading.key.toUtf8() != line.name() || reading.section.toUtf8() != section)
        texts << LineDeviation::tr("The family knows it by other names: key “%1”, section “%2”.")
                     .arg(reading.key, reading.section);
    texts << (family == ProfileFamily::Wide ? wideValueText(line.value(), reading)
                                            : narrowValueText(line.value()));
    texts.removeAll(QString());
    return texts;
}

} // namespace

QStringList lineDeviations(const WrittenLine& line, const QByteArray& section,
                           const LineReading& reading, ProfileFamily family)
{
    if (line.kind() == WrittenLine::Kind::Blank || isLost(reading.state))
        return {};
    QStringList texts;
    if (line.hasInnerReturn())
        texts << (family == ProfileFamily::Wide
                      ? LineDeviation::tr("A carriage return in it ends the line.")
                      : LineDeviation::tr("A carriage return in it is lost."));
    if (line.hasZeroByte())
        texts << LineDeviation::tr("A zero byte in it ends names and values.");
    if (reading.state == LineState::Entry)
        texts << entryTexts(line, section, reading, family);
    return texts;
}
