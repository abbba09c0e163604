#include "app/pages/MnemonicText.h"

#include <QRegularExpression>

QString withoutMnemonic(const QString& caption)
{
    static const QRegularExpression bracketed(QStringLiteral("\\s*\\(&.\\)"));
    return QString(caption).remove(bracketed).remove(QLatin1Char('&'));
}
