#pragma once

#include "inspection/registry/RegistryKey.h"

class QVariant;

/// Why a host library reads nothing of an entry, or what it reads other than stands there, in
/// words; empty when nothing is amiss. `entry` is the raw one of the name for which the service was
/// asked: its reason is not told where the service has read another one.
QString readingRemark(const RegistryReading& reading, const QVariant& entry);
