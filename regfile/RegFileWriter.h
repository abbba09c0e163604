#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/// Writes a registry file in the Windows text format, version 5.00: lines end with CR LF, long
/// lists of bytes are broken as the format wants it.
class RegFileWriter
{
public:
    enum class Encoding
    {
        Utf16, ///< little-endian with a byte order mark: what Windows itself writes
        Utf8   ///< without a mark
    };

    /// Writes the header. `device` is open for writing and outlives the writer.
    RegFileWriter(QIODevice& device, Encoding encoding);

    /// Begins a key; `path` begins with the name of its root, levels separated by backslashes.
    void key(const QString& path);
    void text(const QString& name, const QString& value);
    void dword(const QString& name, quint32 value);
    /// Any other type by its number, as a list of bytes: numbers in little-endian order.
    void bytes(const QString& name, unsigned int type, const QByteArray& data);
    /// Readers skip it. Line ends in it become blanks.
    void comment(const QString& text);

    /// False once something could not be written.
    bool isGood() const { return m_good; }

private:
    void line(const QString& text);
    void write(const QByteArray& encoded);

    QIODevice& m_device;
    Encoding m_encoding;
    bool m_good;
};
