#include "platform/profiles/LineReading.h"

LineReading readingOf(LineMark mark)
{
    LineReading reading;
    reading.state = mark.state;
    reading.isList = mark.isList;
    reading.isCut = mark.isCut;
    reading.isEscaped = mark.isEscaped;
    return reading;
}

bool isLost(LineState state)
{
    switch (state) {
    case LineState::Comment:
    case LineState::NoEquals:
    case LineState::TwoEquals:
    case LineState::BeforeHeader:
    case LineState::ReplacedHeader:
    case LineState::ReplacedKey: return true;
    default: return false;
    }
}

bool isLost(const LineReading& reading)
{
    return isLost(reading.state) || reading.isCut;
}
