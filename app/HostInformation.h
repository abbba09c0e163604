#pragma once

#include <QCoreApplication>
#include <QString>

/// What the window tells about its surroundings.
class HostInformation
{
    Q_DECLARE_TR_FUNCTIONS(HostInformation)

public:
    /// The file of the host library in use: the maker's or the stand-in. Empty when unknown.
    static QString libraryPath();
    /// The name of the interface's language, in that language.
    static QString language();
};
