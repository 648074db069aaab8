#pragma once

#include <cstdint>
#include <iterator>

// Choice lists and tables that several catalogue widgets share. The texts are the ones the
// property list shows, misspellings included.

// Caption font sizes in points; the widgets keep the list index and write the size.
inline constexpr std::int32_t kFontSizes[] = {0, 8, 12, 16, 24};
inline constexpr const char* kFontSizeChoices[] = {"Default", "8", "12", "16", "24"};

// The point size at a list index, or -1 (no such size) for an index outside the list.
inline constexpr std::int32_t FontSizeAt(std::int32_t index)
{
    return index >= 0 && index < std::int32_t(std::size(kFontSizes)) ? kFontSizes[index] : -1;
}

// Alignment codes 1 left, 2 right, 3 centre: the list index plus one.
inline constexpr std::int32_t kAlignLeft = 1;
inline constexpr std::int32_t kAlignRight = 2;
inline constexpr std::int32_t kAlignCenter = 3;
inline constexpr const char* kAlignChoices[] = {"Align left", "Align right", "Align center"};

inline constexpr const char* kSecurityModeChoices[] = {"no prompt", "prompt no permission", "prompt password window"};
inline constexpr const char* kTransparencyChoices[] = {"opaque", "transparent"};
