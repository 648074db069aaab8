#pragma once

#include "project/fileio.h"

#include <string>

class CPreviewValues;

// A preview scenario kept in the project: the values set by hand and the generators, by
// variable reference, as JSON (texts in UTF-8):
//   {"values": {"$plc.level": 42.5, "$plc.mode": "manual"},
//    "generators": {"$plc.temperature": {"kind": "sine", "low": 20, "high": 90, "periodMs": 10000}}}
inline constexpr const char* kValueSetFileName = "preview-values.json";

// Writes the values that differ from their init values and every generator.
FileResult SaveValueSet(const CPreviewValues& values, const std::string& path);
// Puts every variable back at its init value, then gives it what the file holds. A reference the
// project does not declare, a value its variable cannot hold and a generator of an unknown kind
// are left out, each with a notice. A file that cannot be read or is no value set changes nothing.
FileResult LoadValueSet(CPreviewValues& values, const std::string& path);
