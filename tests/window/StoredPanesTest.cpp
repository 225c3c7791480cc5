// The settings after each command, drag and resize of a pane stack, compared with the plain model; and every
// step from every state of a small stack.
#include "PlainPaneModel.h"
#include "WindowFakes.h"

#include "settings/SettingsLoader.h"
#include "window/BatchCounters.h"
#include "window/ChartsResizer.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdlib>
#include <numeric>

namespace zantroq {
namespace {

using namespace test;

constexpr int BarsAround = 28 + 2 + 20; // tool bar, its gap, status bar

// A resizer with a key, and the plain model of the same stack.
struct sStoredStack
{
    explicit sStoredStack(const std::vector<int>& weights)
    {
        const double total = std::accumulate(weights.begin(), weights.end(), 0);
        Key->Write("Number of displayed study charts", std::to_string(weights.size() - 1));
        double sum = 0;
        for (std::size_t k = 0; k < weights.size(); ++k) {
            // A share with six decimals, like stored ones.
            const double next =
                k + 1 == weights.size() ? 1.0 : std::round((sum + weights[k] / total) * 1e6) / 1e6;
            Store.WriteDouble("Top of chart " + std::to_string(k + 1), next);
            Plain.Panes.push_back({next - sum, false});
            sum = next;
            if (k > 0)
                Key->Write("Type of study chart " + std::to_string(k - 1), std::to_string(k - 1));
        }
        Stack = LoadChartSettings(*Key).Panes;
        Resizer.SetUp();
    }

    void Room(int room)
    {
        Host.Height = room + BarsAround;
        Resizer.Layout();
    }
    int Bottom(int border) const { return Placed.Bottoms()[static_cast<std::size_t>(border)]; }

    // Presses at the position of a border and releases at y, in pixels from the top of the panes.
    void Drag(int border, int y)
    {
        int grabbed = 1; // the first border within reach
        while (std::abs(Bottom(border) - Bottom(grabbed)) > 3)
            ++grabbed;
        Resizer.OnMouseMove(border - 1, Bottom(border) - Bottom(border - 1));
        ASSERT_TRUE(Resizer.OnButtonDown(border - 1, Bottom(border) - Bottom(border - 1)));
        const int top = Bottom(grabbed - 1), end = Bottom(grabbed + 1);
        Resizer.OnMouseMove(0, y);
        Resizer.OnButtonUp(0, y);
        if (end - top < 32)
            return; // no place where both would have sixteen pixels
        const int held = std::min(std::max(y, top + 16), end - 16);
        Plain.Drag(grabbed, held - top, end - held);
    }

    double Stored(const std::string& name) { return std::atof(Text(*Key, name).c_str()); }
    int StoredInt(const std::string& name, int missing)
    {
        const std::string text = Text(*Key, name);
        return text == "(missing)" ? missing : std::atoi(text.c_str());
    }

    // Returns an empty text, or what differs between the settings and the model.
    std::string Difference()
    {
        const int maximized = Plain.Maximized < 0 ? 999 : Plain.Maximized;
        if (StoredInt("Maximized Chart Index", 999) != maximized)
            return "maximized: stored " + Text(*Key, "Maximized Chart Index") + ", wanted " +
                   std::to_string(maximized);
        double bound = 0;
        for (int k = 0; k < Plain.Count(); ++k) {
            const std::string minimized = "Chart " + std::to_string(k) + " Minimized";
            if (StoredInt(minimized, 0) != (Plain.Of(k).Minimized ? 1 : 0))
                return minimized + ": stored " + Text(*Key, minimized);
            bound += Plain.Of(k).Share;
            const std::string top = "Top of chart " + std::to_string(k + 1);
            if (std::abs(Stored(top) - bound) > 1e-6)
                return top + ": stored " + Text(*Key, top) + ", wanted " + std::to_string(bound);
        }
        return "";
    }

    // True if a window that starts with these settings has the same layout. A share below the last stored
    // decimal counts as none.
    bool LoadsBack()
    {
        const sPaneStack loaded = LoadChartSettings(*Key).Panes;
        if (loaded.StudyCount != Stack.StudyCount || loaded.MaximizedIndex != Stack.MaximizedIndex ||
            loaded.Minimized != Stack.Minimized)
            return false;
        for (std::size_t k = 1; k <= Plain.Panes.size(); ++k)
            if (std::abs(loaded.Bounds[k] - Stack.Bounds[k]) > 1e-6)
                return false;
        return true;
    }

    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    CSettingsStore Store{*Key};
    sPaneStack Stack;
    sPlainStack Plain;
    std::array<CChart2D, 11> Panes;
    CBatchCounters Batch{Panes};
    sFakeHost Host;
    sFakeScroll Bar;
    sFakePointer Pointer;
    sFakeDrawing Drawing;
    CPaneLayout Placed{Stack, Panes, Host, Bar};
    CChartsResizer Resizer{Stack, Store, Placed, Pointer, Bar, Drawing, Batch};
};

// Heights from far too small for the stack to ample, with small ones as often as others.
int AnyRoom(int panes)
{
    return *rc::gen::oneOf(rc::gen::inRange(0, 16 * panes + 1), rc::gen::inRange(16 * panes, 20 * panes + 40),
                           rc::gen::inRange(200, 1400));
}

RC_GTEST_PROP(StoredPanes, HoldWhatThePlainRulesSayAfterEveryStepInAnyRoom, ())
{
    const int panes = *rc::gen::resize(100, rc::gen::inRange(1, 12)); // all counts alike
    sStoredStack stack(
        *rc::gen::container<std::vector<int>>(static_cast<std::size_t>(panes), rc::gen::inRange(1, 100)));
    stack.Room(AnyRoom(panes));
    RC_TAG(panes);
    for (int steps = *rc::gen::resize(100, rc::gen::inRange(1, 40)); steps > 0; --steps) {
        const int pane = *rc::gen::inRange(0, panes);
        switch (*rc::gen::inRange(0, 6)) {
        case 0:
            stack.Resizer.Maximize(pane), stack.Plain.Maximize(pane);
            break;
        case 1:
            stack.Resizer.Minimize(pane), stack.Plain.Minimize(pane);
            break;
        case 2:
            stack.Resizer.Restore(pane), stack.Plain.Restore(pane);
            break;
        case 3:
            stack.Room(AnyRoom(panes));
            break;
        default:
            if (pane > 0)
                stack.Drag(pane, *rc::gen::inRange(-40, stack.Placed.Height() + 41));
        }
        RC_ASSERT(stack.Difference() == "");
        RC_ASSERT(stack.LoadsBack());
        RC_ASSERT(stack.Bottom(panes) == stack.Placed.Height());
    }
}

// --- every step from every state ---------------------------------------------

struct sSmallStack
{
    sPaneStack Stack;
    sPlainStack Plain;
};

sSmallStack StateOf(int panes, unsigned minimized, int maximized)
{
    sSmallStack state;
    state.Stack.StudyCount = panes - 1;
    state.Stack.Bounds = {};
    for (int k = 0; k < panes; ++k) {
        // Shares of 1, 2, 3 ... parts.
        const double all = panes * (panes + 1) / 2.0;
        state.Stack.Bounds[static_cast<std::size_t>(k + 1)] = (k + 1) * (k + 2) / 2.0 / all;
        state.Stack.Minimized[static_cast<std::size_t>(k)] = (minimized >> k & 1) != 0 ? 1 : 0;
        state.Plain.Panes.push_back({(k + 1) / all, (minimized >> k & 1) != 0});
    }
    state.Stack.MaximizedIndex = maximized < 0 ? NoMaximizedPane : maximized;
    state.Plain.Maximized = maximized;
    return state;
}

bool Same(const sSmallStack& state)
{
    const sPlainStack& plain = state.Plain;
    if (state.Stack.MaximizedIndex != (plain.Maximized < 0 ? NoMaximizedPane : plain.Maximized))
        return false;
    double bound = 0;
    for (int k = 0; k < plain.Count(); ++k) {
        bound += plain.Of(k).Share;
        if ((state.Stack.Minimized[static_cast<std::size_t>(k)] != 0) != plain.Of(k).Minimized ||
            std::abs(state.Stack.Bounds[static_cast<std::size_t>(k + 1)] - bound) > 1e-9)
            return false;
    }
    return true;
}

// Calls step(state) for a fresh state of each kind: every set of minimised panes with every maximised one.
template<class TStep> int FromEveryState(int panes, const TStep& step)
{
    int tried = 0;
    for (unsigned minimized = 0; minimized < 1u << panes; ++minimized)
        for (int maximized = -1; maximized < panes; ++maximized, ++tried) {
            sSmallStack state = StateOf(panes, minimized, maximized);
            step(state);
            EXPECT_TRUE(Same(state)) << panes << " panes, minimized " << minimized << ", maximized "
                                     << maximized;
        }
    return tried;
}

TEST(EveryPaneState, EachCommandOnEachPaneFollowsThePlainRules)
{
    for (int panes = 1; panes <= 11; ++panes)
        for (int pane = 0; pane < panes; ++pane) {
            const int states = (1 << panes) * (panes + 1);
            EXPECT_EQ(FromEveryState(panes,
                                     [&](sSmallStack& state) {
                                         MaximizePane(state.Stack, pane);
                                         state.Plain.Maximize(pane);
                                     }),
                      states);
            FromEveryState(panes, [&](sSmallStack& state) {
                MinimizePane(state.Stack, pane);
                state.Plain.Minimize(pane);
            });
            FromEveryState(panes, [&](sSmallStack& state) {
                RestorePane(state.Stack, pane);
                state.Plain.Restore(pane);
            });
            if (testing::Test::HasFailure())
                return;
        }
}

TEST(EveryPaneState, EachDragInEachRoomFollowsThePlainRules)
{
    int moved = 0;
    for (int panes = 2; panes <= 11; ++panes)
        for (const int room : {16 * panes - 1, 16 * panes, 16 * panes + 9, 700})
            for (int border = 1; border < panes; ++border)
                for (const int place : {16, 19, 20, -20, -19, -16, 0}) {
                    // Many states of many panes are alike, so fewer positions suffice.
                    if (panes > 7 && (place == 20 || place == -20 || border % 3 != 1))
                        continue;
                    FromEveryState(panes, [&](sSmallStack& state) {
                        PaneBottoms bottoms = LayOutPanes(state.Stack, room);
                        const int top = bottoms[static_cast<std::size_t>(border - 1)],
                                  end = bottoms[static_cast<std::size_t>(border + 1)];
                        const int y = place == 0 ? (top + end) / 2 : place > 0 ? top + place : end + place;
                        if (y < top + 16 || y > end - 16)
                            return;
                        ++moved;
                        MovePaneBorder(state.Stack, bottoms, border, y);
                        state.Plain.Drag(border, y - top, end - y);
                    });
                    if (testing::Test::HasFailure())
                        return;
                }
    EXPECT_GT(moved, 100'000);
}

} // namespace
} // namespace zantroq
