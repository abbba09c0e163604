#pragma once

#include <string>

extern const std::string base64_chars;
