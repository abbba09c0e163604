#pragma once

#include "regfile/RegFileDecoder.h"
#include "regfile/RegFileEntry.h"

#include <QCoreApplication>

#include <memory>

class QIODevice;

/// Reads a registry file in the Windows text format, version 5.00 or 4, in small steps, so that a
/// large file can be read in slices: first its bytes piece by piece, then line by line.
///
/// UTF-16 with a byte order mark, and UTF-8 with or without one, are understood, and for version 4
/// a code page; line ends may be LF or CR LF.
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

    /// `file` is open for reading. `codePage` names the code page of a file of version 4 as
    /// QTextCodec does; empty or unknown, it is that of the system.
    explicit RegFileReader(std::unique_ptr<QIODevice> file, const QByteArray& codePage = {});
    /// A file that is in memory already, as those of the tests are.
    explicit RegFileReader(const QByteArray& file, const QByteArray& codePage = {});
    ~RegFileReader();

    /// Why the whole file is refused, translated; empty when it can be read, as far as it is known
    /// yet.
    QString error() const { return m_error; }

    /// True for a file of version 4, whose text depends on the code page; known when the first
    /// statement has been read.
    bool isVersion4() const { return m_decoder.isVersion4(); }
    /// The name of the code page with which such a file is read.
    QByteArray codePage() const { return m_codePage->name(); }
    /// False where the bytes of such a file are none of that code page: it is read all the same,
    /// with signs in their place.
    bool isOfCodePage() const { return m_decoder.isValid(); }

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
    QString textOf(const QByteArray& bytes) const;

    const QTextCodec* m_codePage;
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
