#include "valuegenerator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr std::array<const char*, 5> kKindNames = {"constant", "toggle", "ramp", "sine", "random"};
constexpr int kRandomMax = 32767;

// Floor division, so that times before the start keep the rhythm.
std::int64_t Step(std::int64_t timeMs, std::int64_t periodMs)
{
    return timeMs / periodMs - (timeMs % periodMs < 0 ? 1 : 0);
}

// A well-mixed number for a seed and a step (the finaliser of splitmix64).
std::uint64_t Mix(std::uint64_t value)
{
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
    return value ^ (value >> 31);
}

} // namespace

double CValueGenerator::ValueAt(std::int64_t timeMs, std::uint64_t seed) const
{
    const std::int64_t period = std::max<std::int64_t>(periodMs, 1);
    const std::int64_t step = Step(timeMs, period);
    switch (kind) {
    case Kind::Constant:
        return low;
    case Kind::Toggle:
        return step % 2 == 0 ? low : high;
    case Kind::Ramp:
        return low + (high - low) * double(timeMs - step * period) / double(period);
    case Kind::Sine:
        return (low + high) / 2 +
               (high - low) / 2 * std::sin(2 * std::numbers::pi * double(timeMs - step * period) / double(period));
    case Kind::Random:
        return low + (high - low) * double(Mix(seed ^ Mix(std::uint64_t(step))) % (kRandomMax + 1)) / kRandomMax;
    }
    return low;
}

const char* CValueGenerator::KindName(Kind kind)
{
    return kKindNames[std::size_t(kind)];
}

std::optional<CValueGenerator::Kind> CValueGenerator::KindNamed(std::string_view name)
{
    const auto found = std::find(kKindNames.begin(), kKindNames.end(), name);
    if (found == kKindNames.end())
        return std::nullopt;
    return Kind(found - kKindNames.begin());
}
