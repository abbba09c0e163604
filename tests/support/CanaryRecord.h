#pragma once

#include "tests/support/CanaryBuffer.h"

/// One record between two rows of canaries, with the canaries' bytes in all of its fields.
template <typename Record>
class CanaryRecord
{
public:
    Record* get() { return m_buffer.data(); }
    Record* operator->() { return get(); }

    /// Expects that the record is, to the last byte, this one, and nothing was written around it.
    void expect(const Record& record) { m_buffer.expect(&record, 1); }

    /// Expects that nothing was written around the record.
    void expectIntact() { expect(*get()); }

    void expectUntouched() { m_buffer.expectUntouched(); }

    /// True while every byte of this part of the record still is a canary's.
    template <typename Part>
    static bool untouched(const Part& part)
    {
        return CanaryBuffer<Record>::isUntouched(part);
    }

private:
    CanaryBuffer<Record> m_buffer{1};
};
