#pragma once

#include "trace/replay/ReplayProcess.h"
#include "trace/replay/ReplaySource.h"

#include <memory>

class Output;

/// What the commands that replay recordings have in common.
namespace Replays {

/// A bundle or a recording; lines that cannot be read are told. Throws a Failure where it cannot be
/// read.
std::unique_ptr<replay::ReplaySource> open(const QString& path, const Output& output);

/// Performs all calls in a process of its own. Throws a Failure where that is not possible, and
/// where the user interrupts it.
replay::ReplayReport run(const replay::ReplaySource& source);

/// How many calls were performed, differ and were left out; or in which one the process has ended.
QString summary(const replay::ReplayReport& report);

QString signalText(int number);

} // namespace Replays
