// Finding the run of steps that lands in a visible range, and one step per place.

#include "widgets/hmisteps.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

TEST(HmiSteps, FindTheRunWhosePlacesLieInTheRangeEitherWay)
{
    const auto rising = [](std::int64_t i) { return 3 * i - 10; };
    EXPECT_EQ(HmiStepsWithin(0, 100, 0, 30, rising), (HmiSteps{4, 14})) << "places 2 to 29";
    EXPECT_EQ(HmiStepsWithin(0, 100, -1000, 1000, rising), (HmiSteps{0, 100}));
    const auto falling = [](std::int64_t i) { return 50 - i / 2; };
    EXPECT_EQ(HmiStepsWithin(0, 100, 10, 20, falling), (HmiSteps{62, 82})) << "places 19 down to 10";

    const HmiSteps none = HmiStepsWithin(0, 100, 500, 600, rising);
    EXPECT_EQ(none.first, none.end) << "no place in the range";
    EXPECT_EQ(HmiStepsWithin(5, 5, 0, 10, rising).first, 5) << "no steps";
    EXPECT_EQ(HmiStepsSpanning({3, 7}, {10, 12}), (HmiSteps{3, 12}));
    EXPECT_EQ(HmiStepsSpanning({3, 3}, {10, 12}), (HmiSteps{10, 12})) << "an empty run adds nothing";

    int tries = 0;
    const HmiSteps far = HmiStepsWithin(0, INT_MAX, 1000, 1010, [&](std::int64_t i) {
        ++tries;
        return i;
    });
    EXPECT_EQ(far, (HmiSteps{1000, 1010}));
    EXPECT_LT(tries, 100) << "by bisection";
}

TEST(HmiSteps, ForEachNewPlaceVisitsTheFirstStepOfEachPlace)
{
    std::vector<std::int64_t> visited;
    HmiForEachNewPlace(0, INT_MAX, [](std::int64_t i) { return i / 1000000000; },
                       [&](std::int64_t step) { visited.push_back(step); });
    EXPECT_EQ(visited, (std::vector<std::int64_t>{0, 1000000000, 2000000000}));
}
