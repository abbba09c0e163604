#include "inspection/crypto/DecodedText.h"

DecodedText DecodedText::of(const std::string& bytes)
{
    const QString text = QString::fromStdString(bytes);
    if (text.toStdString() == bytes && !text.contains(QChar::Null))
        return {text, true};
    return {QString::fromLatin1(QByteArray::fromStdString(bytes).toHex(' ')), false};
}

QString DecodedText::note() const
{
    return isText ? QString() : tr("They are no text; shown in hexadecimal.");
}
