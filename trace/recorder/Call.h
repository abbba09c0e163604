#pragma once

#include "trace/operations/Operation.h"
#include "trace/recorder/Inquiry.h"
#include "trace/recorder/ThreadState.h"

#include <cstdint>

namespace recorder {

/// Where a call comes from: the address that it returns to, and where the caller's stack ended.
/// That tells calls that enclose each other, also where a sanitizer keeps objects elsewhere.
struct CallSite
{
    std::uintptr_t caller;
    const void* stack;
};

/// A call that is recorded: its line is written when it is entered, and completed when it returns.
/// It lives on the stack, around the original. `errno` stays as caller and service leave it.
class Call
{
public:
    /// A call of an operation of `object`.
    Call(const trace::Manager& manager, const trace::Operation& operation, void* object,
         const std::uint64_t* words, const CallSite& site);
    /// A call of the caller's procedure by the services, whose stack ended there.
    Call(const trace::Operation& callback, const std::uint64_t* words, const void* stack);
    /// A call that has not returned by now was left by an exception.
    ~Call();

    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    void returned(std::uint64_t result);

private:
    OpenCall& enter();
    void begin(OpenCall& open);
    void complete(OpenCall& open, std::uint64_t result);

    const trace::Operation& m_operation;
    void* m_object = nullptr;
    const std::uint64_t* m_words;
    const void* m_stack;
    Inquiry m_inquiry;
    bool m_hasReturned = false;
};

} // namespace recorder
