// Colors, sizes and styles of a pane's parts. Plain values that notify their scene of every change. Chart
// window's thread.
#pragma once

#include "platform/Color.h"
#include "scene/PaneNode.h"

#include <utility>

namespace zantroq {

enum LinePattern : int
{
    LineNone = 1,
    LineSolid = 2,
    LineLongDashes = 3,
    LineShortDashes = 5
};
enum SymbolShape : int
{
    SymbolNone = 1,
    SymbolMark = 3
};

class CPaneInterior : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    virtual ~CPaneInterior() = default;
    CPaneInterior(const CPaneInterior&) = delete;
    CPaneInterior& operator=(const CPaneInterior&) = delete;
    void SetBackground(ColorValue color)
    {
        if (m_set && m_background == color)
            return;
        m_set = true;
        m_background = color;
        Changed();
    }
    void SetForeground(ColorValue color) // also the color of axis text
    {
        if (m_foreground == color)
            return;
        m_foreground = color;
        Changed();
    }
    ColorValue Background() const { return m_background; }
    ColorValue Foreground() const { return m_foreground; }
    // False until a background is set. An interior without one is transparent.
    bool HasBackground() const { return m_set; }
    void ClearBackground()
    {
        if (std::exchange(m_set, false))
            Changed();
    }

protected:
    virtual void Changed() { Touch(); }

private:
    bool m_set = false;
    ColorValue m_background = 0xFFFFFF, m_foreground = 0x000000;
};

// A size or margin in pixels.
class CPixelValue : public CPaneNode
{
public:
    CPixelValue(CChart2D* chart, int value) : CPaneNode(chart), m_value(value) {}
    int Value() const { return m_value; }
    void SetValue(int pixels)
    {
        m_automatic = false;
        Assign(m_value, pixels);
    }
    void SetAutomatic(bool automatic) { m_automatic = automatic; }
    bool Automatic() const { return m_automatic; }

private:
    int m_value;
    bool m_automatic = true;
};

class CAreaBox : public CPaneNode
{
public:
    explicit CAreaBox(CChart2D* chart)
        : CPaneNode(chart), m_left(chart, 0), m_width(chart, 0), m_height(chart, 0)
    {
    }
    CPixelValue& Left() { return m_left; }
    CPixelValue& Width() { return m_width; }
    CPixelValue& Height() { return m_height; }
    const CPixelValue& Left() const { return m_left; }
    const CPixelValue& Width() const { return m_width; }
    const CPixelValue& Height() const { return m_height; }

private:
    CPixelValue m_left, m_width, m_height;
};

class CPlotFrame : public CPaneNode
{
public:
    explicit CPlotFrame(CChart2D* chart)
        : CPaneNode(chart),
          m_interior(chart),
          m_top(chart, 17),
          m_bottom(chart, 4),
          m_left(chart, 58),
          m_right(chart, 23)
    {
    }
    CPaneInterior& Interior() { return m_interior; }
    CPixelValue& TopMargin() { return m_top; }
    CPixelValue& BottomMargin() { return m_bottom; }
    CPixelValue& LeftMargin() { return m_left; }
    CPixelValue& RightMargin() { return m_right; }
    const CPaneInterior& Interior() const { return m_interior; }
    const CPixelValue& TopMargin() const { return m_top; }
    const CPixelValue& BottomMargin() const { return m_bottom; }
    const CPixelValue& LeftMargin() const { return m_left; }
    const CPixelValue& RightMargin() const { return m_right; }

private:
    CPaneInterior m_interior;
    CPixelValue m_top, m_bottom, m_left, m_right;
};

class CBarLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetBarWidth(int pixels) { Assign(m_width, pixels); }
    int BarWidth() const { return m_width; }

private:
    int m_width = 1;
};

class CCandleLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetFilled(bool filled) { Assign(m_filled, filled); }
    bool Filled() const { return m_filled; }

private:
    bool m_filled = false;
};

class CLineLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetPattern(int pattern) { Assign(m_pattern, pattern); }
    void SetColor(ColorValue color) { Assign(m_color, color); }
    void SetWidth(int pixels) { Assign(m_width, pixels); }
    int Pattern() const { return m_pattern; }
    ColorValue LineColor() const { return m_color; }
    int Width() const { return m_width; }

private:
    int m_pattern = LineSolid, m_width = 1;
    ColorValue m_color = 0;
};

class CFillLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetPattern(int pattern) { Assign(m_pattern, pattern); }
    void SetColor(ColorValue color) { Assign(m_color, color); }
    int Pattern() const { return m_pattern; }
    ColorValue FillColor() const { return m_color; }

private:
    int m_pattern = 0;
    ColorValue m_color = 0;
};

class CSymbolLook : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    void SetShape(int shape) { Assign(m_shape, shape); }
    void SetColor(ColorValue color) { Assign(m_color, color); }
    void SetSize(int pixels) { Assign(m_size, pixels); }
    int Shape() const { return m_shape; }
    ColorValue SymbolColor() const { return m_color; }
    int Size() const { return m_size; }

private:
    int m_shape = SymbolNone, m_size = 1;
    ColorValue m_color = 0;
};

class CSeriesStyle : public CPaneNode
{
public:
    explicit CSeriesStyle(CChart2D* chart) : CPaneNode(chart), m_line(chart), m_fill(chart), m_symbol(chart)
    {
    }
    CLineLook& LineLook() { return m_line; }
    CFillLook& FillLook() { return m_fill; }
    CSymbolLook& SymbolLook() { return m_symbol; }
    const CLineLook& LineLook() const { return m_line; }
    const CFillLook& FillLook() const { return m_fill; }
    const CSymbolLook& SymbolLook() const { return m_symbol; }

private:
    CLineLook m_line;
    CFillLook m_fill;
    CSymbolLook m_symbol;
};

} // namespace zantroq
