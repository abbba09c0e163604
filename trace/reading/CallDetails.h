#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/Call.h"
#include "trace/reading/ValueText.h"

#include <QCoreApplication>

namespace trace {

/// All that is recorded of a call, in lines for people.
class CallDetails
{
    Q_DECLARE_TR_FUNCTIONS(CallDetails)

public:
    /// `operation` is null for one that is not known.
    CallDetails(const Call& call, const Operation* operation, ValueText::HandleText handleText);

    const QString& text() const { return m_text; }

private:
    void addHead(const Call& call);
    void addOutcome(const Call& call, const Operation* operation);
    void addValues(const QString& title, const RecordedValue& values, const Operation* operation);
    void addLine(const QString& line);

    ValueText m_values;
    QString m_text;
};

} // namespace trace
