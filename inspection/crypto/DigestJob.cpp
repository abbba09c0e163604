#include "inspection/crypto/DigestJob.h"

#include "crypto/Encrypt.h"

#include <QBuffer>
#include <QFileInfo>
#include <QLocale>

namespace {

constexpr qint64 pieceSize = qint64{128} * 1024;
constexpr std::uint64_t paddingBlocks = 2048; // as much work as a piece

std::unique_ptr<QIODevice> openText(const QByteArray& text)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(text);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

} // namespace

DigestJob::DigestJob(const QByteArray& text, QByteArray second)
    : DigestJob(openText(text), std::move(second))
{
}

DigestJob::DigestJob(std::unique_ptr<QIODevice> source, QByteArray second)
    : m_source(std::move(source)), m_second(std::move(second)), m_total(m_source->size())
{
}

// Only regular files: others may block, or never end.
std::unique_ptr<DigestJob> DigestJob::ofFile(const QString& path, QByteArray second,
                                             QString* problem)
{
    auto file = std::make_unique<QFile>(path);
    problem->clear();
    if (path.isEmpty())
        *problem = tr("Enter the path of a file first.");
    else if (!file->exists())
        *problem = tr("There is no file %1.").arg(path);
    else if (!QFileInfo(path).isFile())
        *problem = tr("%1 is not a regular file.").arg(path);
    else if (!file->open(QFile::ReadOnly))
        *problem = tr("%1 cannot be read: %2").arg(path, file->errorString());
    if (!problem->isEmpty())
        return nullptr;
    return std::make_unique<DigestJob>(std::move(file), std::move(second));
}

bool DigestJob::step()
{
    if (m_stage == Stage::Reading)
        m_stage = read();
    else if (m_stage == Stage::Padding)
        m_stage = pad();
    return m_stage != Stage::Done;
}

DigestJob::Stage DigestJob::read()
{
    QByteArray piece(static_cast<int>(pieceSize), Qt::Uninitialized);
    const qint64 size = m_source->read(piece.data(), pieceSize);
    if (size < 0) {
        m_error = m_source->errorString();
        return Stage::Done;
    }
    if (size == 0) {
        m_md5.end();
        return Stage::Padding;
    }
    m_fingerprint.add(piece.constData(), static_cast<std::size_t>(size));
    m_md5.add(piece.constData(), static_cast<std::size_t>(size));
    m_rfcMd5.addData(piece.constData(), static_cast<int>(size));
    return Stage::Reading;
}

DigestJob::Stage DigestJob::pad()
{
    if (m_md5.pad(paddingBlocks))
        return Stage::Padding;
    finish();
    return Stage::Done;
}

void DigestJob::finish()
{
    const std::string fingerprint = m_fingerprint.fingerprint();
    const std::string second = Encrypt::Sha256Encode(m_second.toStdString());
    m_digests.length = static_cast<qint64>(m_md5.length());
    m_digests.sha256Hex = QString::fromStdString(m_fingerprint.whole().hexDigest());
    m_digests.fingerprint = QString::fromStdString(fingerprint);
    if (const auto zeroByte = m_fingerprint.zeroByte())
        m_digests.zeroByte = static_cast<qint64>(*zeroByte);
    m_digests.md5 = QString::fromStdString(m_md5.hexDigest());
    m_digests.rfcMd5 = QString::fromLatin1(m_rfcMd5.result().toHex());
    m_digests.signExtended = m_md5.isSignExtended();
    m_digests.longPadding = m_md5.hasLongPadding();
    m_digests.cutLength = m_md5.hasCutLength();
    m_digests.kd = QString::fromStdString(mixFingerprints(fingerprint, second));
}

QString DigestJob::progress() const
{
    if (m_stage != Stage::Reading)
        return tr("MD5 padding: %L1 blocks left").arg(m_md5.paddingLeft());
    const QLocale locale;
    return tr("%1 of %2")
        .arg(locale.formattedDataSize(static_cast<qint64>(m_md5.length())),
             locale.formattedDataSize(m_total));
}
