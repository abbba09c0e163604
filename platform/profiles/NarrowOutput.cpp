#include "platform/profiles/NarrowOutput.h"

#include <utility>

namespace {

constexpr int bytesAtOnce = 4 * 1024 * 1024;

} // namespace

NarrowOutput::NarrowOutput(Write write) : m_write(std::move(write)) {}

void NarrowOutput::appendInPieces(QStringView part)
{
    while (part.size() > charactersAtOnce - m_size) {
        const int room = charactersAtOnce - m_size;
        append(part.left(room));
        part = part.mid(room);
        encodeWhole();
    }
    append(part);
}

// The first half of a surrogate pair waits for the second one.
void NarrowOutput::encodeWhole()
{
    encode(m_size - (m_text[charactersAtOnce - 1].isHighSurrogate() ? 1 : 0));
    if (m_bytes.size() < bytesAtOnce)
        return;
    m_write(m_bytes);
    m_bytes.resize(0); // keeps its memory
}

void NarrowOutput::encode(int size)
{
    m_bytes += QStringView(m_text.data(), size).toUtf8();
    std::copy(m_text.begin() + size, m_text.begin() + m_size, m_text.begin());
    m_size -= size;
}

void NarrowOutput::finish()
{
    encode(m_size);
    m_write(m_bytes);
    m_bytes.clear();
}
