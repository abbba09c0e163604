#include "regfile/RegFileReader.h"

#include "platform/WindowsTypes.h"
#include "regfile/RegFileText.h"

#include <QBuffer>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int pieceSize = 256 * 1024; // some milliseconds at most, on a slow machine too

std::unique_ptr<QIODevice> opened(const QByteArray& bytes)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

const QTextCodec* codecOf(const QByteArray& codePage)
{
    const QTextCodec* codec = codePage.isEmpty() ? nullptr : QTextCodec::codecForName(codePage);
    return codec ? codec : QTextCodec::codecForLocale();
}

void refuse(RegFileEntry& entry, const QString& problem)
{
    entry.action = RegFileEntry::Action::Malformed;
    entry.problem = problem;
}

bool isBlankOrComment(const QString& rest)
{
    const QString trimmed = rest.trimmed();
    return trimmed.isEmpty() || trimmed.startsWith(QLatin1Char(';'));
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

// What stands behind may belong to a text that goes on in the next line.
QString withoutIndent(const QString& line)
{
    const auto blank = [](QChar c) { return c.isSpace(); };
    const auto first = std::find_if_not(line.cbegin(), line.cend(), blank);
    return line.mid(static_cast<int>(std::distance(line.cbegin(), first)));
}

// Names of keys may contain "]": the first one closes that has nothing behind it but a comment. -1
// where there is none.
int closingBracket(const QString& line)
{
    int close = line.indexOf(QLatin1Char(']'));
    for (; close >= 0; close = line.indexOf(QLatin1Char(']'), close + 1)) {
        int next = close + 1;
        while (next < line.size() && line.at(next).isSpace())
            ++next;
        if (next == line.size() || line.at(next) == QLatin1Char(';'))
            break;
    }
    return close;
}

QString withoutComment(const QString& rest)
{
    return rest.left(rest.indexOf(QLatin1Char(';'))).trimmed();
}

} // namespace

RegFileReader::RegFileReader(std::unique_ptr<QIODevice> file, const QByteArray& codePage)
    : m_codePage(codecOf(codePage)), m_file(std::move(file)), m_decoder(m_codePage)
{
    m_decoder.reserve(m_file->size());
}

RegFileReader::RegFileReader(const QByteArray& file, const QByteArray& codePage)
    : RegFileReader(opened(file), codePage)
{
}

RegFileReader::~RegFileReader() = default;

RegFileReader::Step RegFileReader::next(RegFileEntry& entry)
{
    if (!m_error.isEmpty())
        return Step::End;
    if (m_file)
        readPiece();
    else if (!atEnd())
        return readLine(entry);
    else if (!m_hasHeader)
        readHeader({});
    else
        return Step::End;
    return m_error.isEmpty() ? Step::Nothing : Step::End;
}

void RegFileReader::readPiece()
{
    QByteArray piece(pieceSize, Qt::Uninitialized);
    const qint64 size = m_file->read(piece.data(), piece.size());
    if (size < 0)
        m_error = m_file->errorString();
    piece.truncate(static_cast<int>(std::max(size, qint64{0})));
    m_decoder.add(piece);
    if (piece.isEmpty()) {
        m_file = nullptr;
        m_decoder.end();
        takeText();
    }
}

void RegFileReader::takeText()
{
    if (m_error.isEmpty() && !m_decoder.isValid() && !isVersion4())
        m_error = tr("The file is neither UTF-16 with a byte order mark nor UTF-8.");
    m_text = m_decoder.takeText();
}

void RegFileReader::readHeader(const QString& line)
{
    m_hasHeader = true;
    if (line != regFileHeader && (line != regFileHeader4 || !isVersion4()))
        m_error = tr("The file does not begin with \"%1\".").arg(regFileHeader);
}

QString RegFileReader::nextLine()
{
    int end = m_text.indexOf(QLatin1Char('\n'), m_position);
    if (end < 0)
        end = m_text.size();
    QString line = m_text.mid(m_position, end - m_position);
    m_lineEnd = QLatin1String("\n");
    if (line.endsWith(QLatin1Char('\r'))) {
        line.chop(1);
        m_lineEnd = QLatin1String("\r\n");
    }
    m_position = end + 1;
    ++m_line;
    return line;
}

RegFileReader::Step RegFileReader::readLine(RegFileEntry& entry)
{
    const QString line = withoutIndent(nextLine());
    if (!m_hasHeader) {
        if (!line.isEmpty())
            readHeader(line.trimmed());
        return m_error.isEmpty() ? Step::Nothing : Step::End;
    }
    if (isBlankOrComment(line))
        return Step::Nothing;
    entry = {};
    entry.line = m_line;
    entry.key = m_key;
    if (line.startsWith(QLatin1Char('[')))
        readKey(line.trimmed(), entry);
    else
        readValueOfLines(line, entry);
    return Step::Statement;
}

// The lines behind a malformed one may be statements of their own.
void RegFileReader::readValueOfLines(const QString& line, RegFileEntry& entry)
{
    const int position = m_position;
    const int number = m_line;
    readValue(line, entry);
    if (entry.action != RegFileEntry::Action::Malformed)
        return;
    m_position = position;
    m_line = number;
}

void RegFileReader::readKey(const QString& line, RegFileEntry& entry)
{
    m_key.clear();
    const int close = closingBracket(line);
    const bool deletes = line.startsWith(QLatin1String("[-"));
    entry.key = close < 0 ? line : line.mid(deletes ? 2 : 1, close - (deletes ? 2 : 1));
    if (close < 0 || entry.key.isEmpty())
        return refuse(entry, tr("The line of a key must have the form [key]."));
    entry.action = deletes ? RegFileEntry::Action::DeleteKey : RegFileEntry::Action::CreateKey;
    if (!deletes)
        m_key = entry.key;
}

void RegFileReader::readValue(const QString& line, RegFileEntry& entry)
{
    int position = 1;
    const bool named = line.startsWith(QLatin1Char('"'));
    if (!(named ? unquoteRegText(line, position, entry.name) : line.startsWith(QLatin1Char('@'))))
        return refuse(entry, tr("The line is neither a key nor a value."));
    while (position < line.size() && line.at(position).isSpace())
        ++position;
    if (position >= line.size() || line.at(position) != QLatin1Char('='))
        return refuse(entry, tr("The value has no \"=\" after its name."));
    if (m_key.isEmpty())
        return refuse(entry, tr("The value stands under no key."));
    readData(withoutIndent(line.mid(position + 1)), entry);
}

void RegFileReader::readData(const QString& rest, RegFileEntry& entry)
{
    entry.action = RegFileEntry::Action::SetValue;
    if (rest.startsWith(QLatin1Char('"')))
        readText(rest, entry);
    else if (rest.startsWith(QLatin1String("dword:")))
        readDword(withoutComment(rest.mid(6)), entry);
    else if (rest.startsWith(QLatin1String("hex")))
        readHex(joined(rest), entry);
    else if (withoutComment(rest) == QLatin1String("-"))
        entry.action = RegFileEntry::Action::DeleteValue;
    else
        refuse(entry, tr("The data has no known form."));
}

// A text may contain line ends: it goes on up to its closing quote, with everything in between as
// it stands in the file.
void RegFileReader::readText(QString rest, RegFileEntry& entry)
{
    int position = 1;
    while (!unquoteRegText(rest, position, entry.text)) {
        if (atEnd())
            return refuse(entry, tr("The text has no closing quote."));
        entry.text += m_lineEnd;
        rest = nextLine();
        position = 0;
    }
    entry.type = REG_SZ;
    if (!isBlankOrComment(rest.mid(position)))
        refuse(entry, tr("Something follows the closing quote."));
}

void RegFileReader::readDword(const QString& digits, RegFileEntry& entry)
{
    bool valid = false;
    const unsigned int value = digits.toUInt(&valid, 16);
    if (!valid || digits.size() > 8 || !digits.at(0).isLetterOrNumber())
        return refuse(entry, tr("\"dword:\" needs one to eight hexadecimal digits."));
    entry.type = REG_DWORD;
    entry.data.resize(sizeof value);
    qToLittleEndian(value, entry.data.data());
}

bool RegFileReader::startsStatement() const
{
    int position = m_position;
    while (position < m_text.size() && isBlank(m_text.at(position)))
        ++position;
    return position < m_text.size() && QStringLiteral("[\"@").contains(m_text.at(position));
}

// A list of bytes never reaches into the next statement, so that no line is read more than twice.
QString RegFileReader::joined(QString rest)
{
    rest = withoutComment(rest);
    while (rest.endsWith(QLatin1Char('\\')) && !atEnd() && !startsStatement()) {
        rest.chop(1);
        rest += withoutComment(nextLine());
    }
    return rest;
}

void RegFileReader::readHex(const QString& rest, RegFileEntry& entry)
{
    const int colon = rest.indexOf(QLatin1Char(':'));
    const QString kind = rest.mid(3, colon - 3);
    bool valid = colon > 0;
    entry.type = REG_BINARY;
    if (!kind.isEmpty()) {
        valid = valid && kind.startsWith(QLatin1Char('(')) && kind.endsWith(QLatin1Char(')'));
        bool number = false;
        entry.type = kind.midRef(1, kind.size() - 2).toUInt(&number, 16);
        valid = valid && number;
    }
    if (!valid || !parseHexBytes(rest.mid(colon + 1), entry.data))
        return refuse(entry, tr("\"hex:\" needs bytes of two digits, separated by commas."));
    if (entry.type == REG_SZ)
        entry.text = textOf(std::exchange(entry.data, {}));
}

// The bytes of a text are in the code page too where the file is.
QString RegFileReader::textOf(const QByteArray& bytes) const
{
    if (!isVersion4())
        return textOfUtf16(bytes);
    const int end = bytes.indexOf('\0');
    return m_codePage->toUnicode(end < 0 ? bytes : bytes.left(end));
}
