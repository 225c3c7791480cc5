#include "scene/AxisBounds.h"
#include "scene/PaneFile.h"
#include "scene/PaneVectors.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <string_view>
#include <utility>

namespace zantroq {

using nlohmann::json;

namespace {

json NumberToJson(double value)
{
    if (value == HoleValue)
        return nullptr;
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value > 0 ? "inf" : "-inf";
    return value;
}

json NumbersToJson(std::span<const double> values)
{
    json::array_t list;
    list.reserve(values.size());
    for (const double value : values)
        list.push_back(NumberToJson(value));
    return list;
}

json ToJson(const CLineLook& line)
{
    return {{"pattern", line.Pattern()}, {"color", line.LineColor()}, {"width", line.Width()}};
}

json ToJson(const CPaneInterior& interior)
{
    return {{"background", interior.Background()}, {"foreground", interior.Foreground()}};
}

json InnerToJson(const CPaneInterior& interior)
{
    json object = ToJson(interior);
    object["opaque"] = interior.HasBackground();
    return object;
}

json ToJson(const CSeriesStyle& style)
{
    return {{"line", ToJson(style.LineLook())},
            {"fill", {{"pattern", style.FillLook().Pattern()}, {"color", style.FillLook().FillColor()}}},
            {"symbol",
             {{"shape", style.SymbolLook().Shape()},
              {"color", style.SymbolLook().SymbolColor()},
              {"size", style.SymbolLook().Size()}}}};
}

json ToJson(const CPaneAxis& axis)
{
    json labels = json::array(), automatic = json::array(), kinds = json::object();
    for (const sTickLabel& label : axis.TickLabels().All())
        labels.push_back({NumberToJson(label.Value), label.Text});
    json object = {{"shown", axis.Shown()},
                   {"labelMethod", axis.LabelMethod()},
                   {"gridSpacing", NumberToJson(axis.AxisGrid().Spacing())},
                   {"gridLine", ToJson(axis.AxisGrid().LineLook())},
                   {"tickLabels", std::move(labels)}};
    for (const auto& [name, member] : AxisBounds) {
        const CAxisBound& bound = (axis.*member)();
        object[name] = NumberToJson(bound.Value());
        if (bound.Automatic())
            automatic.push_back(name);
        if (bound.Kind() != 0)
            kinds[name] = bound.Kind();
    }
    if (axis.AxisOrigin().Automatic())
        object["origin"] = nullptr;
    object["more"] = {{"automatic", std::move(automatic)}, {"kinds", std::move(kinds)},
                      {"setting19", axis.Setting19()},     {"setting21", axis.Setting21()},
                      {"setting22", axis.Setting22()},     {"multiplier", NumberToJson(axis.Multiplier())}};
    return object;
}

// Whether the x and y values of the series are written, or empty lists for a writer that fills them in
// itself.
enum class Vectors
{
    Written,
    Empty,
};

json ToJson(const CPaneGroup& group, Vectors vectors)
{
    const CPaneData& data = group.PaneData();
    CChart2D none;
    const CSeriesStyle unset(&none); // the look of a series without a style
    json series = json::array(), styles = json::array();
    const json x = vectors == Vectors::Written ? NumbersToJson(data.X()) : json::array();
    for (int number = 1; number <= data.SeriesCount(); ++number) {
        const CSeriesStyle* style = group.FindStyle(number);
        json object = ToJson(style ? *style : unset);
        object["pointCount"] = data.PointCount(number);
        object["drawnTo"] = data.DrawnTo(number);
        object["x"] = x;
        object["y"] = vectors == Vectors::Written ? NumbersToJson(data.Y(number)) : json::array();
        object["more"] = {{"firstPoint", data.FirstPoint(number)}};
        if (data.Undrawn(number) > 0)
            object["more"]["undrawn"] = data.Undrawn(number);
        series.push_back(std::move(object));
    }
    for (int number = data.SeriesCount() + 1; number <= group.StyleCount(); ++number)
        styles.push_back(ToJson(*group.FindStyle(number)));
    return {{"type", group.Type()},
            {"firstShownSeries", data.FirstShownSeries()},
            {"lastShownSeries", data.LastShownSeries()},
            {"series", std::move(series)},
            {"more", {{"layout", data.Layout()}, {"styles", std::move(styles)}}}};
}

json ToJson(const CPaneLabel& label)
{
    return {{"shown", label.Shown()},
            {"text", label.Text()},
            {"background", label.Interior().Background()},
            {"foreground", label.Interior().Foreground()},
            {"attachment", label.Attachment()},
            {"pixel", {label.PixelX(), label.PixelY()}},
            {"data", {NumberToJson(label.DataX()), NumberToJson(label.DataY())}},
            {"anchorSide", label.Side()},
            {"more",
             {{"border", label.Border()},
              {"boxAttachment", label.BoxAttachment()},
              {"boxEdge", label.BoxEdge()}}}};
}

json SceneToJson(const CChart2D& chart, const sPanePlace& place, Vectors vectors)
{
    const CPaneArea& area = chart.PaneArea();
    const CAreaBox& box = area.AreaBox();
    const CPlotFrame& frame = area.PlotFrame();
    sPixelRect rect = place.Rect;
    if (rect.Width() == 0 && rect.Height() == 0)
        rect = {box.Left().Value(), 0, box.Left().Value() + box.Width().Value(), box.Height().Value()};
    json labels = json::array(), fixed = json::array();
    for (int number = 1; number <= chart.PaneLabels().Count(); ++number)
        labels.push_back(ToJson(chart.PaneLabels().Item(number)));
    const std::pair<const char*, const CPixelValue*> pixels[] = {
        {"boxLeft", &box.Left()},         {"boxWidth", &box.Width()},      {"boxHeight", &box.Height()},
        {"left", &frame.LeftMargin()},    {"right", &frame.RightMargin()}, {"top", &frame.TopMargin()},
        {"bottom", &frame.BottomMargin()}};
    for (const auto& [name, value] : pixels)
        if (!value->Automatic())
            fixed.push_back(name);
    return {{"control", place.Control},
            {"study", place.Study ? json(*place.Study) : json(nullptr)},
            {"visible", place.Visible},
            {"rect", {rect.Left, rect.Top, rect.Width(), rect.Height()}},
            {"plot",
             {{"left", frame.LeftMargin().Value()},
              {"right", frame.RightMargin().Value()},
              {"top", frame.TopMargin().Value()},
              {"bottom", frame.BottomMargin().Value()}}},
            {"barWidth", area.BarLook().BarWidth()},
            {"interior", ToJson(chart.PaneInterior())},
            {"axes",
             {{"x", ToJson(area.PaneAxes().X())},
              {"y", ToJson(area.PaneAxes().Y())},
              {"y2", ToJson(area.PaneAxes().Y2())}}},
            {"groups", {ToJson(chart.PaneGroups(1), vectors), ToJson(chart.PaneGroups(2), vectors)}},
            {"labels", std::move(labels)},
            {"marker",
             {{"shown", area.Marker().Shown()},
              {"point", area.Marker().Point()},
              {"line", ToJson(area.Marker().LineLook())}}},
            {"more",
             {{"box", {box.Left().Value(), box.Width().Value(), box.Height().Value()}},
              {"areaInterior", InnerToJson(area.Interior())},
              {"plotInterior", InnerToJson(frame.Interior())},
              {"filledCandles", area.CandleLook().Filled()},
              {"markerLock", area.Marker().Lock()},
              {"fixed", std::move(fixed)}}}};
}

} // namespace

json PaneToJson(const CChart2D& chart, const sPanePlace& place)
{
    return SceneToJson(chart, place, Vectors::Written);
}

std::string PaneToText(const CChart2D& chart)
{
    const std::string scene =
        SceneToJson(chart, {}, Vectors::Empty).dump(-1, ' ', false, json::error_handler_t::replace);
    // Names are written in alphabetical order, so a series ends in its two empty lists. No string contains
    // these marks, since a quote inside a string is escaped.
    constexpr std::string_view xMark = "\"x\":[]", lists = ",\"y\":[]";
    std::string text;
    std::size_t copied = 0;
    for (const int group : {1, 2}) {
        const CPaneData& data = chart.PaneGroups(group).PaneData();
        std::string x = "\"x\":";
        if (data.SeriesCount() > 0)
            AppendNumbers(x, data.X());
        constexpr std::size_t usualNumber = 20; // characters
        text.reserve(text.size() + scene.size() +
                     static_cast<std::size_t>(data.SeriesCount()) *
                         (x.size() + data.X().size() * usualNumber));
        for (int series = 1; series <= data.SeriesCount(); ++series) {
            const std::size_t at = scene.find(xMark, copied);
            text.append(scene, copied, at - copied);
            text += x;
            text += ",\"y\":";
            AppendNumbers(text, data.Y(series));
            copied = at + xMark.size() + lists.size();
        }
    }
    text.append(scene, copied);
    return text;
}

} // namespace zantroq
