#pragma once

#include <string>
#include <string_view>

// The pieces of window-file text that carry the editor's text: attribute values and code.
// Each writes the text as the window file defines it wherever that reads back to the same text,
// and otherwise the smallest well-formed equivalent, so that no save makes a file that cannot be
// read again or that reads back otherwise:
// - a character that GB2312 cannot hold (marked in the editor's text) becomes a numeric
//   character reference, since the file declares GB2312;
// - in attribute values, TAB, LF and CR become character references, since a reader turns
//   them into blanks;
// - in code, a "]]>" is split across two CDATA sections.
// Line ends inside code are written as they stand: every reader reads them as LF.

// An attribute value under the window file's escaping rule: & " < > ' as entities, in one pass,
// so that no entity is escaped twice.
void AppendEscapedAttribute(std::string& archive, std::string_view text);
// The same escaping, as a text of its own.
std::string EscapedAttribute(std::string_view text);
// An attribute value that the window file writes unescaped (names, class keys, limit values):
// only the characters that would end the value or break the file (& < ") become entities.
void AppendPlainAttribute(std::string& archive, std::string_view text);
// Code in a CDATA section: "<![CDATA[", the code, "]]>".
void AppendCDataSection(std::string& archive, std::string_view code);
