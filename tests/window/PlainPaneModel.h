// The rules of the pane stack implemented again, slowly and with one named pane at a time, for comparison.
#pragma once

#include <algorithm>
#include <vector>

namespace zantroq::test {

struct sPlainPane
{
    double Share = 0; // share of the whole, 0 to 1
    bool Minimized = false;
};

struct sPlainStack
{
    std::vector<sPlainPane> Panes;
    int Maximized = -1; // -1: none

    int Count() const { return static_cast<int>(Panes.size()); }
    sPlainPane& Of(int pane) { return Panes[static_cast<std::size_t>(pane)]; }
    const sPlainPane& Of(int pane) const { return Panes[static_cast<std::size_t>(pane)]; }
    std::vector<int> Normal() const
    {
        std::vector<int> normal;
        for (int pane = 0; pane < Count(); ++pane)
            if (!Of(pane).Minimized)
                normal.push_back(pane);
        return normal;
    }

    std::vector<int> Heights(int room) const
    {
        std::vector<int> heights(Panes.size(), 16);
        const int n = Count();
        if (16 * n > room) {
            int top = 0;
            double sum = 0;
            for (int pane = 0; pane < n; ++pane) {
                sum += Of(pane).Share;
                int bottom = pane == n - 1 ? room : static_cast<int>(room * sum + 0.5);
                heights[static_cast<std::size_t>(pane)] = bottom - top;
                top = bottom;
            }
            return heights;
        }
        if (Maximized >= 0) {
            heights[static_cast<std::size_t>(Maximized)] = room - 16 * (n - 1);
            return heights;
        }
        double shares = 0;
        int minimized = 0;
        for (const sPlainPane& pane : Panes)
            pane.Minimized ? void(++minimized) : void(shares += pane.Share);
        int left = room;
        for (int pane = n - 1; pane > 0; --pane) {
            int& height = heights[static_cast<std::size_t>(pane)];
            if (!Of(pane).Minimized)
                height = static_cast<int>(Of(pane).Share * ((room - minimized * 16) / shares) + 0.5);
            left -= height;
        }
        heights[0] = left;
        return heights;
    }

    // True if the rules leave a pane lower than 16 pixels although there is room for all.
    bool TooLow(int room) const
    {
        const auto heights = Heights(room);
        return 16 * Count() <= room && *std::min_element(heights.begin(), heights.end()) < 16;
    }

    void Minimize(int pane)
    {
        Of(pane).Minimized = true;
        if (Maximized == pane) {
            Maximized = -1;
            if (Normal().size() < 2)
                for (int other = 0; other < Count(); ++other)
                    Of(other).Minimized = other == pane;
        }
        if (Normal().size() == 1)
            Maximized = Normal().front();
    }

    void Maximize(int pane) { Maximized = pane; }

    void Restore(int pane)
    {
        if (Maximized == pane) {
            const bool all = Normal().size() < 2;
            Maximized = -1;
            for (int other = 0; other < Count(); ++other)
                if (all || other == pane)
                    Of(other).Minimized = false;
        } else if (Maximized >= 0) {
            OnlyThese(pane, Maximized);
        } else {
            Of(pane).Minimized = false;
        }
    }

    void OnlyThese(int one, int two)
    {
        for (int pane = 0; pane < Count(); ++pane)
            Of(pane).Minimized = pane != one && pane != two;
        Maximized = -1;
    }

    // Moves the border above pane `lower` so that the pane above is `above` and the lower pane `below` pixels
    // high.
    void Drag(int lower, int above, int below)
    {
        const int upper = lower - 1;
        const bool upperSmall = above < 20, lowerSmall = below < 20;
        if (Maximized == upper && upperSmall) {
            Maximized = lower;
            Of(upper).Minimized = true;
            Of(lower).Minimized = false;
        } else if (Maximized == lower && lowerSmall) {
            Maximized = upper;
            Of(upper).Minimized = false;
            Of(lower).Minimized = true;
        } else if (Maximized == upper || Maximized == lower) {
            OnlyThese(upper, lower);
        } else {
            Of(upper).Minimized = upperSmall;
            Of(lower).Minimized = lowerSmall;
            if (Normal().size() == 1)
                Maximized = Normal().front();
            else if (Normal().empty())
                Maximized = lowerSmall ? upper : lower;
        }
        if (!Of(upper).Minimized && !Of(lower).Minimized) {
            const double both = Of(upper).Share + Of(lower).Share;
            Of(upper).Share = both * above / (above + below);
            Of(lower).Share = both - Of(upper).Share;
        }
    }
};

} // namespace zantroq::test
