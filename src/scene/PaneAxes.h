// The axes of a pane: ends, spacings, labels and grid. Plain values that notify their scene of every change.
// Chart window's thread.
#pragma once

#include "scene/PaneLooks.h"

#include <string>
#include <utility>
#include <vector>

namespace zantroq {

// One end or spacing of an axis. Setting a value ends automatic mode.
class CAxisBound : public CPaneNode
{
public:
    CAxisBound(CChart2D* chart, double value) : CPaneNode(chart), m_value(value) {}
    double Value() const { return m_value; }
    void SetValue(double value)
    {
        Assign(m_automatic, false);
        Assign(m_value, value);
    }
    bool Automatic() const { return m_automatic; }
    void Restore(double value, bool automatic) // a saved state
    {
        Assign(m_automatic, automatic);
        Assign(m_value, value);
    }
    void SetKind(int kind) { m_kind = kind; } // kept with the scene, without effect of its own
    int Kind() const { return m_kind; }

private:
    double m_value;
    bool m_automatic = true;
    int m_kind = 0;
};

struct sTickLabel
{
    double Value = 0;
    std::string Text;
    bool operator==(const sTickLabel&) const = default;
};

class CTickLabels : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    int Count() const { return static_cast<int>(m_labels.size()); }
    const sTickLabel& Item(int number) const; // from 1; std::invalid_argument otherwise
    void Add(double value, std::string text)
    {
        m_labels.push_back({value, std::move(text)});
        Touch();
    }
    void RemoveAll()
    {
        if (m_labels.empty())
            return;
        m_labels.clear();
        Touch();
    }
    const std::vector<sTickLabel>& All() const { return m_labels; }

private:
    std::vector<sTickLabel> m_labels;
};

class CAxisGrid : public CPaneNode
{
public:
    explicit CAxisGrid(CChart2D* chart) : CPaneNode(chart), m_line(chart) {}
    void SetSpacing(double spacing) { Assign(m_spacing, spacing); } // 0 hides the grid
    double Spacing() const { return m_spacing; }
    CLineLook& LineLook() { return m_line; }
    const CLineLook& LineLook() const { return m_line; }

private:
    double m_spacing = 0;
    CLineLook m_line;
};

class CPaneAxis : public CPaneNode
{
public:
    explicit CPaneAxis(CChart2D* chart);
    CAxisBound& AxisOrigin() { return m_origin; } // automatic: bars start from 0
    CAxisBound& DataLow() { return m_dataLow; }
    CAxisBound& DataHigh() { return m_dataHigh; }
    CAxisBound& ViewLow() { return m_viewLow; }
    CAxisBound& ViewHigh() { return m_viewHigh; }
    CAxisBound& TickSpacing() { return m_tickSpacing; }
    CAxisBound& TickMarkSpacing() { return m_tickMarkSpacing; }
    CTickLabels& TickLabels() { return m_tickLabels; }
    CAxisGrid& AxisGrid() { return m_grid; }
    const CAxisBound& AxisOrigin() const { return m_origin; }
    const CAxisBound& DataLow() const { return m_dataLow; }
    const CAxisBound& DataHigh() const { return m_dataHigh; }
    const CAxisBound& ViewLow() const { return m_viewLow; }
    const CAxisBound& ViewHigh() const { return m_viewHigh; }
    const CAxisBound& TickSpacing() const { return m_tickSpacing; }
    const CAxisBound& TickMarkSpacing() const { return m_tickMarkSpacing; }
    const CTickLabels& TickLabels() const { return m_tickLabels; }
    const CAxisGrid& AxisGrid() const { return m_grid; }
    void SetLabelMethod(int method) { Assign(m_labelMethod, method); }
    int LabelMethod() const { return m_labelMethod; }
    void SetShown(bool shown) { Assign(m_shown, shown); }
    bool Shown() const { return m_shown; }
    // Settings 19, 21 and 22 and the multiplier of "y2": kept with the scene, without effect of their own.
    void SetSetting19(int value) { m_setting19 = value; }
    void SetSetting21(int value) { m_setting21 = value; }
    void SetSetting22(int value) { m_setting22 = value; }
    int Setting19() const { return m_setting19; }
    int Setting21() const { return m_setting21; }
    int Setting22() const { return m_setting22; }
    void SetMultiplier(double multiplier) { m_multiplier = multiplier; }
    double Multiplier() const { return m_multiplier; }

private:
    CAxisBound m_origin, m_dataLow, m_dataHigh, m_viewLow, m_viewHigh, m_tickSpacing, m_tickMarkSpacing;
    CTickLabels m_tickLabels;
    CAxisGrid m_grid;
    int m_labelMethod = 0, m_setting19 = 2, m_setting21 = 2, m_setting22 = 0;
    bool m_shown = true;
    double m_multiplier = 1.0;
};

class CPaneAxes : public CPaneNode
{
public:
    explicit CPaneAxes(CChart2D* chart) : CPaneNode(chart), m_x(chart), m_y(chart), m_y2(chart) {}
    CPaneAxis& Item(const std::string& name); // "x", "y" or "y2"; std::invalid_argument otherwise
    CPaneAxis& X() { return m_x; }
    CPaneAxis& Y() { return m_y; }
    CPaneAxis& Y2() { return m_y2; }
    const CPaneAxis& X() const { return m_x; }
    const CPaneAxis& Y() const { return m_y; }
    const CPaneAxis& Y2() const { return m_y2; }

private:
    CPaneAxis m_x, m_y, m_y2;
};

} // namespace zantroq
