// The recorder's own memory. A program may replace the operators for all libraries, to count what
// it uses or to let it run out: what is needed here is neither counted nor refused. Nobody else
// sees these operators, and the standard library is linked in, since its functions allocate too.

#include <cstddef>
#include <cstdlib>
#include <new>

void* operator new(std::size_t size)
{
    void* memory = std::malloc(size > 0 ? size : 1); // NOLINT(cppcoreguidelines-no-malloc)
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    operator delete(memory);
}
