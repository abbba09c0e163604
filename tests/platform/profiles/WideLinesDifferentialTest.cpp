#include "platform/profiles/WideLines.h"

#include <QFile>
#include <QMap>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

// Under no carriage return that stands alone, and no value that begins with "@".
const std::vector<QByteArray> pieces = {
    "[S]",        "[T]",       "[S\\T]",      "[General]", "[GENERAL]",  "[%General]",
    "[%general]", "[]",        "[",           "]",         "[S] ; tail", "[ S ]",
    "[%41]",      "[%U0041",   "S",           "k",         "j",          "K",
    "value",      "k=v",       "=",           "=",         " = ",        "==",
    "\\",         "/",         "\\\\",        "\\n",       "\\x41",      "\\\"",
    "\\,",        "\\;",       "%41",         "%U0041",    "%U8282",     "%4",
    "%zz",        "%+1",       "% 1",         "%-1",       "%",          "%U",
    "\"",         "\"",        "\"a, b; c\"", ",",         ", ",         ";",
    " ; ",        "#",         " ",           "\t",        "\v",         "\xE4\xB8\xAD",
    "\xC3\xA4",   "\xFF",      "\n",          "\n",        "\n",         "\n",
    "\n",         "\r\n",      "\r\n",        "\\\n",      "\\\r\n",     "\n\n",
    "\n[S]\n",    "\n[T]\nk=", "\nk=v\n",     "\nk=",      "\n=v",       "\nj = ",
    "\nT\\k=",    "\nS\\k=",   "\n; c\n",     "\n# c\n"};
const std::vector<QByteArray> beginnings = {"", "", "", "[S]\n", "k=v\n", "\xEF\xBB\xBF"};

// What QSettings finds in a file: each name with its value.
using Contents = QMap<QString, QVariant>;

// A name as QSettings looks for it.
QString lookedFor(const QString& name)
{
    return name.split(u'/', Qt::SkipEmptyParts).join(u'/');
}

bool isEntry(LineState state)
{
    return state == LineState::Entry || state == LineState::NotFound;
}

class WideLinesDifferential : public testing::Test
{
protected:
    QByteArray any(const std::vector<QByteArray>& texts)
    {
        return texts[m_random() % texts.size()];
    }

    QByteArray soup()
    {
        QByteArray text = any(beginnings);
        for (std::size_t i = m_random() % 30; i > 0; --i)
            text += any(pieces);
        return text;
    }

    // Under a name of its own: QSettings remembers the files that it has read.
    Contents contentsOf(const QByteArray& text)
    {
        const QString path = m_folder.filePath(QString::number(++m_files));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        QSettings settings(path, QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        Contents contents;
        const QStringList names = settings.allKeys();
        for (const QString& name : names)
            contents[name] = settings.value(name.isEmpty() ? QStringLiteral("/") : name);
        file.remove();
        return contents;
    }

    void expectTheSame(const QByteArray& text)
    {
        SCOPED_TRACE(text.toPercentEncoding(" =[];,\"\\/").toStdString());
        const std::vector<LineReading> readings = WideLines(text).readings();
        const QList<QByteArray> lines = text.split('\n');
        const Contents contents = contentsOf(text);
        expectNames(readings, contents);
        for (std::size_t i = 0; i < readings.size(); ++i) {
            if (readings[i].state == LineState::Entry)
                expectValue(readings, i, lines, contents);
        }
        expectNothingLost(readings, lines, contents);
    }

    // Every name that is there, and whether it can be asked for.
    static void expectNames(const std::vector<LineReading>& readings, const Contents& contents)
    {
        QStringList found;
        QStringList lost;
        for (const LineReading& reading : readings) {
            if (isEntry(reading.state))
                (reading.state == LineState::Entry ? found : lost)
                    << lookedFor(reading.section + u'/' + reading.key);
        }
        QStringList askable;
        QStringList hidden;
        for (auto entry = contents.begin(); entry != contents.end(); ++entry) {
            const QString name = lookedFor(entry.key());
            (name == entry.key() ? askable : hidden) << name;
        }
        for (QStringList* names : {&found, &lost, &askable, &hidden})
            names->sort();
        EXPECT_EQ(found, askable);
        EXPECT_EQ(lost, hidden);
    }

    static void expectValue(const std::vector<LineReading>& readings, std::size_t line,
                            const QList<QByteArray>& lines, const Contents& contents)
    {
        const LineReading& reading = readings[line];
        const QVariant value = contents[lookedFor(reading.section + u'/' + reading.key)];
        EXPECT_EQ(reading.isList, value.type() != QVariant::String);
        const bool goesOn =
            line + 1 < readings.size() && readings[line + 1].state == LineState::Continuation;
        const QByteArray bytes = lines[static_cast<int>(line)];
        if (reading.isList || reading.isEscaped || goesOn || bytes.contains('"'))
            return;
        QByteArray plain = bytes.mid(equalsIn(bytes) + 1);
        EXPECT_EQ(reading.isCut, plain.contains(';'));
        plain = plain.split(';').first();
        EXPECT_EQ(value.toString(), QString::fromUtf8(withoutBlanks(plain)));
    }

    // The first "=" without a backslash before it.
    static int equalsIn(const QByteArray& line)
    {
        int at = 0;
        while (line.at(at) != '=')
            at += line.at(at) == '\\' ? 2 : 1;
        return at;
    }

    static QByteArray withoutBlanks(QByteArray text)
    {
        while (!text.isEmpty() && QByteArray(" \t\r\n").contains(text.back()))
            text.chop(1);
        while (!text.isEmpty() && QByteArray(" \t").contains(text.front()))
            text.remove(0, 1);
        return text;
    }

    static bool isLast(std::size_t line, const QList<QByteArray>& lines)
    {
        return static_cast<int>(line) + 1 == lines.size();
    }

    // Without the lines that are said to be lost, the file is the same to QSettings.
    void expectNothingLost(const std::vector<LineReading>& readings, const QList<QByteArray>& lines,
                           const Contents& contents)
    {
        QByteArray kept;
        bool isKept = true;
        bool isShorter = false;
        for (std::size_t i = 0; i < readings.size(); ++i) {
            const LineState state = readings[i].state;
            if (state != LineState::Continuation)
                isKept = isEntry(state) || state == LineState::Header;
            isShorter = isShorter || !isKept;
            if (isKept)
                kept += lines[static_cast<int>(i)] + (isLast(i, lines) ? "" : "\n");
        }
        if (isShorter) {
            EXPECT_EQ(contentsOf(kept), contents);
        }
    }

    std::mt19937 m_random{20240229};
    QTemporaryDir m_folder;
    int m_files = 0;
};

TEST_F(WideLinesDifferential, OfTenThousandFiles)
{
    for (int i = 0; i < 10000 && !HasFailure(); ++i)
        expectTheSame(soup());
}

} // namespace
