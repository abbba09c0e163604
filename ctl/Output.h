#pragma once

#include "ctl/Column.h"
#include "ctl/ExitStatus.h"
#include "ctl/StandardOutput.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// What a command prints: records, in the form that suits who reads them.
///
/// - On a terminal, a table with a title row. It is aligned in pieces, so that long lists appear
///   while they are made.
/// - Otherwise one record a line, its cells separated by tabs.
/// - As JSON, one document: {"command": "...", "records": [{...}, ...], "status": 0}, and "error"
///   with a message where there is one. Every record has every column, as a text.
/// - Quiet, nothing.
///
/// In the first two "\t", "\n", "\r" and "\x1b" stand for characters that would spoil lines or
/// terminals; in the second one backslashes are doubled too, so that nothing is ambiguous. A write
/// that fails throws a Failure.
class Output
{
    Q_DECLARE_TR_FUNCTIONS(Output)

public:
    enum class Form
    {
        Table,
        Lines,
        Json,
        Quiet
    };
    enum class Tone
    {
        Plain,
        Good, ///< green where there are colours
        Bad   ///< red
    };

    /// `command` is its name in the document.
    Output(Form form, const QString& command);

    /// The form for a standard output that is a terminal, or is none.
    static Form usualForm();

    Form form() const { return m_form; }

    /// The columns of the records that follow; to be called once, before the first of them.
    void begin(const std::vector<Column>& columns);
    /// A record has a cell for each column.
    void record(const QStringList& cells, Tone tone = Tone::Plain);
    /// A record that has a form of its own outside of JSON: one line, without its end.
    void line(const QStringList& cells, const QString& text, Tone tone = Tone::Plain);
    /// Something that is no table, such as a difference or the data of a value: as it is, and in
    /// JSON as a record with this column alone.
    void whole(const QByteArray& bytes, const Column& column);
    /// Bytes that are written as they are, for forms other than JSON.
    StandardOutput& device() { return m_device; }
    /// A remark beside the records, on the standard error; not when quiet.
    void note(const QString& text) const;

    /// Writes what is still in the buffers; of a document at least its beginning. To be called
    /// before something is changed, so that an output that cannot be written is noticed while
    /// nothing is.
    void flush();
    /// Ends the document and writes everything.
    void finish(ExitStatus status, const QString& error = {});

    /// The text as a cell of a line that is separated by tabs.
    static QString escaped(const QString& text);

private:
    struct Row
    {
        QStringList cells;
        Tone tone;
    };

    void jsonRecord(const QStringList& cells);
    void flushTable();
    QString tableLine(const Row& row) const;
    QString coloured(const QString& line, Tone tone) const;

    StandardOutput m_device;
    Form m_form;
    QString m_command;
    bool m_hasColours;
    bool m_hasBegun = false; ///< the document
    int m_records = 0;
    std::vector<Column> m_columns;
    std::vector<Row> m_rows; ///< not written yet
    std::vector<int> m_widths;
};
