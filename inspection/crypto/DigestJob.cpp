#include "inspection/crypto/DigestJob.h"

#include "crypto/Encrypt.h"
#include "crypto/MD5.h"

#include <QLocale>

namespace {

constexpr qint64 pieceSize = qint64{128} * 1024;
constexpr std::size_t paddingBlocks = 2048; // as much work as a piece

} // namespace

DigestJob::DigestJob(QByteArray text, const QByteArray& second)
    : m_text(std::move(text)),
      m_second(second),
      m_total(m_text.size()),
      m_rfcMd5(QCryptographicHash::Md5)
{
}

DigestJob::DigestJob(std::unique_ptr<QFile> openFile, const QByteArray& second)
    : m_file(std::move(openFile)),
      m_second(second),
      m_total(m_file->size()),
      m_rfcMd5(QCryptographicHash::Md5)
{
}

bool DigestJob::step()
{
    switch (m_stage) {
    case Stage::Reading: return read();
    case Stage::Padding:
        if (m_md5.pad(paddingBlocks))
            return true;
        finish();
        return false;
    case Stage::Done: return false;
    }
    return false;
}

QByteArray DigestJob::nextPiece()
{
    if (m_file)
        return m_file->read(pieceSize);
    return m_text.mid(static_cast<int>(m_sha256.length()), static_cast<int>(pieceSize));
}

bool DigestJob::read()
{
    const QByteArray piece = nextPiece();
    if (m_file && m_file->error() != QFile::NoError) {
        m_error = m_file->errorString();
        m_stage = Stage::Done;
        return false;
    }
    if (!piece.isEmpty()) {
        take(piece);
        return true;
    }
    m_md5.end();
    m_stage = Stage::Padding;
    return true;
}

void DigestJob::take(const QByteArray& piece)
{
    if (m_digests.zeroByte < 0)
        takeZero(piece);
    const auto size = static_cast<std::size_t>(piece.size());
    m_sha256.add(piece.constData(), size);
    m_md5.add(piece.constData(), size);
    m_rfcMd5.addData(piece);
}

// The fingerprint covers what stands before the first zero byte.
void DigestJob::takeZero(const QByteArray& piece)
{
    const int zero = piece.indexOf('\0');
    if (zero < 0)
        return;
    m_digests.zeroByte = static_cast<qint64>(m_sha256.length()) + zero;
    Sha256Stream before = m_sha256;
    before.add(piece.constData(), static_cast<std::size_t>(zero));
    m_digests.fingerprint = QString::fromStdString(before.fingerprint());
}

void DigestJob::finish()
{
    m_stage = Stage::Done;
    m_digests.length = static_cast<qint64>(m_sha256.length());
    m_digests.sha256Hex = QString::fromStdString(m_sha256.hexDigest());
    if (m_digests.zeroByte < 0 && m_digests.length > 0)
        m_digests.fingerprint = QString::fromStdString(m_sha256.fingerprint());
    m_digests.md5 = QString::fromStdString(m_md5.hexDigest());
    m_digests.rfcMd5 = QString::fromLatin1(m_rfcMd5.result().toHex());
    m_digests.extendedByte = m_md5.hasExtendedByte();
    m_digests.longPadding = m_md5.hasLongPadding();
    m_digests.kd = kdEncode();
}

// As Encrypt::KdEncode, which wants the whole text at once: the two fingerprints character by
// character in turn, the shorter one first, then the rest of the longer one.
QString DigestJob::kdEncode() const
{
    QString shorter = m_digests.fingerprint;
    QString longer = QString::fromStdString(Encrypt::Sha256Encode(m_second.toStdString()));
    if (longer.size() < shorter.size())
        shorter.swap(longer);
    QString mixed;
    for (int i = 0; i < shorter.size(); ++i)
        mixed += QString(shorter.at(i)) + longer.at(i);
    mixed += longer.midRef(shorter.size());
    return QString::fromStdString(MD5().Encode(mixed.toStdString()));
}

QString DigestJob::progress() const
{
    const QLocale locale;
    if (m_stage != Stage::Reading)
        return tr("MD5 padding: %L1 blocks left").arg(m_md5.paddingLeft());
    return tr("%1 of %2")
        .arg(locale.formattedDataSize(static_cast<qint64>(m_sha256.length())),
             locale.formattedDataSize(m_total));
}
