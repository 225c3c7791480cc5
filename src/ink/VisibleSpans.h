// What is seen of a pixel column's points when each is a stroke of a pixel's width and the later ones lie on
// top, whatever the points are: walked backwards, of each what no later point covers. Lives for one drawing,
// on the chart window's thread.
#pragma once

#include "ink/BarSource.h"

#include <cstddef>
#include <vector>

namespace zantroq {

struct sSeenPart // rows of a column, Bottom exclusive, within the plot, and the point that shows there
{
    int Top, Bottom;
    std::size_t Point;
};

class CVisibleSpans
{
public:
    // Parts are added to `found`; all three outlive this object.
    CVisibleSpans(const sBarSource& source, const sPlotMap& map, std::vector<sSeenPart>& found);

    // Looks at all four prices of each point before it is taken; else a point without open or close may be
    // found.
    void ExamineAll() { m_examineAll = true; }
    // Points first to last, exclusive.
    void Find(std::size_t first, std::size_t last);

private:
    struct sPiece
    {
        int Top, Bottom;
    };

    bool FindBars(std::size_t first, std::size_t last);
    std::size_t FindBeyondOnePiece(std::size_t first, std::size_t i);
    void TakeAny(std::size_t i);
    void Add(int top, int bottom, std::size_t i);
    void Cover(int top, int bottom, std::size_t i);

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sSeenPart>& m_found;
    const bool m_bars, m_plainRows; // greater values stand higher
    bool m_examineAll = false;
    std::vector<sPiece> m_pieces; // covered so far, in order, apart
};

} // namespace zantroq
