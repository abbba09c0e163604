#pragma once

#include <QCoreApplication>

/// A path as Windows writes it: with backslashes, or with the letter of a drive. Such a path is
/// handed to the services as it stands; here is said what that means.
class WindowsPath
{
    Q_DECLARE_TR_FUNCTIONS(WindowsPath)

public:
    /// Whether a text is written in that way.
    static bool isIn(const QString& text);

    /// The same path with slashes and without the drive, as it may have been meant here.
    static QString asMeantHere(const QString& path);

    /// What the services make of such a path, in a sentence.
    static QString note();
};
