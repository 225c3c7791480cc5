// Small panes for the painter's tests: each shows one rule of drawing.
#pragma once

#include "scene/Chart2D.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zantroq::test {

using Pane = std::unique_ptr<CChart2D>;

// A pane of that size with dark text on white, its value labels on the left, and no data.
Pane EmptyPane(int width, int height);

// Prices that wander without any randomness of the machine: the same on every run.
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
