#pragma once

#include <algorithm>
#include <cstdint>

// Drawing in numbered steps (the pixels of a line, the bands of a gradient, the lines of a grid)
// that leaves out the steps that cannot be seen. Where a step lands moves monotonically with its
// number, so the steps that land in the visible area are one run of numbers, found by bisection
// in a number of tries that grows with the logarithm of the count.

// The steps first to end - 1.
struct HmiSteps {
    std::int64_t first = 0;
    std::int64_t end = 0;

    bool Contains(std::int64_t step) const { return first <= step && step < end; }

    friend bool operator==(const HmiSteps&, const HmiSteps&) = default;
};

// The first step from first to end - 1 for which reached(step) holds, or end; reached must hold
// for every step after one for which it holds.
template <class Predicate>
std::int64_t HmiFirstStepWhere(std::int64_t first, std::int64_t end, Predicate reached)
{
    while (first < end) {
        const std::int64_t middle = first + (end - first) / 2;
        if (reached(middle))
            end = middle;
        else
            first = middle + 1;
    }
    return first;
}

// The steps from first to end - 1 whose place, place(step), lies from low to high - 1, for a place
// that grows or shrinks monotonically with the step.
template <class Place>
HmiSteps HmiStepsWithin(std::int64_t first, std::int64_t end, std::int64_t low, std::int64_t high, Place place)
{
    if (first >= end || low >= high)
        return {first, first};
    const bool rising = place(first) <= place(end - 1);
    const std::int64_t from = HmiFirstStepWhere(first, end, [&](std::int64_t step) {
        return rising ? place(step) >= low : place(step) < high;
    });
    const std::int64_t to = HmiFirstStepWhere(from, end, [&](std::int64_t step) {
        return rising ? place(step) >= high : place(step) < low;
    });
    return {from, to};
}

// The smallest run of steps that holds both runs (either may be empty).
inline HmiSteps HmiStepsSpanning(const HmiSteps& a, const HmiSteps& b)
{
    if (a.first >= a.end)
        return b;
    if (b.first >= b.end)
        return a;
    return {std::min(a.first, b.first), std::max(a.end, b.end)};
}

// Calls visit(step) for the first step of each run of steps, first to end - 1, that share one
// place, for a place that moves monotonically with the step: steps that would draw the same
// thing at the same place again are left out.
template <class Place, class Visit>
void HmiForEachNewPlace(std::int64_t first, std::int64_t end, Place place, Visit visit)
{
    for (std::int64_t step = first; step < end;) {
        visit(step);
        const auto at = place(step);
        step = HmiFirstStepWhere(step + 1, end, [&](std::int64_t next) { return place(next) != at; });
    }
}
