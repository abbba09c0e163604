#include "trace/replay/AnswerComparison.h"

#include "trace/Operations.h"
#include "trace/reading/ValueText.h"
#include "trace/replay/BufferSize.h"
#include "trace/replay/RecordedText.h"
#include "trace/replay/ReplayFolder.h"
#include "trace/replay/Surroundings.h"

#include <algorithm>
#include <set>

namespace replay {

namespace {

using Value = trace::RecordedValue;
using Role = trace::RecordedValue::Role;
using Surroundings::Comparison;

using Form = trace::ValueText::Form;

QString shown(const Value& value, const trace::Rows<trace::BitName>& names, Form form = Form::Shown)
{
    return trace::ValueText([](const QString& handle) { return handle; }, form).of(value, names);
}

bool isAddress(Role role)
{
    return role == Role::Handle || role == Role::Pointer || role == Role::Callback;
}

// "null", the name of a root or of the invalid handle, or "set" for every other address.
QString state(const Value& value)
{
    if (value.isAbsent() || value.isNull() || value.members.empty())
        return QStringLiteral("null");
    const QString& address = value.members.front().value.text;
    if (address == QLatin1String("0x0"))
        return QStringLiteral("null");
    return address.startsWith(QLatin1String("0x")) || value.role() != Role::Handle
               ? QStringLiteral("set")
               : address;
}

bool isAddressOrNull(const Value& value)
{
    return value.isNull() || isAddress(value.role());
}

qint64 lengthOf(const Value& value)
{
    const Value& length = value.member("length");
    if (!length.isAbsent())
        return length.toInteger();
    if (value.role() == Role::Hidden)
        return value.member("hidden").toInteger();
    return RecordedText::wideLength(value.textOf("text"));
}

// Of shortened data the beginning is recorded.
bool isSameData(const Value& was, const Value& is)
{
    return is.textOf("data").startsWith(was.textOf("data")) && lengthOf(was) == lengthOf(is);
}

bool isZero(const Value& value)
{
    return value.kind == Value::Kind::Number ? value.toInteger() == 0
                                             : state(value) == QLatin1String("null");
}

} // namespace

void AnswerComparison::compareResult(const Value& was, const Value& is)
{
    compare(std::string(Surroundings::result), was, is, m_operation.result.names);
}

void AnswerComparison::compareOutputs(const Value& was, const Value& is)
{
    for (const trace::Parameter& parameter : m_operation.parameters)
        compare(parameter.name, was.member(parameter.name), is.member(parameter.name),
                parameter.names);
}

void AnswerComparison::compareArguments(const Value& was, const Value& is,
                                        const std::string& prefix)
{
    for (const trace::Parameter& parameter : m_operation.parameters)
        compare(prefix + parameter.name, was.member(parameter.name), is.member(parameter.name),
                parameter.names);
}

void AnswerComparison::compare(const std::string& part, const Value& was, const Value& is,
                               const trace::Rows<trace::BitName>& names)
{
    if (!isSame(part, was, is))
        m_differences.push_back(
            {QString::fromStdString(part), shown(was, names), shown(is, names)});
}

bool AnswerComparison::isSame(const std::string& part, const Value& was, const Value& is) const
{
    switch (Surroundings::comparison(m_operation.name, part)) {
    case Comparison::NotAtAll: return true;
    case Comparison::IsNot0: return isZero(was) == isZero(is);
    case Comparison::Length: return was.role() == is.role() && lengthOf(was) == lengthOf(is);
    case Comparison::ByRole: break;
    }
    return isSameByRole(part, was, is);
}

bool AnswerComparison::isSameByRole(const std::string& part, const Value& was,
                                    const Value& is) const
{
    if (was.role() == Role::Hidden) // its length is that of characters, or of bytes
        return is.role() != Role::Absent && lengthOf(was) == lengthOf(is);
    if (isAddressOrNull(was) && isAddressOrNull(is))
        return state(was) == state(is) && was.textOf("text") == is.textOf("text");
    if (was.role() != is.role())
        return false;
    if (was.role() == Role::Record)
        return isSameRecord(part, was, is);
    if (was.role() == Role::Text)
        return isSameText(was, is);
    if (was.role() == Role::Flags) // the names beside them only explain them
        return was.member("flags") == is.member("flags");
    return was.role() == Role::Data ? isSameData(was, is) : was == is;
}

bool AnswerComparison::isSameText(const Value& was, const Value& is) const
{
    const QString& now = is.textOf("text");
    if (was.member("length").isAbsent())
        return m_folder.isSame(was.textOf("text"), now);
    const QString inRecording = m_folder.toRecorded(now);
    return inRecording.startsWith(was.textOf("text")) &&
           RecordedText::wideLength(inRecording) == lengthOf(was);
}

bool AnswerComparison::isSameRecord(const std::string& part, const Value& was,
                                    const Value& is) const
{
    std::set<std::string> names;
    for (const trace::RecordedMember& member : was.members)
        names.insert(member.name);
    for (const trace::RecordedMember& member : is.members)
        names.insert(member.name);
    return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
        return isSame(part + '.' + name, was.member(name.c_str()), is.member(name.c_str()));
    });
}

// The parts in their order, by what is compared of them.
QString AnswerComparison::answerText(const Value& result, const Value& outputs) const
{
    QString text = stateText(std::string(Surroundings::result), result);
    for (const trace::RecordedMember& output : outputs.members)
        text += QLatin1String("; ") + QString::fromStdString(output.name) + QLatin1String(" = ") +
                stateText(output.name, output.value);
    return text;
}

QString AnswerComparison::stateText(const std::string& part, const Value& value) const
{
    switch (Surroundings::comparison(m_operation.name, part)) {
    case Comparison::NotAtAll: return {};
    case Comparison::IsNot0: return isZero(value) ? QStringLiteral("0") : QStringLiteral("not 0");
    case Comparison::Length: return QString::number(lengthOf(value));
    case Comparison::ByRole: break;
    }
    if (isAddressOrNull(value))
        return state(value) + value.textOf("text");
    if (value.role() != Role::Record)
        return m_folder.toRecorded(shown(value, {}, Form::ByRole));
    QString text;
    for (const trace::RecordedMember& member : value.members)
        text += QString::fromStdString(member.name) + QLatin1Char('=') +
                stateText(part + '.' + member.name, member.value) + QLatin1Char(' ');
    return text;
}

} // namespace replay
