#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// What drives a variable while the preview runs, as a function of an explicit time, so that a
// scenario plays the same every time:
//   constant  low
//   toggle    low and high in turn, each for periodMs
//   ramp      from low up to high over periodMs, then again from low
//   sine      a sine between low and high with the period periodMs, at the middle at time 0
//   random    a new number between low and high every periodMs, drawn from 0 to 32767 as
//             the panel's random numbers are, the same for the same variable and time
class CValueGenerator {
public:
    enum class Kind { Constant, Toggle, Ramp, Sine, Random };

    Kind kind = Kind::Constant;
    double low = 0;
    double high = 1;
    std::int64_t periodMs = 1000; // taken as at least 1

    // The value at a time in milliseconds; seed tells one random variable from another.
    double ValueAt(std::int64_t timeMs, std::uint64_t seed) const;

    static const char* KindName(Kind kind);
    static std::optional<Kind> KindNamed(std::string_view name);
};
