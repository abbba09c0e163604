#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/ProfileDocument.h"

#include <memory>

/// Looks for a text in the lines of a document, without telling capital letters from small ones:
/// from one line to the end, and from the first line on.
class ProfileFindJob : public Job
{
public:
    /// Lines that are not UTF-8 are decoded by `codec`.
    ProfileFindJob(std::shared_ptr<const ProfileDocument> document, const QString& text,
                   int firstLine, const QTextCodec* codec);

    bool step() override;

    /// The line that holds the text, from 0 on, or -1.
    int found() const { return m_found; }

private:
    std::shared_ptr<const ProfileDocument> m_document;
    QString m_text;
    int m_first;
    const QTextCodec* m_codec;
    int m_searched = 0; ///< so many lines have been looked at
    int m_found = -1;
};
