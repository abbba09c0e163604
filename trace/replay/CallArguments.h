#pragma once

#include "app/CStdStr.h"
#include "trace/operations/Operation.h"
#include "trace/reading/Call.h"
#include "trace/replay/GuardedBuffer.h"
#include "trace/replay/SkipReason.h"

#include <QStringList>

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace replay {

class HandleMap;
class ReplayFolder;

/// The arguments of a recorded call as they are given to a service again: numbers, texts and
/// addresses of buffers, each as large as it was there.
class CallArguments
{
public:
    /// All outlive this. `procedure` takes the place of the caller's procedure.
    CallArguments(const trace::Operation& operation, const trace::Call& call,
                  const HandleMap& handles, const ReplayFolder& folder, std::uint64_t procedure);

    CallArguments(const CallArguments&) = delete;
    CallArguments& operator=(const CallArguments&) = delete;

    /// Why they cannot be made; SkipReason::None where they have been.
    SkipReason fault() const { return m_fault; }
    const std::uint64_t* words() const { return m_words.data(); }
    /// The path among them, as it was recorded; null where there is none.
    const QString& path() const { return m_path; }
    /// The parameters beside whose buffers something was written.
    QStringList overruns() const;

private:
    using Value = trace::RecordedValue;

    std::uint64_t word(const trace::Parameter& parameter, const Value& value);
    std::uint64_t text(const trace::Parameter& parameter, const Value& value);
    std::uint64_t input(const trace::Parameter& parameter, const Value& value);
    std::uint64_t handle(const trace::Parameter& parameter, const Value& value);
    std::uint64_t mappedHandle(const trace::Parameter& parameter, const QString& name);
    std::uint64_t data(const Value& value);
    std::uint64_t record(const trace::Parameter& parameter, const Value& value);
    std::uint64_t recordValue(const trace::Parameter& parameter, const Value& value);
    std::uint64_t string(const Value& value);
    std::uint64_t output(const trace::Parameter& parameter, const Value& value);
    std::uint64_t changedPath(const trace::Parameter& parameter, const Value& value);
    std::uint64_t numberBehind(const trace::Parameter& parameter, const Value& value);
    std::uint64_t room(const trace::Parameter& parameter);
    std::uint64_t lostKey(const trace::Parameter& parameter);
    std::uint64_t fail(SkipReason reason);
    GuardedBuffer& buffer(const trace::Parameter& parameter, std::size_t capacity,
                          GuardedBuffer::Limit limit = GuardedBuffer::Limit::Known);

    const trace::Operation& m_operation;
    const trace::Call& m_call;
    const HandleMap& m_handles;
    const ReplayFolder& m_folder;
    std::uint64_t m_procedure;
    SkipReason m_fault = SkipReason::None;
    QString m_path;
    std::vector<std::uint64_t> m_words;

    struct Buffer
    {
        const trace::Parameter* parameter;
        GuardedBuffer memory;
    };
    std::deque<Buffer> m_buffers;
    std::deque<std::wstring> m_wideTexts;
    std::deque<std::string> m_narrowTexts;
    std::deque<CStdStr<wchar_t>> m_strings;
};

} // namespace replay
