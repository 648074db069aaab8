#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// The readers as the fuzzers drive them: each takes arbitrary bytes as the content of one
// file (or one command-line argument) and must come back without crashing, hanging or
// touching memory it does not own. The regression test replays saved inputs through the same
// functions, so a fixed crash stays fixed.
struct FuzzEntry {
    std::string_view name; // also the folder of its corpus and its regressions
    void (*run)(const std::uint8_t* data, std::size_t size);
};

// The window-file reader, a drawing of what it read, and a save of it.
void FuzzWindowFile(const std::uint8_t* data, std::size_t size);
void FuzzNumberParsers(const std::uint8_t* data, std::size_t size);
void FuzzProjectArgument(const std::uint8_t* data, std::size_t size);
void FuzzWindowList(const std::uint8_t* data, std::size_t size);
void FuzzRealtimeDatabase(const std::uint8_t* data, std::size_t size);
void FuzzHmiDatabase(const std::uint8_t* data, std::size_t size);
void FuzzHistoryNames(const std::uint8_t* data, std::size_t size);
void FuzzDataLogNames(const std::uint8_t* data, std::size_t size);
// Variable references and calls in binding expressions and scripts, and renaming one.
void FuzzExpressionText(const std::uint8_t* data, std::size_t size);
// Reading and evaluating a runtime expression.
void FuzzExpressionEvaluator(const std::uint8_t* data, std::size_t size);

inline constexpr FuzzEntry kFuzzEntries[] = {
    {"windowfile", FuzzWindowFile},       {"numberparsers", FuzzNumberParsers},
    {"projectargument", FuzzProjectArgument}, {"windowlist", FuzzWindowList},
    {"rtdb", FuzzRealtimeDatabase},       {"hmidb", FuzzHmiDatabase},
    {"history", FuzzHistoryNames},        {"datalog", FuzzDataLogNames},
    {"expression", FuzzExpressionText},  {"evaluator", FuzzExpressionEvaluator},
};
