#include "window/PaneStack.h"

#include "PlainPaneModel.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <numeric>

namespace zantroq {
namespace {

using test::sPlainStack;

sPaneStack Stack(std::vector<double> borders)
{
    sPaneStack stack;
    stack.StudyCount = static_cast<int>(borders.size()) - 1;
    stack.Bounds = {};
    for (std::size_t k = 0; k < borders.size(); ++k)
        stack.Bounds[k + 1] = borders[k];
    return stack;
}

std::vector<int> Heights(const PaneBottoms& bottoms, int panes)
{
    std::vector<int> heights;
    for (int k = 0; k < panes; ++k)
        heights.push_back(bottoms[static_cast<std::size_t>(k + 1)] - bottoms[static_cast<std::size_t>(k)]);
    return heights;
}

std::vector<int> Heights(const sPaneStack& stack, int room)
{
    return Heights(LayOutPanes(stack, room), PaneCount(stack));
}

std::vector<int> States(const sPaneStack& stack)
{
    return {stack.Minimized.begin(), stack.Minimized.begin() + PaneCount(stack)};
}

using Ints = std::vector<int>;

TEST(PaneStack, SharesOfTheRoomRoundFromTheLastPaneUp)
{
    // 0.34 * 410 + 0.5 = 139.9
    EXPECT_EQ(Heights(Stack({0.66, 1.0}), 410), (Ints{271, 139}));
    EXPECT_EQ(Heights(Stack({0.5, 0.75, 1.0}), 401), (Ints{201, 100, 100}));
}

TEST(PaneStack, APaneAloneTakesAllOfTheRoom)
{
    EXPECT_EQ(Heights(Stack({1.0}), 333), (Ints{333}));
}

TEST(PaneStack, MinimizedPanesAreSixteenPixelsAndTheOthersShareTheRest)
{
    sPaneStack stack = Stack({0.5, 0.75, 1.0});
    stack.Minimized[1] = 1;
    // (400 - 16) / 0.75 = 512 for the whole
    EXPECT_EQ(Heights(stack, 400), (Ints{256, 16, 128}));
}

TEST(PaneStack, AMaximizedPaneLeavesSixteenPixelsForEachOther)
{
    sPaneStack stack = Stack({0.5, 0.75, 1.0});
    stack.MaximizedIndex = 2;
    EXPECT_EQ(Heights(stack, 400), (Ints{16, 16, 368}));
}

TEST(PaneStack, ARoomTooSmallForAllIgnoresStates)
{
    sPaneStack stack = Stack({0.5, 0.75, 1.0});
    stack.MaximizedIndex = 2;
    stack.Minimized[0] = 1;
    EXPECT_EQ(Heights(stack, 47), (Ints{24, 11, 12})); // 0.5 * 47 + 0.5 = 24, 0.75 * 47 + 0.5 = 35.75
    EXPECT_EQ(Heights(stack, 48), (Ints{16, 16, 16}));
}

TEST(PaneStack, AShareBelowSixteenPixelsIsRaisedFromTheTallestPane)
{
    EXPECT_EQ(Heights(Stack({0.9, 0.95, 1.0}), 100), (Ints{68, 16, 16}));
}

TEST(PaneStack, AnEmptyOrNegativeRoomGivesNoHeights)
{
    EXPECT_EQ(Heights(Stack({0.66, 1.0}), 0), (Ints{0, 0}));
    EXPECT_EQ(Heights(Stack({0.66, 1.0}), -40), (Ints{0, 0}));
}

TEST(PaneStack, ABorderBetweenNormalPanesMovesItsFraction)
{
    sPaneStack stack = Stack({0.5, 1.0});
    PaneBottoms bottoms = LayOutPanes(stack, 400);
    MovePaneBorder(stack, bottoms, 1, 300);
    EXPECT_DOUBLE_EQ(stack.Bounds[1], 0.75);
    EXPECT_EQ(Heights(stack, 400), (Ints{300, 100}));
    EXPECT_EQ(stack.MaximizedIndex, NoMaximizedPane);
}

TEST(PaneStack, APaneDraggedToNineteenPixelsIsMinimizedOneToTwentyIsNot)
{
    sPaneStack stack = Stack({0.25, 0.5, 1.0});
    PaneBottoms bottoms = LayOutPanes(stack, 400);
    sPaneStack other = stack;
    PaneBottoms otherBottoms = bottoms;
    MovePaneBorder(stack, bottoms, 1, 19);
    EXPECT_EQ(States(stack), (Ints{1, 0, 0}));
    EXPECT_DOUBLE_EQ(stack.Bounds[1], 0.25); // the share waits for the pane's return
    MovePaneBorder(other, otherBottoms, 1, 20);
    EXPECT_EQ(States(other), (Ints{0, 0, 0}));
    EXPECT_DOUBLE_EQ(other.Bounds[1], 0.05);
}

TEST(PaneStack, TheLastNormalPaneBecomesTheMaximizedOne)
{
    sPaneStack stack = Stack({0.5, 1.0});
    PaneBottoms bottoms = LayOutPanes(stack, 400);
    MovePaneBorder(stack, bottoms, 1, 384); // the lower pane is small
    EXPECT_EQ(States(stack), (Ints{0, 1}));
    EXPECT_EQ(stack.MaximizedIndex, 0);
}

TEST(PaneStack, AMaximizedPaneDraggedSmallHandsOver)
{
    sPaneStack stack = Stack({0.5, 1.0});
    stack.MaximizedIndex = 0;
    stack.Minimized[1] = 1;
    PaneBottoms bottoms = LayOutPanes(stack, 400);
    MovePaneBorder(stack, bottoms, 1, 16);
    EXPECT_EQ(stack.MaximizedIndex, 1);
    EXPECT_EQ(States(stack), (Ints{1, 0}));
}

TEST(PaneStack, ABorderOfTheMaximizedPaneMakesTwoNormalPanesOfAll)
{
    sPaneStack stack = Stack({0.4, 0.7, 1.0});
    stack.MaximizedIndex = 1;
    PaneBottoms bottoms = LayOutPanes(stack, 400); // 16, 368, 16
    MovePaneBorder(stack, bottoms, 2, 200);
    EXPECT_EQ(stack.MaximizedIndex, NoMaximizedPane);
    EXPECT_EQ(States(stack), (Ints{1, 0, 0}));
    // 0.6 * 184 / 384 + 0.4
    EXPECT_DOUBLE_EQ(stack.Bounds[2], 0.6 * 184 / 384 + 0.4);
}

TEST(PaneStack, MinimizingTheMaximizedPaneBringsTheOthersBack)
{
    sPaneStack stack = Stack({0.4, 0.7, 1.0});
    stack.MaximizedIndex = 0;
    stack.Minimized = {0, 1, 1};
    MinimizePane(stack, 0);
    EXPECT_EQ(States(stack), (Ints{1, 0, 0}));
    EXPECT_EQ(stack.MaximizedIndex, NoMaximizedPane);
}

TEST(PaneStack, MinimizingTheSecondOfTwoMaximizesTheOther)
{
    sPaneStack stack = Stack({0.5, 1.0});
    MinimizePane(stack, 1);
    EXPECT_EQ(stack.MaximizedIndex, 0);
    MinimizePane(stack, 0);
    EXPECT_EQ(stack.MaximizedIndex, 1); // pane 1 came back alone, so it takes the room
    EXPECT_EQ(States(stack), (Ints{1, 0}));
}

TEST(PaneStack, RestoringTheOnlyNormalPaneBringsAllBack)
{
    sPaneStack stack = Stack({0.4, 0.7, 1.0});
    stack.MaximizedIndex = 2;
    stack.Minimized = {1, 1, 0};
    RestorePane(stack, 2);
    EXPECT_EQ(States(stack), (Ints{0, 0, 0}));
    EXPECT_EQ(stack.MaximizedIndex, NoMaximizedPane);
}

TEST(PaneStack, RestoringBesideAMaximizedPaneLeavesTheTwo)
{
    sPaneStack stack = Stack({0.4, 0.7, 1.0});
    stack.MaximizedIndex = 2;
    RestorePane(stack, 0);
    EXPECT_EQ(States(stack), (Ints{0, 1, 0}));
    EXPECT_EQ(stack.MaximizedIndex, NoMaximizedPane);
}

TEST(PaneStack, APaneAloneIsOfferedNoCommand)
{
    const sPaneCommands offered = OfferedCommands(Stack({1.0}), 0);
    EXPECT_FALSE(offered.Maximize || offered.Minimize || offered.Restore);
}

TEST(PaneStack, CommandsAreOfferedByState)
{
    sPaneStack stack = Stack({0.5, 1.0});
    sPaneCommands offered = OfferedCommands(stack, 0); // normal
    EXPECT_TRUE(offered.Maximize && offered.Minimize && !offered.Restore);
    stack.MaximizedIndex = 0;
    offered = OfferedCommands(stack, 0); // maximised
    EXPECT_TRUE(!offered.Maximize && offered.Minimize && offered.Restore);
    stack.MaximizedIndex = 1;
    offered = OfferedCommands(stack, 0); // collapsed
    EXPECT_TRUE(offered.Maximize && !offered.Minimize && offered.Restore);
}

TEST(PaneStack, KeptStudiesKeepTheirShareAndNewOnesGetAnEqualPart)
{
    sPaneStack stack = Stack({0.5, 0.8, 1.0});
    stack.StudyTypes = {StudyVolume, StudyRSI};
    stack.Minimized = {0, 0, 1};
    stack.MaximizedIndex = 2;
    const std::array<int, 3> wanted{StudyMACD, StudyRSI, StudyVolume};
    ReplaceStudies(stack, wanted);
    // q = 1/4, scale = (1 - 1/4) / (0.5 + 0.3 + 0.2) = 0.75
    EXPECT_EQ(stack.StudyCount, 3);
    EXPECT_NEAR(stack.Bounds[1], 0.375, 1e-12);
    EXPECT_NEAR(stack.Bounds[2], 0.625, 1e-12);
    EXPECT_NEAR(stack.Bounds[3], 0.775, 1e-12);
    EXPECT_EQ(stack.Bounds[4], 1.0);
    EXPECT_EQ(States(stack), (Ints{0, 0, 1, 0}));
    EXPECT_EQ(stack.MaximizedIndex, 2); // RSI again, now the second study
}

TEST(PaneStack, AMaximizedStudyThatGoesLeavesNoneMaximized)
{
    sPaneStack stack = Stack({0.5, 1.0});
    stack.StudyTypes = {StudyVolume};
    stack.MaximizedIndex = 1;
    ReplaceStudies(stack, {});
    EXPECT_EQ(stack.MaximizedIndex, NoMaximizedPane);
    EXPECT_EQ(stack.StudyCount, 0);
    EXPECT_EQ(stack.Bounds[1], 1.0);
}

// --- against the plain model -------------------------------------------------

struct sPair
{
    sPaneStack Stack;
    sPlainStack Plain;
};

sPair RandomPair()
{
    const int panes = *rc::gen::inRange(1, 12);
    std::vector<int> weights;
    for (int k = 0; k < panes; ++k)
        weights.push_back(*rc::gen::inRange(20, 100));
    const double total = std::accumulate(weights.begin(), weights.end(), 0);
    sPair pair;
    pair.Stack.StudyCount = panes - 1;
    pair.Stack.Bounds = {};
    double sum = 0;
    for (int k = 0; k < panes; ++k) {
        const double next = k == panes - 1 ? 1.0 : sum + weights[static_cast<std::size_t>(k)] / total;
        pair.Stack.Bounds[static_cast<std::size_t>(k + 1)] = next;
        pair.Plain.Panes.push_back({next - sum, false});
        sum = next;
    }
    return pair;
}

void ExpectSame(const sPair& pair)
{
    RC_ASSERT(pair.Stack.MaximizedIndex ==
              (pair.Plain.Maximized < 0 ? NoMaximizedPane : pair.Plain.Maximized));
    for (int k = 0; k < pair.Plain.Count(); ++k) {
        RC_ASSERT((pair.Stack.Minimized[static_cast<std::size_t>(k)] != 0) == pair.Plain.Of(k).Minimized);
        const double share = pair.Stack.Bounds[static_cast<std::size_t>(k + 1)] -
                             pair.Stack.Bounds[static_cast<std::size_t>(k)];
        RC_ASSERT(std::abs(share - pair.Plain.Of(k).Share) < 1e-9);
    }
}

void OneStep(sPair& pair, int room)
{
    const int pane = *rc::gen::inRange(0, pair.Plain.Count());
    switch (*rc::gen::inRange(0, 4)) {
    case 0:
        MaximizePane(pair.Stack, pane), pair.Plain.Maximize(pane);
        break;
    case 1:
        MinimizePane(pair.Stack, pane), pair.Plain.Minimize(pane);
        break;
    case 2:
        RestorePane(pair.Stack, pane), pair.Plain.Restore(pane);
        break;
    default: {
        if (pane == 0)
            return;
        PaneBottoms bottoms = LayOutPanes(pair.Stack, room);
        const int top = bottoms[static_cast<std::size_t>(pane - 1)],
                  end = bottoms[static_cast<std::size_t>(pane + 1)];
        if (end - top < 32)
            return;
        const int y = *rc::gen::inRange(top + 16, end - 16 + 1);
        MovePaneBorder(pair.Stack, bottoms, pane, y);
        RC_ASSERT(bottoms[static_cast<std::size_t>(pane)] == y);
        pair.Plain.Drag(pane, y - top, end - y);
    }
    }
}

RC_GTEST_PROP(PaneStackModel, AnySequenceOfCommandsAndDragsFollowsThePlainRules, ())
{
    sPair pair = RandomPair();
    const int steps = *rc::gen::inRange(1, 25);
    for (int k = 0; k < steps; ++k) {
        const int room = *rc::gen::inRange(176, 1200);
        OneStep(pair, room);
        ExpectSame(pair);
    }
}

RC_GTEST_PROP(PaneStackModel, HeightsFollowThePlainRulesWhereverTheyGiveEachPaneItsSixteenPixels, ())
{
    sPair pair = RandomPair();
    const int steps = *rc::gen::inRange(0, 12);
    for (int k = 0; k < steps; ++k)
        OneStep(pair, 900);
    const int room = *rc::gen::inRange(0, 1500);
    RC_PRE(!pair.Plain.TooLow(room));
    const bool allMinimized = pair.Plain.Normal().empty() && pair.Plain.Maximized < 0;
    RC_PRE(!allMinimized);
    const auto heights = Heights(pair.Stack, room);
    const auto wanted = pair.Plain.Heights(room);
    for (std::size_t k = 0; k < wanted.size(); ++k)
        RC_ASSERT(std::abs(heights[k] - wanted[k]) <= 1); // the model sums shares in another order
}

RC_GTEST_PROP(PaneStackModel, HeightsAlwaysFillTheRoomAndNoneIsBelowSixteenPixelsWhileThereIsRoomForAll, ())
{
    sPair pair = RandomPair();
    const int steps = *rc::gen::inRange(0, 12);
    for (int k = 0; k < steps; ++k)
        OneStep(pair, 1500);
    const int room = *rc::gen::inRange(0, 1500);
    const auto heights = Heights(pair.Stack, room);
    RC_ASSERT(std::accumulate(heights.begin(), heights.end(), 0) == room);
    const int lowest = *std::min_element(heights.begin(), heights.end());
    RC_ASSERT(lowest >= (16 * PaneCount(pair.Stack) <= room ? 16 : 0));
}

RC_GTEST_PROP(PaneStackModel, AnyStoredStackLaysOut, ())
{
    sPaneStack stack;
    stack.StudyCount = *rc::gen::inRange(0, 11);
    for (double& bound : stack.Bounds)
        bound = *rc::gen::arbitrary<double>();
    for (auto& flag : stack.Minimized)
        flag = *rc::gen::inRange(0, 2);
    stack.MaximizedIndex = *rc::gen::element(999, -5, 0, 3, 10, 50);
    const int room = *rc::gen::inRange(0, 800);
    const auto heights = Heights(stack, room);
    RC_ASSERT(std::accumulate(heights.begin(), heights.end(), 0) == room);
    RC_ASSERT(*std::min_element(heights.begin(), heights.end()) >= (16 * PaneCount(stack) <= room ? 16 : 0));
}

} // namespace
} // namespace zantroq
