#pragma once

#include <QString>

/// A value of the registry by its name.
struct RegistryValueName
{
    QString key; ///< path of the key in which a host library asks for it
    QString name;
};
