#include "ink/WideBars.h"

#include "ink/InkStyle.h"

#include <algorithm>

namespace zantroq {

void CWideBars::Draw(std::size_t i, int column)
{
    if (IsBarType(m_source.Type))
        return DrawBar(i, column);
    if (!m_source.IsComplete(i))
        return;
    if (m_source.Type == ChartCandles)
        DrawCandle(i, column);
    else
        DrawPriceBar(i, column);
}

void CWideBars::Emit(int left, int top, int right, int bottom, ColorValue color)
{
    left = std::max(left, m_map.Plot.Left);
    right = std::min(right, m_map.Plot.Right);
    top = std::max(top, m_map.Plot.Top);
    bottom = std::min(bottom, m_map.Plot.Bottom);
    if (left < right && top < bottom)
        m_rects.push_back({left, top, right, bottom, color});
}

void CWideBars::DrawBar(std::size_t i, int column)
{
    if (!IsDrawn(m_source.High[i]))
        return;
    const sRowSpan rows(m_map.Y, m_source.High[i], m_source.Origin);
    const int left = column - m_source.Width / 2;
    Emit(left, rows.Top, left + m_source.Width, rows.Bottom, m_source.Up);
}

void CWideBars::DrawPriceBar(std::size_t i, int column)
{
    const sRowSpan rows(m_map.Y, m_source.High[i], m_source.Low[i]);
    const int left = column - m_source.Width / 2, right = left + m_source.Width;
    const auto tick = [&](double value, int from, int to) {
        const int y = m_map.Y.Pixel(value) - (m_source.Width - 1) / 2;
        Emit(from, y, to, y + m_source.Width, m_source.Up);
    };
    if (m_source.Tick > 0)
        tick(m_source.Open[i], left - m_source.Tick, left);
    Emit(left, rows.Top, right, rows.Bottom, m_source.Up);
    if (m_source.Tick > 0)
        tick(m_source.Close[i], right, right + m_source.Tick);
}

void CWideBars::DrawCandle(std::size_t i, int column)
{
    const ColorValue color = m_source.IsUp(i) ? m_source.Up : m_source.Down;
    const sRowSpan whole(m_map.Y, m_source.High[i], m_source.Low[i]);
    const int wick = column - m_source.Wick / 2;
    Emit(wick, whole.Top, wick + m_source.Wick, whole.Bottom, color);
    if (m_source.Width <= m_source.Wick)
        return;
    const sRowSpan body(m_map.Y, m_source.Open[i], m_source.Close[i]);
    const int top = body.Top, bottom = body.Bottom;
    const int left = column - m_source.Width / 2, right = left + m_source.Width, edge = m_source.Wick;
    const bool framed = m_source.Outlined || !m_source.Filled;
    const ColorValue frame = m_source.Outlined && m_source.Filled ? m_source.Outline : color;
    const ColorValue inside = m_source.Filled ? color : m_source.Hollow;
    if (!framed || m_source.Width < 5 * edge || bottom - top < 3 * edge)
        return Emit(left, top, right, bottom, color);
    Emit(left, top, right, bottom, frame);
    Emit(left + edge, top + edge, right - edge, bottom - edge, inside);
}

} // namespace zantroq
