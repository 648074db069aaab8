#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The data types of the realtime database, by the short names the files use.

// Bytes a value of the type takes; 0 for "string" (its length is given) and unknown names.
std::int32_t HmiTypeSize(std::string_view shortName);
// The name shown to the user ("ulong" is "unsigned long"); empty for an unknown name.
std::string HmiTypeFullName(std::string_view shortName);
