#pragma once

#include "app/regfile/RegFileEntry.h"

#include <QCoreApplication>

/// Reads a registry file in the Windows text format, version 5.00, one statement at a time, so that
/// a large file can be read in slices.
///
/// UTF-16 with a byte order mark, and UTF-8 with or without one, are understood; line ends may be
/// LF or CR LF.
class RegFileReader
{
    Q_DECLARE_TR_FUNCTIONS(RegFileReader)

public:
    explicit RegFileReader(const QByteArray& file);

    /// Why the whole file is refused, translated; empty when it can be read.
    QString error() const { return m_error; }

    /// Reads the next statement; false at the end, and always when there is an error. A line that
    /// makes no sense is a Malformed entry, after which reading goes on with the next line.
    bool readNext(RegFileEntry& entry);

    /// The number of the line read last, from 1.
    int line() const { return m_line; }

private:
    void readHeader();
    QString nextLine();
    bool atEnd() const { return m_position >= m_text.size(); }
    bool startsStatement() const;
    void readKey(const QString& line, RegFileEntry& entry);
    void readValueOfLines(const QString& line, RegFileEntry& entry);
    void readValue(const QString& line, RegFileEntry& entry);
    void readData(const QString& rest, RegFileEntry& entry);
    void readText(QString rest, RegFileEntry& entry);
    void readDword(const QString& digits, RegFileEntry& entry);
    void readHex(const QString& rest, RegFileEntry& entry);
    QString joined(QString rest);

    QString m_text;
    int m_position = 0;
    int m_line = 0;
    QLatin1String m_lineEnd; ///< of the line read last
    QString m_key;           ///< of the values that follow; empty when they belong to none
    QString m_error;
};
