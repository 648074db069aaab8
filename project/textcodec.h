#pragma once

#include <string>
#include <string_view>

// Conversion between the editor's text (GB2312 bytes) and UTF-8, the form in which the XML
// parser delivers text and in which Qt and the file system want it.

// Returns false (and leaves out untouched) when the text has a character outside the target
// code page or is not valid in the source one.
bool Utf8ToGb2312(std::string_view utf8, std::string& out);
bool Gb2312ToUtf8(std::string_view gb2312, std::string& out);

// The conversions as the readers and the GUI use them: text that does not convert is kept
// byte for byte.
std::string Utf8ToGb2312OrKeep(std::string_view utf8);
std::string Gb2312ToUtf8OrKeep(std::string_view gb2312);
