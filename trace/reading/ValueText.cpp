#include "trace/reading/ValueText.h"

#include "trace/reading/KnownOperation.h"

#include <QStringList>

namespace trace {

namespace {

constexpr int mostDigits = 64; // of data that is shown, two for each byte

bool isToBeEscaped(QChar character)
{
    return character.category() == QChar::Other_Control || character == QLatin1Char('\\') ||
           character == QLatin1Char('"');
}

QString escaped(QChar character)
{
    if (character == QLatin1Char('\\') || character == QLatin1Char('"'))
        return QLatin1Char('\\') + QString(character);
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

// Half of a character, which a library may well have passed, is shown by its number.
bool isLoneSurrogate(const QString& text, int place)
{
    if (text[place].isHighSurrogate())
        return place + 1 == text.size() || !text[place + 1].isLowSurrogate();
    return text[place].isLowSurrogate() && (place == 0 || !text[place - 1].isHighSurrogate());
}

QString quoted(const QString& text)
{
    QString result(QLatin1Char('"'));
    for (int i = 0; i < text.size(); ++i) {
        if (isToBeEscaped(text[i]) || isLoneSurrogate(text, i))
            result += escaped(text[i]);
        else
            result += text[i];
    }
    return result + QLatin1Char('"');
}

// A text that was shortened tells how long it was.
QString text(const RecordedValue& value)
{
    const RecordedValue& length = value.member("length");
    const QString shown = quoted(value.textOf("text"));
    return length.isAbsent() ? shown
                             : shown + QStringLiteral("... (%1 characters)").arg(length.text);
}

QString flags(const RecordedValue& value)
{
    QStringList names;
    for (const RecordedMember& name : value.member("names").members)
        names += name.value.text;
    const qint64 number = value.member("flags").toInteger();
    if (!names.isEmpty())
        return names.join(QLatin1Char('|'));
    return number == 0 ? QStringLiteral("0") : QStringLiteral("0x%1").arg(number, 0, 16);
}

QString plain(const RecordedValue& value, const Rows<BitName>& names)
{
    switch (value.kind) {
    case RecordedValue::Kind::True: return QStringLiteral("true");
    case RecordedValue::Kind::False: return QStringLiteral("false");
    case RecordedValue::Kind::Text: return quoted(value.text);
    default: break;
    }
    const QString name = KnownOperation::names(names, static_cast<quint32>(value.toInteger()));
    return name.isEmpty() ? value.text : name;
}

} // namespace

QString ValueText::of(const RecordedValue& value, const Rows<BitName>& names) const
{
    using Shown = RecordedValue::Role;
    switch (value.role()) {
    case Shown::Absent: return {};
    case Shown::Null: return QStringLiteral("null");
    case Shown::Plain: return plain(value, names);
    case Shown::Text: return text(value);
    case Shown::Handle: return m_handleText(value.textOf("handle"));
    case Shown::Data: return data(value);
    case Shown::Hidden: return QStringLiteral("<hidden> (%1 bytes)").arg(value.textOf("hidden"));
    case Shown::Flags: return flags(value);
    case Shown::Pointer: return pointer(value);
    case Shown::Callback: return address(value.textOf("callback"), "procedure");
    case Shown::Record: break;
    }
    return record(value);
}

QString ValueText::data(const RecordedValue& value) const
{
    const QString& digits = value.textOf("data");
    const QString shown = m_form == Form::Shown && digits.size() > mostDigits
                              ? digits.left(mostDigits) + QLatin1String("...")
                              : digits;
    const RecordedValue& length = value.member("length");
    const QString bytes = length.isAbsent() ? QString::number(digits.size() / 2) : length.text;
    return QStringLiteral("<%1> (%2 bytes)").arg(shown, bytes);
}

// Of an array the text in it is recorded too.
QString ValueText::pointer(const RecordedValue& value) const
{
    const RecordedValue& content = value.member("text");
    if (content.isAbsent())
        return address(value.textOf("pointer"), "pointer");
    const QString shown = quoted(content.text);
    return m_form == Form::ByRole ? shown : value.textOf("pointer") + QLatin1Char(' ') + shown;
}

// An address is another one in each run; its role is not.
QString ValueText::address(const QString& address, const char* role) const
{
    return m_form == Form::ByRole ? QLatin1String(role) : address;
}

// The times of files begin with "ft".
QString ValueText::member(const RecordedMember& member) const
{
    const bool isTime = member.name.compare(0, 2, "ft") == 0;
    const QString shown =
        isTime && m_form == Form::ByRole ? QStringLiteral("time") : of(member.value);
    return member.name.empty() ? shown
                               : QString::fromStdString(member.name) + QLatin1String(" = ") + shown;
}

QString ValueText::record(const RecordedValue& record) const
{
    QStringList members;
    for (const RecordedMember& each : record.members)
        members += member(each);
    const QString joined = members.join(QLatin1String(", "));
    return record.kind == RecordedValue::Kind::Array ? '[' + joined + ']' : '{' + joined + '}';
}

} // namespace trace
