#pragma once

#include <string>
#include <string_view>

/// The digest of `text` by OpenSSL's algorithm `name`, in lower-case hexadecimal digits.
std::string peerDigest(const char* name, std::string_view text);
