#include "inspection/crypto/Base64Note.h"

#include "inspection/crypto/Sentences.h"

QString Base64Note::of(const std::string& text)
{
    return of(base64::extentOf(text));
}

QString Base64Note::of(const base64::Extent& extent)
{
    QStringList notes;
    if (extent.hasLone)
        notes += tr("The last Base64 character stands alone and yields nothing.");
    if (extent.hasIgnored && extent.length == 1)
        notes += tr("Only the first character is URL-safe Base64; the library ignores what "
                    "follows.");
    else if (extent.hasIgnored)
        notes += tr("Only the first %L1 characters are URL-safe Base64; the library ignores what "
                    "follows.")
                     .arg(extent.length);
    return joinSentences(notes);
}

QString Base64Note::nothingDecoded()
{
    return tr("This is no URL-safe Base64: the library decodes nothing of it.");
}
