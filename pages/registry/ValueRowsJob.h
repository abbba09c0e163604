#pragma once

#include "inspection/Job.h"
#include "inspection/registry/ListedValue.h"

#include <QString>

#include <vector>

/// Writes values as a text: a line each, with name, type and data between tabs.
class ValueRowsJob : public Job
{
public:
    explicit ValueRowsJob(std::vector<ListedValue> values) : m_values(std::move(values)) {}

    /// Reads a few values.
    bool step() override;

    /// Complete once the job is done.
    const QString& text() const { return m_text; }

private:
    std::vector<ListedValue> m_values;
    std::size_t m_next = 0;
    QString m_text;
};
