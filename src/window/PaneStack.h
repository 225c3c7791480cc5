// The arithmetic of the pane stack, without a window: the heights that stored fractions and pane states give,
// and how a border drag or a pane command changes them. Pure functions over sPaneStack.
#pragma once

#include "settings/ChartSettings.h"

#include <array>
#include <span>
#include <vector>

namespace zantroq {

inline constexpr int MinPaneHeight = 16; // pixels
inline constexpr int GrabMargin = 3;     // pixels to either side of a border

// Pixel positions: [0] is 0, [k + 1] the bottom of pane k.
using PaneBottoms = std::array<int, MaxPanes + 1>;

int PaneCount(const sPaneStack& stack); // studies and the price pane, 1 to 11
bool IsMinimized(const sPaneStack& stack, int pane);
// Shows only its title: minimised with none maximised, or another pane is maximised.
bool IsCollapsedPane(const sPaneStack& stack, int pane);

// The bottoms of all panes in a room of `height` pixels.
// Where the fractions would make a pane lower than 16 pixels although there is room for all, the tallest
// panes give way; the fractions themselves stay, so the pane gets its share back in a larger window.
PaneBottoms LayOutPanes(const sPaneStack& stack, int height);

// Moves border b (between pane b - 1 and pane b) to y, in pixels from the top of pane 0. `bottoms` are those
// on show; the new position is written into them and the stack takes its new states and fraction.
void MovePaneBorder(sPaneStack& stack, PaneBottoms& bottoms, int border, int y);

void MaximizePane(sPaneStack& stack, int pane);
void MinimizePane(sPaneStack& stack, int pane);
void RestorePane(sPaneStack& stack, int pane);

struct sPaneCommands
{
    bool Maximize = false, Minimize = false, Restore = false;
};
// Which of the three commands a pane's menu offers.
sPaneCommands OfferedCommands(const sPaneStack& stack, int pane);

// Takes a new list of displayed studies: those kept keep their share of the room and their state, new ones
// get an equal part.
void ReplaceStudies(sPaneStack& stack, std::span<const int> studies);

} // namespace zantroq
