#pragma once

#include "inspection/profiles/ProfileLoadingJob.h"
#include "inspection/profiles/ProfileReader.h"
#include "inspection/profiles/ProfileReading.h"

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <optional>

class ParsedProfileCache;

/// Reads a profile, and then asks both families for every name in it.
class ProfileReadingJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(ProfileReadingJob)

public:
    /// Is called with what was found, as it is found.
    struct Receiver
    {
        /// Once, before all readings.
        std::function<void(ProfileDocument document)> document;
        /// In the order of the file.
        std::function<void(ProfileReading reading)> reading;
    };

    /// A missing file has no lines and no names.
    ProfileReadingJob(const QString& path, Receiver receiver);
    ~ProfileReadingJob() override;

    bool step() override;
    /// How many names have been asked for; empty until the file has been read.
    QString progress() const override;
    /// True until the file is in memory, where it is large.
    bool isNextStepLong() const override;

    /// True once the file has been read and only the families are still being asked.
    bool isLoaded() const { return !m_loading; }

private:
    void load();
    void readNext();

    std::optional<ProfileLoadingJob> m_loading;
    QString m_path;
    bool m_isLarge;
    ProfileReader m_reader;
    Receiver m_receiver;
    std::unique_ptr<ParsedProfileCache> m_cache;
    std::vector<ProfileDocument::Name> m_names;
    std::size_t m_read = 0; ///< how many of the names have been asked for
};
