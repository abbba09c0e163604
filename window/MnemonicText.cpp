#include "window/MnemonicText.h"

#include <QRegularExpression>

QString withoutMnemonic(const QString& caption)
{
    static const QRegularExpression bracketed(QStringLiteral("\\s*\\(&.\\)"));
    static const QRegularExpression colon(QStringLiteral("\\s*[:\\x{ff1a}]$"));
    return QString(caption).remove(bracketed).remove(QLatin1Char('&')).remove(colon);
}
