#pragma once

#include <QTemporaryDir>

/// Gives the process its own home, data and temporary folders, time zone and locale, so that a test
/// neither sees nor leaves anything of the user's. A scale of the screen is taken from
/// QUAYSIDE_TEST_SCALE_FACTOR alone. Make it before the application object.
class HermeticEnvironment
{
public:
    HermeticEnvironment();

private:
    QTemporaryDir m_home;
};
