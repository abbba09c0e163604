#pragma once

#include "trace/reading/SignedCalls.h"
#include "trace/reading/ValueText.h"

#include <QCoreApplication>

#include <functional>
#include <vector>

namespace trace {

/// A call as the texts of its parts, for a comparison with another one: arguments, outputs, result.
/// The names of parts that are no parameters are in parentheses.
class CallParts
{
    Q_DECLARE_TR_FUNCTIONS(CallParts)

public:
    struct Part
    {
        QString name;
        QString text;
    };
    /// What is said of a handle that the call with this number made.
    using MakerText = std::function<QString(qint64 maker)>;

    /// The parts of the call at that place.
    CallParts(const SignedCalls& calls, int place, MakerText makerText, ValueText::Form form);

    const std::vector<Part>& all() const { return m_parts; }
    /// The text of a part; null where there is none of that name.
    QString text(const QString& name) const;

private:
    void addReturned(const Call& call, const ValueText& values, const Operation* operation);
    void add(const QString& name, const QString& text) { m_parts.push_back({name, text}); }

    std::vector<Part> m_parts;
};

} // namespace trace
