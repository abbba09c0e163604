#include "inspection/crypto/DecodedText.h"

DecodedText decodedText(const std::string& bytes)
{
    const QString text = QString::fromStdString(bytes);
    if (text.toStdString() == bytes && !text.contains(QChar::Null))
        return {text, true};
    return {QString::fromLatin1(QByteArray::fromStdString(bytes).toHex(' ')), false};
}
