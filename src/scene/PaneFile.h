// A pane as JSON: the PANE object of snapshots and of pane files. The hole value is null; not-a-number and
// the infinities are the strings "nan", "inf" and "-inf"; every other number reads back exactly. Beside the
// fields of a snapshot an object "more" holds whatever else belongs to the state, so that a saved pane loads
// back whole; a file without it loads with the defaults of an empty pane. docs/snapshot.md describes the
// fields.
#pragma once

#include "scene/Chart2D.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>

namespace zantroq {

// What only the window knows of a pane.
struct sPanePlace
{
    int Control = 0;          // 341 to 351
    std::optional<int> Study; // the study's number; none for the price pane
    bool Visible = true;
    sPixelRect Rect; // in the window; an empty one stands for the size of the pane's box
};

nlohmann::json PaneToJson(const CChart2D& chart, const sPanePlace& place = {});

// Gives chart the state that the object describes, in one batch. Throws std::runtime_error, with one sentence
// that names the field, when anything is wrong; chart is then as it was. Interactive mode, view and batching
// are not part of the state.
void PaneFromJson(const nlohmann::json& pane, CChart2D& chart);

// The text of a pane file, the same bytes as PaneToJson(chart).dump() and several times as fast on long
// series.
std::string PaneToText(const CChart2D& chart);
// As PaneFromJson, from a text. Values nested deeper than a pane file ever has them, a NUL byte and a text
// that asks for more memory than there is are refused in the same way.
void PaneFromText(const std::string& text, CChart2D& chart);

} // namespace zantroq
