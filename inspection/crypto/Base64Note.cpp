#include "inspection/crypto/Base64Note.h"

#include "inspection/crypto/DecryptionCheck.h"

#include <QStringList>

QString Base64Note::of(const std::string& text)
{
    QStringList notes;
    if (hasLoneBase64(text))
        notes += tr("The last Base64 character stands alone and yields nothing.");
    if (hasIgnoredBase64(text))
        notes += tr("Only the first %L1 characters are URL-safe Base64; the library ignores what "
                    "follows.")
                     .arg(base64Length(text));
    return notes.join(QLatin1Char(' '));
}
