#pragma once

#include "regfile/RegFileDecoder.h"
#include "regfile/RegFileEntry.h"

#include <QCoreApplication>

#include <memory>

class QIODevice;

/// Reads a registry file in the Windows text format, version 5.00, in small steps, so that a large
/// file can be read in slices: first its bytes piece by piece, then line by line.
///
/// UTF-16 with a byte order mark, and UTF-8 with or without one, are understood; line ends may be
/// LF or CR LF.
class RegFileReader
{
    Q_DECLARE_TR_FUNCTIONS(RegFileReader)

public:
    enum class Step
    {
        Statement, ///< a whole one, of several lines where it goes on
        Nothing,   ///< a piece of the file, a blank line or a comment
        End
    };

    /// `file` is open for reading.
    explicit RegFileReader(std::unique_ptr<QIODevice> file);
    /// A file that is in memory already, as those of the tests are.
    explicit RegFileReader(const QByteArray& file);
    ~RegFileReader();

    /// Why the whole file is refused, translated; empty when it can be read, as far as it is known
    /// yet.
    QString error() const { return m_error; }

    /// Takes a small step, which fills `entry` where it reads a statement. Comes to the end also
    /// when there is an error. A line that makes no sense is a Malformed entry, after which reading
    /// goes on with the next line.
    Step next(RegFileEntry& entry);

private:
    void readPiece();
    void takeText();
    void readHeader(const QString& line);
    Step readLine(RegFileEntry& entry);
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

    std::unique_ptr<QIODevice> m_file; ///< null when it has been read
    RegFileDecoder m_decoder;
    QString m_text;
    bool m_hasHeader = false;
    int m_position = 0;
    int m_line = 0;          ///< the number of the line read last, from 1
    QLatin1String m_lineEnd; ///< of the line read last
    QString m_key;           ///< of the values that follow; empty when they belong to none
    QString m_error;
};
