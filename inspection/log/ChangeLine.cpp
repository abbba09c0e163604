#include "inspection/log/ChangeLine.h"

#include <algorithm>
#include <array>

namespace {

constexpr int longestText = 80;

bool isSecret(const QString& name)
{
    static constexpr std::array<const char*, 8> words = {
        "password", "passwd", "passphrase", "pass phrase", "pwd", "secret", "token", "credential"};
    return std::any_of(words.begin(), words.end(), [&name](const char* word) {
        return name.contains(QLatin1String(word), Qt::CaseInsensitive);
    });
}

QString escaped(const QString& text)
{
    QString result;
    for (const QChar character : text) {
        if (character == QLatin1Char('"') || character == QLatin1Char('\\'))
            result += QLatin1Char('\\') + character;
        else if (character.isPrint())
            result += character;
        else
            result += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
    return result;
}

QString quoted(const QString& text)
{
    if (text.size() <= longestText)
        return QStringLiteral("\"%1\"").arg(escaped(text));
    return QStringLiteral("\"%1...\" (%2 characters)")
        .arg(escaped(text.left(longestText)))
        .arg(text.size());
}

QString value(const QString& text, bool secret)
{
    if (text.isNull())
        return QStringLiteral("absent");
    return secret ? QStringLiteral("(not logged)") : quoted(text);
}

} // namespace

QString changeLine(const QString& place, const QString& name, const QString& before,
                   const QString& after)
{
    const bool secret = isSecret(name);
    const QString where = name.isNull() ? place : place + QStringLiteral(": ") + quoted(name);
    return QStringLiteral("%1: %2 -> %3").arg(where, value(before, secret), value(after, secret));
}
