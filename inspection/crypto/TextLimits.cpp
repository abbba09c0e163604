#include "inspection/crypto/TextLimits.h"

QString TextLimits::problemOf(const std::string& text, std::size_t limit)
{
    if (text.size() <= limit)
        return {};
    return tr("The text is too long: %L1 bytes. At most %L2 are taken.")
        .arg(text.size())
        .arg(limit);
}
