#include "trace/reading/TraceFault.h"

namespace trace {

QString TraceFault::text() const
{
    switch (kind) {
    case Kind::Damaged: return tr("Line %L1 is damaged.").arg(line);
    case Kind::TooLong: return tr("Line %L1 is too long.").arg(line);
    case Kind::Cut: break;
    }
    return tr("Line %L1 is cut off: the recording has ended within it.").arg(line);
}

} // namespace trace
