#pragma once

#include <QByteArray>

/// A symbol's name as a programmer knows it. Names with C linkage stay as they are.
struct DemangledName
{
    explicit DemangledName(const QByteArray& symbol);

    QByteArray text;      ///< such as "Store::open(char const*)"
    QByteArray qualified; ///< without parameters, such as "Store::open"
    QByteArray last;      ///< the last part, without template arguments, such as "open"
    bool isMangled = false;
};
