#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Conversion between the editor's text and UTF-8, the form in which the XML parser delivers
// text and in which Qt and the file system want it.
//
// The editor holds text in GB2312, the code page of the window files and of the panel. A
// character that GB2312 cannot hold (one read from a UTF-8 file or from a character reference)
// is kept in the text as kForeignMark followed by the character in UTF-8. No GB2312 text holds
// that byte, so the mark is never ambiguous. The GUI shows such a character as itself and the
// window file carries it as a numeric character reference; nothing is lost on the way.
constexpr char kForeignMark = '\x80';

// Strict conversions: false (out untouched) when the text has a character outside the target
// code page, a marked character included, or is not valid in the source one.
bool Utf8ToGb2312(std::string_view utf8, std::string& out);
bool Gb2312ToUtf8(std::string_view gb2312, std::string& out);

// UTF-8 into the editor's text: GB2312 where GB2312 holds the character, marked otherwise.
// A byte that is not valid UTF-8 is taken as U+FFFD.
std::string Utf8ToGb2312OrKeep(std::string_view utf8);
// The editor's text into UTF-8, marked characters included. Bytes that are not valid GB2312
// are kept byte for byte.
std::string Gb2312ToUtf8OrKeep(std::string_view gb2312);

// The character that a mark at text[at] stands for, and the bytes it takes, mark included. A
// mark that is not followed by a whole UTF-8 character stands for U+FFFD and takes one byte.
struct ForeignCharacter {
    char32_t codePoint;
    std::size_t length;
};
ForeignCharacter ReadForeignCharacter(std::string_view text, std::size_t at);
