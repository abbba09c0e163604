#pragma once

#include "inspection/profiles/ProfileAskingJob.h"
#include "inspection/profiles/ProfileLoadingJob.h"

#include <functional>
#include <memory>
#include <optional>

/// Reads a profile, and then, unless that takes long, asks both families for every name in it.
class ProfileReadingJob : public Job
{
public:
    /// Is called with what was found, as it is found.
    struct Receiver
    {
        /// Once, before all readings. `wanted` is the name that was looked for, or -1.
        std::function<void(std::shared_ptr<const ProfileDocument> document, int wanted)> document;
        /// In the order of the file.
        ProfileAskingJob::Receiver reading;
    };

    /// A missing file has no lines and no names.
    ProfileReadingJob(const QString& path, Receiver receiver);
    ~ProfileReadingJob() override;

    /// Looks for this name, and for no other one any more; not to be called once `isLoaded`.
    void lookFor(const ProfileDocument::Name& name) { m_loading->lookFor(name); }

    bool step() override;
    /// How many names have been asked for; empty until the file has been read.
    QString progress() const override;

    /// True once the file has been read and only the families are still being asked.
    bool isLoaded() const { return !m_loading; }

private:
    void load();

    std::optional<ProfileLoadingJob> m_loading;
    std::optional<ProfileAskingJob> m_asking;
    Receiver m_receiver;
    int m_next = 0; ///< name
};
