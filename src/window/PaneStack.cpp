#include "window/PaneStack.h"

#include <algorithm>

namespace zantroq {

namespace {

constexpr int SmallPane = MinPaneHeight + GrabMargin;

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

double Share(const sPaneStack& stack, int pane)
{
    return stack.Bounds[At(pane + 1)] - stack.Bounds[At(pane)];
}

int NormalPanes(const sPaneStack& stack)
{
    int normal = 0;
    for (int pane = 0; pane < PaneCount(stack); ++pane)
        normal += IsMinimized(stack, pane) ? 0 : 1;
    return normal;
}

int FirstNormalPane(const sPaneStack& stack)
{
    for (int pane = 0; pane < PaneCount(stack); ++pane)
        if (!IsMinimized(stack, pane))
            return pane;
    return NoMaximizedPane;
}

// Makes the two given panes normal and minimises all others.
void KeepOnlyTwo(sPaneStack& stack, int one, int other)
{
    for (int pane = 0; pane < PaneCount(stack); ++pane)
        stack.Minimized[At(pane)] = pane == one || pane == other ? 0 : 1;
    stack.MaximizedIndex = NoMaximizedPane;
}

// Truncates to a pixel within the height, whatever the stored fractions.
int ToPixel(double value, int height)
{
    if (!(value > 0))
        return 0;
    return value < height ? static_cast<int>(value) : height;
}

using Heights = std::array<int, MaxPanes>;

void RaiseLowPanes(Heights& heights, int panes)
{
    for (int pane = 0; pane < panes; ++pane) {
        while (heights[At(pane)] < MinPaneHeight) {
            const auto tallest = std::max_element(heights.begin(), heights.begin() + panes);
            const int given = std::min(MinPaneHeight - heights[At(pane)], *tallest - MinPaneHeight);
            *tallest -= given;
            heights[At(pane)] += given;
        }
    }
}

} // namespace

int PaneCount(const sPaneStack& stack)
{
    return std::clamp(stack.StudyCount, 0, MaxPanes - 1) + 1;
}

bool IsMinimized(const sPaneStack& stack, int pane)
{
    return stack.Minimized[At(pane)] != 0;
}

bool IsCollapsedPane(const sPaneStack& stack, int pane)
{
    if (stack.MaximizedIndex == NoMaximizedPane)
        return IsMinimized(stack, pane);
    return stack.MaximizedIndex != pane;
}

PaneBottoms LayOutPanes(const sPaneStack& stack, int height)
{
    const int panes = PaneCount(stack);
    height = std::max(height, 0);
    PaneBottoms bottoms{};
    if (MinPaneHeight * panes > height) {
        for (int pane = 0; pane < panes; ++pane)
            bottoms[At(pane + 1)] =
                std::max(bottoms[At(pane)], ToPixel(height * stack.Bounds[At(pane + 1)] + 0.5, height));
        bottoms[At(panes)] = height;
        return bottoms;
    }

    Heights heights{};
    const bool maximized = stack.MaximizedIndex >= 0 && stack.MaximizedIndex < panes;
    double scale = 0;
    if (!maximized) {
        int minimized = 0;
        double shares = 0;
        for (int pane = 0; pane < panes; ++pane) {
            if (IsMinimized(stack, pane))
                ++minimized;
            else
                shares += Share(stack, pane);
        }
        scale = shares > 0 ? (height - minimized * MinPaneHeight) / shares : 0;
    }
    int left = height;
    for (int pane = panes - 1; pane >= 0; --pane) {
        int& own = heights[At(pane)];
        if (maximized)
            own = pane == stack.MaximizedIndex ? height - MinPaneHeight * (panes - 1) : MinPaneHeight;
        else if (pane == 0)
            own = left;
        else
            own =
                IsMinimized(stack, pane) ? MinPaneHeight : ToPixel(Share(stack, pane) * scale + 0.5, height);
        left -= own;
    }
    RaiseLowPanes(heights, panes);
    for (int pane = 0; pane < panes; ++pane)
        bottoms[At(pane + 1)] = bottoms[At(pane)] + heights[At(pane)];
    return bottoms;
}

void MovePaneBorder(sPaneStack& stack, PaneBottoms& bottoms, int border, int y)
{
    const int upper = border - 1;
    const int lower = border;
    const bool upperSmall = y - bottoms[At(border - 1)] <= SmallPane;
    const bool lowerSmall = bottoms[At(border + 1)] - y <= SmallPane;
    bottoms[At(border)] = y;

    int& maximized = stack.MaximizedIndex;
    if (maximized == upper && upperSmall) {
        maximized = lower;
        stack.Minimized[At(upper)] = 1;
        stack.Minimized[At(lower)] = 0;
    } else if (maximized == lower && lowerSmall) {
        maximized = upper;
        stack.Minimized[At(upper)] = 0;
        stack.Minimized[At(lower)] = 1;
    } else if (maximized == upper || maximized == lower) {
        KeepOnlyTwo(stack, upper, lower);
    } else {
        stack.Minimized[At(upper)] = upperSmall ? 1 : 0;
        stack.Minimized[At(lower)] = lowerSmall ? 1 : 0;
        const int normal = NormalPanes(stack);
        if (normal == 1)
            maximized = FirstNormalPane(stack);
        else if (normal == 0)
            maximized = lowerSmall ? upper : lower;
    }

    if (IsMinimized(stack, upper) || IsMinimized(stack, lower))
        return;
    const double above = stack.Bounds[At(border - 1)];
    const double room = bottoms[At(border + 1)] - bottoms[At(border - 1)];
    if (room > 0)
        stack.Bounds[At(border)] =
            (stack.Bounds[At(border + 1)] - above) * (bottoms[At(border)] - bottoms[At(border - 1)]) / room +
            above;
}

void MaximizePane(sPaneStack& stack, int pane)
{
    stack.MaximizedIndex = pane;
}

void MinimizePane(sPaneStack& stack, int pane)
{
    stack.Minimized[At(pane)] = 1;
    if (stack.MaximizedIndex == pane) {
        stack.MaximizedIndex = NoMaximizedPane;
        if (NormalPanes(stack) <= 1) {
            for (int other = 0; other < PaneCount(stack); ++other)
                if (other != pane)
                    stack.Minimized[At(other)] = 0;
        }
    }
    if (NormalPanes(stack) == 1)
        stack.MaximizedIndex = FirstNormalPane(stack);
}

void RestorePane(sPaneStack& stack, int pane)
{
    if (stack.MaximizedIndex == pane) {
        stack.MaximizedIndex = NoMaximizedPane;
        if (NormalPanes(stack) <= 1)
            stack.Minimized.fill(0);
        else
            stack.Minimized[At(pane)] = 0;
    } else if (stack.MaximizedIndex == NoMaximizedPane) {
        stack.Minimized[At(pane)] = 0;
    } else {
        KeepOnlyTwo(stack, pane, stack.MaximizedIndex);
    }
}

sPaneCommands OfferedCommands(const sPaneStack& stack, int pane)
{
    if (PaneCount(stack) == 1)
        return {};
    const bool maximized = stack.MaximizedIndex == pane;
    const bool collapsed = IsCollapsedPane(stack, pane);
    return {.Maximize = !maximized, .Minimize = !collapsed, .Restore = maximized || collapsed};
}

void ReplaceStudies(sPaneStack& stack, std::span<const int> studies)
{
    const sPaneStack old = stack;
    const int count = std::min(static_cast<int>(studies.size()), MaxPanes - 1);
    const auto oldPane = [&old](int kind) { // the pane of a study; 0 if it has none
        for (int pane = 1; pane < PaneCount(old); ++pane)
            if (old.StudyTypes[At(pane - 1)] == kind)
                return pane;
        return 0;
    };

    int fresh = 0;
    double kept = Share(old, 0);
    for (int k = 0; k < count; ++k) {
        const int from = oldPane(studies[At(k)]);
        fresh += from == 0 ? 1 : 0;
        kept += from == 0 ? 0 : Share(old, from);
    }
    const double part = 1.0 / (count + 1);
    const double scale = kept > 0 ? (1 - fresh * part) / kept : 0;

    stack.StudyCount = count;
    stack.StudyTypes.fill(0);
    stack.Bounds.fill(0);
    stack.Minimized.fill(0);
    stack.MaximizedIndex = old.MaximizedIndex == 0 ? 0 : NoMaximizedPane;
    stack.Minimized[0] = old.Minimized[0];
    stack.Bounds[1] = Share(old, 0) * scale;
    for (int k = 0; k < count; ++k) {
        const int pane = k + 1;
        const int from = oldPane(studies[At(k)]);
        stack.StudyTypes[At(k)] = studies[At(k)];
        stack.Bounds[At(pane + 1)] = stack.Bounds[At(pane)] + (from == 0 ? part : Share(old, from) * scale);
        stack.Minimized[At(pane)] = from == 0 ? 0 : old.Minimized[At(from)];
        if (from != 0 && old.MaximizedIndex == from)
            stack.MaximizedIndex = pane;
    }
    // The sum of the parts may differ from 1 by rounding.
    stack.Bounds[At(count + 1)] = 1.0;
}

} // namespace zantroq
