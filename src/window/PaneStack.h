// The arithmetic of the pane stack, without a window: the heights that follow from stored fractions and pane
// states, and the effect of a border drag or a pane command. Pure functions over sPaneStack, any thread.
#pragma once

#include "settings/ChartSettings.h"

#include <array>
#include <span>
#include <vector>

namespace zantroq {

inline constexpr int MinPaneHeight = 16; // pixels
inline constexpr int GrabMargin = 3;     // in pixels on both sides of a border

// Pixel positions: [0] is 0, [k + 1] the bottom of pane k.
using PaneBottoms = std::array<int, MaxPanes + 1>;

int PaneCount(const sPaneStack& stack); // number of panes, price pane included: 1 to 11
bool IsMinimized(const sPaneStack& stack, int pane);
// True if the pane shows only its title: it is minimised and none is maximised, or another pane is maximised.
bool IsCollapsedPane(const sPaneStack& stack, int pane);

// The bottoms of all panes in a height of `height` pixels. If the fractions make a pane lower than 16 pixels
// although there is room for all, the tallest panes get smaller. The fractions do not change, so the pane
// gets its share in a larger window.
PaneBottoms LayOutPanes(const sPaneStack& stack, int height);

// Moves border b (between pane b - 1 and pane b) to y, in pixels from the top of pane 0. `bottoms` are the
// current positions; the new position is written into them, and new states and fractions into the stack.
void MovePaneBorder(sPaneStack& stack, PaneBottoms& bottoms, int border, int y);

void MaximizePane(sPaneStack& stack, int pane);
void MinimizePane(sPaneStack& stack, int pane);
void RestorePane(sPaneStack& stack, int pane);

struct sPaneCommands
{
    bool Maximize = false, Minimize = false, Restore = false;
};
// The commands in a pane's menu.
sPaneCommands OfferedCommands(const sPaneStack& stack, int pane);

// Sets a new list of displayed studies. Studies that remain keep their share of the height and their state;
// new ones get an equal share.
void ReplaceStudies(sPaneStack& stack, std::span<const int> studies);

} // namespace zantroq
