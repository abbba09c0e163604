#pragma once

#include "inspection/crypto/Md5Stream.h"
#include "inspection/crypto/Sha256Stream.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>

#include <memory>

/// What the crypto classes give for one text or file.
struct Digests
{
    QString sha256Hex;
    /// Encrypt::Sha256Encode.
    QString fingerprint;
    QString md5;
    /// The MD5 digest as RFC 1321 has it.
    QString rfcMd5;
    /// Encrypt::KdEncode with the second text.
    QString kd;
    qint64 length = 0;
    /// Where the first zero byte stands, -1 without one: the fingerprints end there.
    qint64 zeroByte = -1;
    bool extendedByte = false;
    bool longPadding = false;
};

/// Digests a text or a file of any size piece by piece.
class DigestJob
{
    Q_DECLARE_TR_FUNCTIONS(DigestJob)

public:
    explicit DigestJob(QByteArray text, const QByteArray& second);
    explicit DigestJob(std::unique_ptr<QFile> openFile, const QByteArray& second);

    /// One piece; false when everything is done or the file could not be read further.
    bool step();
    /// How far it has come, in words.
    QString progress() const;

    /// Empty, or why the file could not be read.
    QString error() const { return m_error; }
    /// Complete once `step` has returned false without an error.
    const Digests& digests() const { return m_digests; }

private:
    enum class Stage
    {
        Reading,
        Padding,
        Done
    };

    QByteArray nextPiece();
    void take(const QByteArray& piece);
    void takeZero(const QByteArray& piece);
    bool read();
    void finish();
    QString kdEncode() const;

    QByteArray m_text;
    std::unique_ptr<QFile> m_file;
    QByteArray m_second;
    qint64 m_total;
    Stage m_stage = Stage::Reading;
    Sha256Stream m_sha256;
    Md5Stream m_md5;
    QCryptographicHash m_rfcMd5;
    Digests m_digests;
    QString m_error;
};
