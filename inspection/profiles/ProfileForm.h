#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

#include <vector>

class ByteLines;
class QTextCodec;

/// The form in which a profile lies on disk: its encoding, its byte order mark and its line ends.
class ProfileForm
{
    Q_DECLARE_TR_FUNCTIONS(ProfileForm)

public:
    ProfileForm() = default;
    /// Told by how the file begins.
    explicit ProfileForm(const QByteArray& beginning);
    /// Of a whole file.
    static ProfileForm of(const ByteLines& lines);

    /// True where the bytes are taken for UTF-8; otherwise a byte order mark tells what they are.
    bool isUtf8() const;
    /// Decodes the whole file.
    const QTextCodec* codec() const { return m_codec; }

    /// Counts the next line, with its end, in UTF-8 or in what is not UTF-8 although it should be.
    void addLine(const QByteArray& line);

    /// True where a line, from 0 on, is UTF-8; where it is not, the services lose what it says.
    bool isUtf8(int line) const;
    /// The lines, from 0 on, that are not UTF-8.
    const std::vector<int>& otherLines() const { return m_otherLines; }

    /// In words: "Encoding: UTF-8. Byte order mark: no. Line ends: LF 12."
    QString text() const;

    /// In sentences, what the other form has changed, numbers of lines apart; empty where either
    /// file has no lines.
    QStringList changesTo(const ProfileForm& other) const;

private:
    bool hasKindsOfEndsOf(const ProfileForm& other) const;
    bool isOpen() const;
    QString encodingText() const;
    QString lineEndsText() const;

    const QTextCodec* m_codec = nullptr;
    bool m_hasMark = false;
    int m_lines = 0;
    int m_lineFeeds = 0;
    int m_returnsWithFeeds = 0;
    int m_returns = 0;
    std::vector<int> m_otherLines;
};
