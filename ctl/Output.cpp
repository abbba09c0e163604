#include "ctl/Output.h"

#include "ctl/Interruption.h"
#include "ctl/Message.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cwchar>

namespace {

constexpr std::size_t rowsOfPiece = 500;
constexpr int gap = 2;
constexpr int widest = 60; ///< of a column that is aligned

QByteArray json(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

// Columns on a terminal: characters of East Asia take two.
int widthOf(const QString& text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters)
        width += qMax(0, wcwidth(static_cast<wchar_t>(character)));
    return width;
}

QString escapedCharacter(QChar character)
{
    switch (character.unicode()) {
    case '\\': return QStringLiteral("\\\\");
    case '\t': return QStringLiteral("\\t");
    case '\n': return QStringLiteral("\\n");
    case '\r': return QStringLiteral("\\r");
    default: return QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
    }
}

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

// On a terminal paths are to look as usual, so that backslashes stay single. Most texts have
// nothing to be escaped.
QString shownCell(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), isControl))
        return text;
    QString result;
    for (const QChar character : text)
        result += isControl(character) ? escapedCharacter(character) : QString(character);
    return result;
}

const char* colourOf(Output::Tone tone)
{
    switch (tone) {
    case Output::Tone::Good: return "\x1b[32m";
    case Output::Tone::Bad: return "\x1b[31m";
    case Output::Tone::Plain: break;
    }
    return "";
}

bool knowsColours()
{
    return qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

} // namespace

Output::Output(Form form, const QString& command)
    : m_device(form == Form::Quiet ? StandardOutput::Use::Drop : StandardOutput::Use::Print),
      m_form(form),
      m_command(command),
      m_hasColours(m_device.isTerminal() && knowsColours())
{
}

Output::Form Output::usualForm()
{
    return StandardOutput().isTerminal() ? Form::Table : Form::Lines;
}

void Output::begin(const std::vector<Column>& columns)
{
    m_columns = columns;
    m_widths.assign(columns.size(), 0);
    if (m_form == Form::Json) {
        m_device.put("{\"command\":" + json(m_command) + ",\"records\":[");
        m_hasBegun = true;
    }
}

void Output::record(const QStringList& cells, Tone tone)
{
    Interruption::check();
    if (m_form == Form::Json)
        return jsonRecord(cells);
    if (m_form == Form::Quiet)
        return;
    QStringList shown;
    for (const QString& cell : cells)
        shown.append(m_form == Form::Lines ? escaped(cell) : shownCell(cell));
    if (m_form == Form::Lines)
        return m_device.put(shown.join(QLatin1Char('\t')).toLocal8Bit() + '\n');
    m_rows.push_back({shown, tone});
    if (m_rows.size() >= rowsOfPiece)
        flushTable();
}

void Output::jsonRecord(const QStringList& cells)
{
    QJsonObject object;
    for (int i = 0; i < cells.size(); ++i)
        object.insert(QLatin1String(m_columns[static_cast<std::size_t>(i)].name), cells.at(i));
    m_device.put((m_records++ == 0 ? "\n" : ",\n") +
                 QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void Output::flushTable()
{
    if (m_rows.empty())
        return;
    if (m_records++ == 0 && m_columns.size() > 1) {
        QStringList titles;
        for (const Column& column : m_columns)
            titles.append(tr(column.title));
        m_rows.insert(m_rows.begin(), {titles, Tone::Plain});
    }
    for (const Row& row : m_rows) {
        for (std::size_t i = 0; i < m_widths.size(); ++i)
            m_widths[i] =
                qMin(widest, qMax(m_widths[i], widthOf(row.cells.at(static_cast<int>(i)))));
    }
    for (const Row& row : m_rows)
        m_device.put(tableLine(row).toLocal8Bit() + '\n');
    m_rows.clear();
    m_device.finish();
}

// Empty cells at the end need no blanks.
QString Output::tableLine(const Row& row) const
{
    QString line;
    int blanks = 0;
    for (int i = 0; i < row.cells.size(); ++i) {
        const QString& cell = row.cells.at(i);
        if (!cell.isEmpty())
            line += QString(blanks, QLatin1Char(' ')) + cell;
        blanks = (cell.isEmpty() ? blanks : 0) + gap +
                 qMax(0, m_widths[static_cast<std::size_t>(i)] - widthOf(cell));
    }
    return coloured(line, row.tone);
}

QString Output::coloured(const QString& line, Tone tone) const
{
    const QLatin1String colour(colourOf(tone));
    return m_hasColours && colour.size() > 0 ? colour + line + QLatin1String("\x1b[0m") : line;
}

void Output::line(const QStringList& cells, const QString& text, Tone tone)
{
    Interruption::check();
    if (m_form == Form::Json)
        jsonRecord(cells);
    else if (m_form != Form::Quiet)
        m_device.put(coloured(shownCell(text), tone).toLocal8Bit() + '\n');
}

void Output::whole(const QByteArray& bytes, const Column& column)
{
    if (m_form == Form::Json) {
        begin({column});
        jsonRecord({QString::fromUtf8(bytes)});
    } else if (m_form != Form::Quiet) {
        m_device.put(bytes);
    }
}

void Output::note(const QString& text) const
{
    if (m_form != Form::Quiet)
        showMessage(text);
}

void Output::flush()
{
    flushTable();
    if (m_form == Form::Json && !m_hasBegun)
        begin({});
    m_device.finish();
}

void Output::finish(ExitStatus status, const QString& error)
{
    flushTable();
    if (m_form == Form::Json) {
        if (!m_hasBegun)
            begin({});
        m_device.put("],\"status\":" + QByteArray::number(static_cast<int>(status)) +
                     (error.isEmpty() ? "" : ",\"error\":" + json(error)) + "}\n");
    }
    m_device.finish();
}

QString Output::escaped(const QString& text)
{
    QString result;
    for (const QChar character : text)
        result += isControl(character) || character == QLatin1Char('\\')
                      ? escapedCharacter(character)
                      : QString(character);
    return result;
}
