// Small panes for the tests of the painter; each shows one rule of drawing.
#pragma once

#include "scene/Chart2D.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zantroq::test {

using Pane = std::unique_ptr<CChart2D>;

// An empty pane of this size with dark text on white and value labels on the left.
Pane EmptyPane(int width, int height);

// Pseudo-random prices, the same in every run.
struct sBars
{
    std::vector<double> High, Low, Open, Close;
};
sBars WanderingBars(int count, unsigned seed = 1);

// Fits the axes: x from 1 to count, y over [low, high] with labels at four steps.
void FitAxes(CChart2D& pane, int count, double low, double high);

Pane CandlePane(int width, int height, int count, int candleWidth);
Pane PriceBarPane(int width, int height, int count);
Pane LinePane(int width, int height, const std::vector<double>& y);
Pane HistogramPane(int width, int height, const std::vector<double>& y, int barWidth, int chartType);
void LoadGroup(CPaneGroup& group, const std::vector<std::vector<double>>& series);
CPaneLabel& AddLabel(CChart2D& pane, const std::string& text, int attachment, int side);

// Every golden picture's name and pane.
std::vector<std::pair<std::string, Pane>> GoldenPanes();

} // namespace zantroq::test
