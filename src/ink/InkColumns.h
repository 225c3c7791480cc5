// Ink of candles that are one pixel wide: columns of pixels, each in one of two colors. Chart window's
// thread.
#pragma once

#include "platform/Color.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zantroq {

struct sInkColumn
{
    int Column, Top, Bottom; // device pixels, Bottom exclusive, inside the plot
    std::size_t First;       // index of its topmost pixel among the pixels of all columns
    bool operator==(const sInkColumn&) const = default;
};

class CInkColumns
{
public:
    void SetColors(ColorValue first, ColorValue second) { m_colors[0] = first, m_colors[1] = second; }
    ColorValue ColorOf(std::uint8_t shade) const { return m_colors[shade]; }

    // In the order they were added.
    std::span<const sInkColumn> Columns() const { return m_columns; }
    // The pixels of a column from the top: 0 for the first color, 1 for the second. Valid until the next
    // change.
    std::span<const std::uint8_t> Shades(const sInkColumn& column) const
    {
        return {m_shades.data() + column.First, static_cast<std::size_t>(column.Bottom - column.Top)};
    }

    void Add(int column, int top, int bottom, const std::uint8_t* shades)
    {
        m_columns.push_back({column, top, bottom, m_shades.size()});
        m_shades.insert(m_shades.end(), shades, shades + (bottom - top));
    }
    // Keeps the first `count` columns.
    void Cut(std::size_t count)
    {
        if (count >= m_columns.size())
            return;
        m_shades.resize(m_columns[count].First);
        m_columns.resize(count);
    }
    void Clear() { Cut(0); }

private:
    ColorValue m_colors[2] = {0, 0};
    std::vector<sInkColumn> m_columns;
    std::vector<std::uint8_t> m_shades;
};

} // namespace zantroq
