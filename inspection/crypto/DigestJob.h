#pragma once

#include "crypto/Fingerprint.h"
#include "crypto/md5/Md5Stream.h"
#include "inspection/Job.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QIODevice>

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
    /// What makes the MD5 digest another one than that of RFC 1321.
    bool signExtended = false;
    bool longPadding = false;
    bool cutLength = false;
};

/// Digests a text or a file of any size piece by piece.
class DigestJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(DigestJob)

public:
    /// `second` is the second text of `Encrypt::KdEncode`.
    DigestJob(const QByteArray& text, QByteArray second);
    /// Reads what is open to its end.
    DigestJob(std::unique_ptr<QIODevice> source, QByteArray second);

    /// Null when the file cannot be digested; then `problem` says why, in words.
    static std::unique_ptr<DigestJob> ofFile(const QString& path, QByteArray second,
                                             QString* problem);

    bool step() override;
    QString progress() const override;

    /// Empty, or why the file could not be read; the job is then done.
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

    Stage read();
    Stage pad();
    void finish();

    std::unique_ptr<QIODevice> m_source;
    QByteArray m_second;
    qint64 m_total;
    Stage m_stage = Stage::Reading;
    FingerprintStream m_fingerprint;
    Md5Stream m_md5;
    QCryptographicHash m_rfcMd5{QCryptographicHash::Md5};
    Digests m_digests;
    QString m_error;
};
