#include "trace/recorder/Descriptor.h"

#include <fcntl.h>
#include <unistd.h>

namespace recorder {

int outOfTheWay(int descriptor)
{
    constexpr int high = 900; // below the usual limit of 1,024
    if (descriptor < 0)
        return -1;
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, high);
    if (moved < 0)
        return descriptor;
    close(descriptor);
    return moved;
}

} // namespace recorder
