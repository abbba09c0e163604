#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReader.h"
#include "inspection/profiles/ProfileReading.h"

#include <QCoreApplication>

#include <functional>
#include <memory>

class ParsedProfileCache;

/// Asks both families of the service for names of a document, one after the other.
class ProfileAskingJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(ProfileAskingJob)

public:
    /// Tells which name of the document is asked for next; -1 ends the job.
    using Next = std::function<int()>;
    using Receiver = std::function<void(int name, const ProfileReading& reading)>;

    ProfileAskingJob(std::shared_ptr<const ProfileDocument> document, Next next, Receiver receiver);
    ~ProfileAskingJob() override;

    /// One call of a service, which takes as long as it takes.
    bool step() override;
    /// How many names have been asked for.
    QString progress() const override;
    /// True where the next step makes the wide family read a large file.
    bool isNextStepLong() const override;

private:
    bool askWide();
    void askNarrow();

    std::shared_ptr<const ProfileDocument> m_document;
    Next m_next;
    Receiver m_receiver;
    ProfileReader m_reader;
    std::unique_ptr<ParsedProfileCache> m_cache;
    int m_name = -1; ///< the one that the wide family has been asked for, or -1
    ProfileReading m_reading;
    int m_count = 0;
};
