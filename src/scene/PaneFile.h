// A pane as JSON: the PANE object of snapshots and of pane files. The hole value is null; not-a-number and
// the infinities are the strings "nan", "inf" and "-inf"; every other number reads back exactly. In addition
// to the fields of a snapshot, an object "more" holds the rest of the state, so that a saved pane is restored
// completely; a file without it loads with the defaults of an empty pane. docs/snapshot.md and
// docs/pane-file.md describe the fields. Any thread that has the scene to itself.
#pragma once

#include "scene/Chart2D.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>

namespace zantroq {

// What the window knows of a pane and the scene does not.
struct sPanePlace
{
    int Control = 0;          // 341 to 351
    std::optional<int> Study; // the study's number; empty for the price pane
    bool Visible = true;
    sPixelRect Rect; // in the window; if empty, the pane's box is written instead
};

nlohmann::json PaneToJson(const CChart2D& chart, const sPanePlace& place = {});

// Sets the state of chart to what the object describes, in one batch. Throws std::runtime_error, with one
// sentence that names the field, when anything is wrong; chart is then unchanged. Interactive mode, view and
// batching are not part of the state.
void PaneFromJson(const nlohmann::json& pane, CChart2D& chart);

// The text of a pane file: the same bytes as PaneToJson(chart).dump(), several times faster on long series.
std::string PaneToText(const CChart2D& chart);
// As PaneFromJson, from a text. Also refuses values nested deeper than in any pane file, a NUL byte, and a
// text that asks for more memory than there is.
void PaneFromText(const std::string& text, CChart2D& chart);

// Write and read a pane file. False when the file cannot be written, read or understood; chart is then
// unchanged.
bool SavePaneFile(const CChart2D& chart, const std::string& path);
bool LoadPaneFile(const std::string& path, CChart2D& chart);

} // namespace zantroq
