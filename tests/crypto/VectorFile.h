#pragma once

#include <map>
#include <string>
#include <vector>

/// One record of a file of published vectors: its "NAME = value" lines, and under "section" the
/// bracketed line above it.
using VectorRecord = std::map<std::string, std::string>;

/// The records of the file `name` in the vectors' directory; empty where it cannot be read.
std::vector<VectorRecord> readVectors(const std::string& name);
