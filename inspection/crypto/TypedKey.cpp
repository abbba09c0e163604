#include "inspection/crypto/TypedKey.h"

#include "crypto/CipherKeys.h"

#include <QRegularExpression>

namespace {

constexpr int keySize = static_cast<int>(cipherKeySize);

bool isHexadecimal(const QString& text)
{
    static const QRegularExpression pairs(
        QRegularExpression::anchoredPattern(QStringLiteral("([0-9a-fA-F]{2})*")));
    return pairs.match(text).hasMatch();
}

} // namespace

TypedKey::TypedKey(Kind kind, const QString& typed, bool hexadecimal)
    : m_kind(kind),
      m_wellFormed(!hexadecimal || isHexadecimal(typed)),
      m_bytes(hexadecimal ? QByteArray::fromHex(typed.toUtf8()) : typed.toUtf8())
{
}

QString TypedKey::count() const
{
    if (m_bytes.size() > keySize)
        return tr("%L1 bytes: only the first %2 are used").arg(m_bytes.size()).arg(keySize);
    return tr("%1 of %2 bytes").arg(m_bytes.size()).arg(keySize);
}

QString TypedKey::problem() const
{
    const bool isKey = m_kind == Kind::Key;
    if (!m_wellFormed)
        return isKey ? tr("The key is not hexadecimal: pairs of 0-9 and a-f are needed.")
                     : tr("The IV is not hexadecimal: pairs of 0-9 and a-f are needed.");
    if (m_bytes.size() < keySize)
        return isKey ? tr("The key is too short: the cipher takes %1 bytes.").arg(keySize)
                     : tr("The IV is too short: the cipher takes %1 bytes.").arg(keySize);
    return {};
}

QString TypedKey::note() const
{
    if (m_bytes.size() <= keySize)
        return {};
    return m_kind == Kind::Key ? tr("Only the first %1 bytes of the key are used.").arg(keySize)
                               : tr("Only the first %1 bytes of the IV are used.").arg(keySize);
}
