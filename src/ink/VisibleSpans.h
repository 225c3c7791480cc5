// Which parts of a pixel column's points are visible when each point is a stroke one pixel wide and later
// points cover earlier ones. Walks backwards and keeps of each point what no later point covers, whatever the
// points are. Lives for one drawing, on the chart window's thread.
#pragma once

#include "ink/BarSource.h"

#include <cstddef>
#include <vector>

namespace zantroq {

struct sSeenPart // rows of a column, Bottom exclusive, within the plot, and the point visible there
{
    int Top, Bottom;
    std::size_t Point;
};

// Which prices are examined before a point is taken. Open and close only decide colors, and reading them
// costs half of the memory traffic; but a point that lacks one of them is not drawn.
enum class PriceCheck
{
    HighAndLow, // a point without open or close may be found
    AllFour,
};

struct sCoveredValues;

class CVisibleSpans
{
public:
    // Parts are added to `found`. `source`, `map` and `found` outlive this object.
    CVisibleSpans(const sBarSource& source, const sPlotMap& map, PriceCheck check,
                  std::vector<sSeenPart>& found);

    // Points first to last, last exclusive, all of one column.
    void Find(std::size_t first, std::size_t last);

private:
    struct sPiece
    {
        int Top, Bottom;
    };

    bool FindBars(std::size_t first, std::size_t last);
    std::size_t FindBeyondOnePiece(std::size_t first, std::size_t i);
    bool TakeBeyond(std::size_t i, const sCoveredValues& covered);
    void Lengthen(std::size_t i, double least, double greatest, const sCoveredValues& covered);
    void TakeAny(std::size_t i);
    void Add(int top, int bottom, std::size_t i);
    void Cover(int top, int bottom, std::size_t i);

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sSeenPart>& m_found;
    const PriceCheck m_check;
    const bool m_bars, m_upwards; // m_upwards: greater values have smaller rows
    std::vector<sPiece> m_pieces; // covered so far, in order, apart from one another
};

} // namespace zantroq
