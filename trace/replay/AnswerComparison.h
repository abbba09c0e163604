#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/Call.h"
#include "trace/replay/ReplayReport.h"

#include <string>
#include <vector>

namespace replay {

class ReplayFolder;

/// Compares what a recorded call answered with what it answers here, each part by its role:
/// pointers and handles by what they are (null, invalid, a root, something), texts and numbers by
/// themselves. `Surroundings` has the exceptions.
class AnswerComparison
{
public:
    using Value = trace::RecordedValue;

    /// Both outlive this.
    AnswerComparison(const trace::Operation& operation, const ReplayFolder& folder)
        : m_operation(operation), m_folder(folder)
    {
    }

    void compareResult(const Value& was, const Value& is);
    void compareOutputs(const Value& was, const Value& is);
    /// The arguments that a procedure of the caller's is given; `prefix` stands before their names.
    void compareArguments(const Value& was, const Value& is, const std::string& prefix);
    void add(const Difference& difference) { m_differences.push_back(difference); }

    const std::vector<Difference>& differences() const { return m_differences; }

    /// All of an answer that is compared, as one text.
    QString answerText(const Value& result, const Value& outputs) const;

private:
    void compare(const std::string& part, const Value& was, const Value& is,
                 const trace::Rows<trace::BitName>& names);
    bool isSame(const std::string& part, const Value& was, const Value& is) const;
    bool isSameByRole(const std::string& part, const Value& was, const Value& is) const;
    bool isSameText(const Value& was, const Value& is) const;
    bool isSameRecord(const std::string& part, const Value& was, const Value& is) const;
    QString stateText(const std::string& part, const Value& value) const;

    const trace::Operation& m_operation;
    const ReplayFolder& m_folder;
    std::vector<Difference> m_differences;
};

} // namespace replay
