#pragma once

#include "inspection/JobRunner.h"
#include "inspection/profiles/ProfileReading.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

class ParsedProfileCache;
class ProfileAskingJob;
class ProfileDocument;

/// Asks the families for those names of a document that somebody looks at, while the page goes on.
class ProfileReadingQueue : public QObject
{
    Q_OBJECT

public:
    explicit ProfileReadingQueue(QObject* parent = nullptr);
    ~ProfileReadingQueue() override;

    /// Drops what has not been asked for; null stops everything.
    void setDocument(std::shared_ptr<const ProfileDocument> document);

    /// Asks for these names, in their order, instead of those that still wait.
    void ask(std::vector<int> names);

signals:
    void answered(int name, const ProfileReading& reading);

private:
    int next();
    void finish();
    void drop();

    std::shared_ptr<const ProfileDocument> m_document;
    std::vector<int> m_waiting; ///< the last one is asked for next
    JobRunner m_runner;
    std::unique_ptr<ProfileAskingJob> m_job;
    // Who scrolls asks again soon: until then the wide family need not parse the file again.
    std::unique_ptr<ParsedProfileCache> m_cache;
    QTimer m_cacheEnd;
};
