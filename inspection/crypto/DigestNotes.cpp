#include "inspection/crypto/DigestNotes.h"

#include "inspection/crypto/DigestJob.h"

namespace {

QStringList departures(const Digests& digests)
{
    QStringList reasons;
    if (digests.signExtended)
        reasons += DigestNotes::tr("it holds bytes of 0x80 or above");
    if (digests.longPadding)
        reasons += DigestNotes::tr("its length modulo 64 is 57 to 63");
    if (digests.cutLength)
        reasons += DigestNotes::tr("it is 512 MiB long or longer");
    return reasons;
}

} // namespace

// Whether the digests differ is found by comparing them; the reasons are those that apply.
QString DigestNotes::of(const Digests& digests)
{
    QStringList lines;
    if (digests.md5 != digests.rfcMd5)
        lines += tr("The library's MD5 departs from RFC 1321 here, which gives %1, because of the "
                    "text: %2.")
                     .arg(digests.rfcMd5, departures(digests).join(tr(", ", "between reasons")));
    if (digests.zeroByte == 1)
        lines += tr("Sha256Encode and KdEncode read only the one byte before the first zero byte.");
    else if (digests.zeroByte >= 0)
        lines += tr("Sha256Encode and KdEncode read only the %L1 bytes before the first zero byte.")
                     .arg(digests.zeroByte);
    if (digests.length == 0)
        lines += tr("SHA-256 and the fingerprint of an empty text are empty.");
    return lines.join(QLatin1Char('\n'));
}
