#include "export/DialogJson.h"

#include <nlohmann/json.hpp>

#include <array>

namespace zantroq {

namespace {

using Json = nlohmann::ordered_json;

// In the order of ControlKind.
constexpr std::array<const char*, 11> KindNames{"combo", "check", "radio", "edit", "spin",  "button",
                                                "color", "list",  "date",  "time", "static"};

Json ControlToJson(const sControlState& control)
{
    Json json;
    json["kind"] = KindNames.at(static_cast<std::size_t>(control.Kind));
    json["label"] = control.Label;
    json["value"] = nullptr;
    if (const auto* text = std::get_if<std::string>(&control.Value))
        json["value"] = *text;
    else if (const auto* on = std::get_if<bool>(&control.Value))
        json["value"] = *on;
    else if (const auto* rows = std::get_if<std::vector<int>>(&control.Value))
        json["value"] = *rows;
    if (control.Kind == ControlKind::Combo)
        json["items"] = control.Items;
    else if (control.Kind == ControlKind::List)
        json["items"] = control.Rows;
    json["enabled"] = control.Enabled;
    json["visible"] = control.Visible;
    return json;
}

} // namespace

Json DialogToJson(const sDialogState& state)
{
    Json json;
    json["title"] = state.Title;
    if (state.Page) {
        json["page"] = *state.Page;
        json["pages"] = state.Pages;
    }
    json["size"] = {state.Width, state.Height};
    json["controls"] = Json::object();
    for (const auto& [id, control] : state.Controls)
        json["controls"][std::to_string(id)] = ControlToJson(control);
    return json;
}

} // namespace zantroq
