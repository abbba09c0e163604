#pragma once

#include <QString>

/// Why what is changed in the store will be lost, in words; empty when it is saved, and without a
/// store.
QString storeFault();
