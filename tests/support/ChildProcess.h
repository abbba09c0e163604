#pragma once

#include <QProcess>

/// A process that can also be started from a program that runs under qemu-user: Qt starts derived
/// classes with a plain fork, which the emulator knows, and QProcess itself with a clone that it
/// refuses.
class ChildProcess : public QProcess
{
};
