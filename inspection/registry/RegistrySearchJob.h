#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryWalk.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

/// Looks for a text in the names of keys and values and in the data of values, from one key
/// downwards. Texts and bytes are searched whole, numbers as they are shown, and the stored text of
/// what no host library can read; hexadecimal digits of bytes are found in either case, with and
/// without blanks.
class RegistrySearchJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(RegistrySearchJob)

public:
    struct Query
    {
        QString text;
        bool inKeys = true;  ///< in the names of keys
        bool inNames = true; ///< in the names of values
        bool inData = true;
        bool mindsCase = false;  ///< upper and lower case letters differ
        bool wholeWords = false; ///< with no letter, digit or "_" right before or behind it
        bool isPattern = false;  ///< the text is a valid regular expression

        bool operator==(const Query& other) const;
    };

    struct Hit
    {
        QString path;
        QString name; ///< empty: the key itself
        QString data; ///< of a value, as shown; of an unreadable one the stored text
    };

    /// The search ends by itself after so many hits, unless another number is given.
    static constexpr std::size_t mostHits = 1000;

    explicit RegistrySearchJob(const Query& query, const QString& path = {},
                               std::size_t most = mostHits);

    bool step() override;
    /// How many values have been looked at and how many places found.
    QString progress() const override;

    const std::vector<Hit>& hits() const { return m_hits; }
    /// True when there may be more than were listed.
    bool isFull() const { return m_hits.size() >= m_most; }

private:
    void lookAtKey();
    void lookAtValue();
    QString rawText() const;
    bool matches(const QString& text) const;
    bool matches(const RegistryReading& reading) const;
    bool matchesPattern(const QString& text) const;
    bool matchesBytes(const QByteArray& data) const;

    Query m_query;
    QByteArray m_digits; ///< in lower case, as bytes are written
    QRegularExpression m_pattern;
    std::size_t m_most;
    RegistryWalk m_walk;
    std::vector<Hit> m_hits;
};
