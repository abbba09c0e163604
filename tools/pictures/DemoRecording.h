#pragma once

#include <QByteArray>

/// A recording of what the library of a crane asks at its start; the profile and the folder are
/// those of the home.
QByteArray demoRecording(const QByteArray& home);
