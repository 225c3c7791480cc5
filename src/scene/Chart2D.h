// One pane as a scene: plain values for axes, series, labels and marker, and the geometry that goes with
// them. It paints nothing; a view (CPanePainter in qt/paint) turns it into pixels. Lives on the chart
// window's thread.
//
// Numbering: series, points, groups and labels count from 1. A pane's x values are 1 to the number of points
// shown. Colors are 32-bit integers with red in the low byte. Pixels are the pane's own, from its top left
// corner, before any device pixel ratio.
#pragma once

#include "scene/PaneArea.h"
#include "scene/PaneGroup.h"
#include "scene/PaneLabels.h"
#include "scene/PixelRect.h"

#include <array>
#include <cstdint>
#include <string>

namespace zantroq {

class CChart2D;

// Shows the scene. Notified once per change, or once per batch.
class IPaneView
{
public:
    virtual ~IPaneView() = default;
    virtual void PaneChanged() = 0;
};

// A page that DrawToDevice paints on. Pixels are pixels of the device.
class IPrintDevice
{
public:
    virtual ~IPrintDevice() = default;
    // False when the device failed.
    virtual bool PaintPane(const CChart2D& pane, int left, int top, int width, int height) = 0;
};

class CChart2D
{
public:
    CChart2D();
    ~CChart2D();
    CChart2D(const CChart2D&) = delete;
    CChart2D& operator=(const CChart2D&) = delete;

    // The view that repaints; null for none. Not owned.
    void SetView(IPaneView* view) { m_view = view; }

    CPaneInterior& PaneInterior() { return m_interior; }
    CPaneArea& PaneArea() { return m_area; }
    CPaneGroup& PaneGroups(int number); // 1 or 2; std::invalid_argument otherwise
    CPaneLabels& PaneLabels() { return m_labels; }
    const CPaneInterior& PaneInterior() const { return m_interior; }
    const CPaneArea& PaneArea() const { return m_area; }
    const CPaneGroup& PaneGroups(int number) const;
    const CPaneLabels& PaneLabels() const { return m_labels; }

    // True suspends repainting; false resumes it and repaints once if anything changed meanwhile.
    void SetBatched(bool batched);
    bool Batched() const { return m_batched; }
    void SetInteractive(bool interactive) { m_interactive = interactive; }
    bool Interactive() const { return m_interactive; }

    // The whole state as a pane file (JSON, see PaneFile.h). False when the file cannot be written, read or
    // understood; a failed load leaves the state unchanged.
    bool SaveToFile(const std::string& path) const;
    bool LoadFromFile(const std::string& path);

    // Paints the pane into a box of a print device; the two fixed numbers are always 3 and 4.
    bool DrawToDevice(IPrintDevice& device, int three, int four, int left, int top, int width,
                      int height) const;

    // The pane's size in pixels is the size of the AreaBox; the plot is the rectangle inside the margins.
    // A pane smaller than its margins has an empty plot: Right is then Left, or Bottom Top.
    int PixelWidth() const { return m_area.AreaBox().Width().Value(); }
    int PixelHeight() const { return m_area.AreaBox().Height().Value(); }
    sPixelRect PlotRect() const;

    // Called by the objects of the tree at each change; TouchData by the vectors of a group, which record
    // their changes themselves.
    void Touch();
    void TouchData();
    // Increases with every change except changes of the groups' points.
    std::uint64_t Revision() const { return m_revision; }

private:
    void NotifyView();

    std::uint64_t m_revision = 0;
    IPaneView* m_view = nullptr;
    bool m_batched = false, m_changed = false, m_interactive = true;
    CPaneInterior m_interior;
    CPaneArea m_area;
    CPaneGroup m_groups[2];
    CPaneLabels m_labels;
};

} // namespace zantroq
