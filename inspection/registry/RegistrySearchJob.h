#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryWalk.h"

#include <QCoreApplication>

#include <vector>

/// Looks for a text, ignoring case, in the names of keys and values and in the data of values, from
/// one key downwards. Texts and bytes are searched whole, numbers as they are shown; hexadecimal
/// digits of bytes are found with and without blanks.
class RegistrySearchJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(RegistrySearchJob)

public:
    struct Hit
    {
        QString path;
        QString name; ///< empty: the key itself
        QString data; ///< of a value, as shown
    };

    /// The search ends by itself after so many hits.
    static constexpr std::size_t mostHits = 1000;

    RegistrySearchJob(const QString& text, const QString& path, bool inNames, bool inData);

    bool step() override;
    /// How many values have been looked at and how many places found.
    QString progress() const override;

    const std::vector<Hit>& hits() const { return m_hits; }
    /// True when there may be more than were listed.
    bool isFull() const { return m_hits.size() >= mostHits; }

private:
    void lookAtKey();
    void lookAtValue();
    bool matches(const QString& text) const { return text.contains(m_text, Qt::CaseInsensitive); }
    bool matches(const RegistryReading& reading) const;
    bool matchesBytes(const QByteArray& data) const;

    QString m_text;
    QByteArray m_digits; ///< in lower case, as bytes are written
    bool m_inNames;
    bool m_inData;
    RegistryWalk m_walk;
    std::vector<Hit> m_hits;
};
