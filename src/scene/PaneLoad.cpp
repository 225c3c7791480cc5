#include "scene/AxisBounds.h"
#include "scene/PaneField.h"
#include "scene/PaneFile.h"
#include "scene/PaneTextCheck.h"
#include "scene/PaneVectors.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string_view>

namespace zantroq {

using nlohmann::json;

namespace {

constexpr int LargestPixel = FarPixel;

void Read(const CPaneField& field, CLineLook& line)
{
    line.SetPattern(field.At("pattern").Int());
    line.SetColor(field.At("color").Color());
    line.SetWidth(field.At("width").Int());
}

void Read(const CPaneField& field, CPaneInterior& interior)
{
    interior.SetBackground(field.At("background").Color());
    interior.SetForeground(field.At("foreground").Color());
}

void Read(const CPaneField& field, CSeriesStyle& style)
{
    Read(field.At("line"), style.LineLook());
    style.FillLook().SetPattern(field.At("fill").At("pattern").Int());
    style.FillLook().SetColor(field.At("fill").At("color").Color());
    style.SymbolLook().SetShape(field.At("symbol").At("shape").Int());
    style.SymbolLook().SetColor(field.At("symbol").At("color").Color());
    style.SymbolLook().SetSize(field.At("symbol").At("size").Int());
}

bool Lists(const CPaneField& list, const char* name)
{
    list.Size();
    return std::any_of(list.Value().begin(), list.Value().end(),
                       [&](const json& entry) { return entry == name; });
}

void Read(const CPaneField& field, CPaneAxis& axis)
{
    axis.SetShown(field.At("shown").Bool());
    axis.SetLabelMethod(field.At("labelMethod").Int());
    axis.AxisGrid().SetSpacing(field.At("gridSpacing").Number());
    Read(field.At("gridLine"), axis.AxisGrid().LineLook());
    const CPaneField labels = field.At("tickLabels");
    const std::size_t count = labels.Size();
    axis.TickLabels().RemoveAll();
    for (std::size_t i = 0; i < count; ++i) {
        labels.At(i).NeedSize(2);
        axis.TickLabels().Add(labels.At(i).At(std::size_t{0}).Number(),
                              labels.At(i).At(std::size_t{1}).Text());
    }
    const bool more = field.Has("more");
    for (const auto& [name, member] : AxisBounds) {
        CAxisBound& bound = const_cast<CAxisBound&>((axis.*member)());
        const CPaneField value = field.At(name);
        const bool automatic = more ? Lists(field.At("more").At("automatic"), name)
                                    : std::string_view(name) == "origin" && value.IsNull();
        bound.Restore(automatic && value.IsNull() ? 0.0 : value.Number(), automatic);
        const bool kind = more && field.At("more").At("kinds").Has(name);
        bound.SetKind(kind ? field.At("more").At("kinds").At(name).Int() : 0);
    }
    axis.SetSetting19(more ? field.At("more").At("setting19").Int() : 2);
    axis.SetSetting21(more ? field.At("more").At("setting21").Int() : 2);
    axis.SetSetting22(more ? field.At("more").At("setting22").Int() : 0);
    axis.SetMultiplier(more ? field.At("more").At("multiplier").Number() : 1.0);
}

// The numbers of a list: those taken out of the text beforehand, or else the field's own, which `own` then
// holds.
std::span<const double> NumbersOf(const CPaneField& field, const std::optional<std::vector<double>>* taken,
                                  std::vector<double>& own)
{
    if (taken && *taken)
        return **taken;
    own = field.Numbers();
    return own;
}

bool SameNumbers(std::span<const double> a, std::span<const double> b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double left, double right) {
        return left == right || (std::isnan(left) && std::isnan(right));
    });
}

// Fails unless every series has as many points as the first one and a number for each. Checked before memory
// is reserved: a short text may claim any number of points.
void CheckPointCounts(const CPaneField& series, const CPaneVectors& vectors, std::size_t group)
{
    const auto size = [](const CPaneField& list, const std::optional<std::vector<double>>* taken) {
        return taken && *taken ? (*taken)->size() : list.Size();
    };
    std::size_t firstPoints = 0, firstX = 0;
    for (std::size_t i = 0; i < series.Size(); ++i) {
        const CPaneField field = series.At(i);
        const auto points = static_cast<std::size_t>(field.At("pointCount").Int(0));
        const CPaneVectors::sSeries* taken = vectors.Find(group, i);
        const bool sameX = i > 0 && taken && taken->XOfFirst;
        const std::size_t x = sameX ? firstX : size(field.At("x"), taken ? &taken->X : nullptr);
        field.At("x").NeedSize(x, points);
        field.At("y").NeedSize(size(field.At("y"), taken ? &taken->Y : nullptr), points);
        if (i == 0) {
            firstPoints = points;
            firstX = x;
        } else if (points != firstPoints) {
            CPaneField::Fail("groups.series", "the x values of series " + std::to_string(i + 1) +
                                                  " differ from those of series 1");
        }
    }
}

void ReadData(const CPaneField& series, CPaneData& data, const CPaneVectors& vectors, std::size_t group)
{
    const std::size_t count = series.Size();
    if (count > static_cast<std::size_t>(MaxSeries))
        CPaneField::Fail("groups.series", std::to_string(count) + " series are more than a pane holds");
    CheckPointCounts(series, vectors, group);
    data.SetSeriesCount(0);
    data.SetSeriesCount(static_cast<int>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const CPaneField field = series.At(i);
        const int number = static_cast<int>(i) + 1;
        const CPaneVectors::sSeries* taken = vectors.Find(group, i);
        std::vector<double> ownX, ownY;
        const bool sameX = i > 0 && taken && taken->XOfFirst;
        const std::span<const double> x =
            sameX ? data.X() : NumbersOf(field.At("x"), taken ? &taken->X : nullptr, ownX);
        const std::span<const double> y = NumbersOf(field.At("y"), taken ? &taken->Y : nullptr, ownY);
        if (i == 0) {
            data.SetPointCount(number, static_cast<int>(x.size()));
            data.SetXVector(number, x);
        } else if (!sameX && !SameNumbers(x, data.X())) {
            CPaneField::Fail("groups.series", "the x values of series " + std::to_string(number) +
                                                  " differ from those of series 1");
        }
        data.SetYVector(number, y);
        data.SetDrawnTo(number, field.At("drawnTo").Int());
        const bool more = field.Has("more");
        data.SetFirstPoint(number, more ? field.At("more").At("firstPoint").Int(0) : 1);
        const bool undrawn = more && field.At("more").Has("undrawn");
        data.SetUndrawn(number, undrawn ? field.At("more").At("undrawn").Int(0) : 0);
    }
}

void Read(const CPaneField& field, CPaneGroup& group, const CPaneVectors& vectors, std::size_t number)
{
    group.SetChartType(field.At("type").Int());
    CPaneData& data = group.PaneData();
    data.SetFirstShownSeries(field.At("firstShownSeries").Int());
    data.SetLastShownSeries(field.At("lastShownSeries").Int());
    const bool more = field.Has("more");
    data.SetLayout(more ? field.At("more").At("layout").Int() : 1);
    const CPaneField series = field.At("series");
    ReadData(series, data, vectors, number);
    group.RemoveStyles();
    for (std::size_t i = 0; i < series.Size(); ++i)
        Read(series.At(i), group.SeriesStyles(static_cast<int>(i) + 1));
    if (!more)
        return;
    const CPaneField styles = field.At("more").At("styles");
    for (std::size_t i = 0; i < styles.Size(); ++i) {
        if (series.Size() + i >= static_cast<std::size_t>(MaxSeries))
            CPaneField::Fail("groups.more.styles", "more styles than a pane holds");
        Read(styles.At(i), group.SeriesStyles(static_cast<int>(series.Size() + i) + 1));
    }
}

void Read(const CPaneField& field, CPaneLabel& label)
{
    label.SetShown(field.At("shown").Bool());
    label.SetText(field.At("text").Text());
    label.Interior().SetBackground(field.At("background").Color());
    label.Interior().SetForeground(field.At("foreground").Color());
    label.SetAttachment(field.At("attachment").Int());
    field.At("pixel").NeedSize(2);
    label.SetPixelAnchor(field.At("pixel").At(std::size_t{0}).Int(),
                         field.At("pixel").At(std::size_t{1}).Int());
    field.At("data").NeedSize(2);
    label.SetDataAnchor(field.At("data").At(std::size_t{0}).Number(),
                        field.At("data").At(std::size_t{1}).Number());
    label.SetAnchorSide(field.At("anchorSide").Int());
    if (field.Has("more")) {
        label.SetBorder(field.At("more").At("border").Int());
        label.SetBoxAttachment(field.At("more").At("boxAttachment").Int());
        label.SetBoxEdge(field.At("more").At("boxEdge").Int());
    }
}

void Read(const CPaneField& field, CPixelValue& value, const CPaneField* fixed, const char* name)
{
    value.SetValue(field.Int(-LargestPixel, LargestPixel));
    value.SetAutomatic(!fixed || !Lists(*fixed, name));
}

void ReadSizes(const CPaneField& pane, CPaneArea& area)
{
    std::optional<CPaneField> fixed, box;
    pane.At("rect").NeedSize(4);
    for (std::size_t i = 0; i < 4; ++i)
        pane.At("rect").At(i).Int(-LargestPixel, LargestPixel);
    if (pane.Has("more")) {
        fixed.emplace(pane.At("more").At("fixed"));
        box.emplace(pane.At("more").At("box"));
        box->NeedSize(3);
    }
    const CPaneField* names = fixed ? &*fixed : nullptr;
    Read(box ? box->At(std::size_t{0}) : pane.At("rect").At(std::size_t{0}), area.AreaBox().Left(), names,
         "boxLeft");
    Read(box ? box->At(std::size_t{1}) : pane.At("rect").At(std::size_t{2}), area.AreaBox().Width(), names,
         "boxWidth");
    Read(box ? box->At(std::size_t{2}) : pane.At("rect").At(std::size_t{3}), area.AreaBox().Height(), names,
         "boxHeight");
    const CPaneField plot = pane.At("plot");
    Read(plot.At("left"), area.PlotFrame().LeftMargin(), names, "left");
    Read(plot.At("right"), area.PlotFrame().RightMargin(), names, "right");
    Read(plot.At("top"), area.PlotFrame().TopMargin(), names, "top");
    Read(plot.At("bottom"), area.PlotFrame().BottomMargin(), names, "bottom");
}

// Sets everything that a file without "more" leaves out to what a new pane has.
void ResetOmitted(CChart2D& chart)
{
    const CChart2D fresh;
    CPaneArea& area = chart.PaneArea();
    const auto reset = [](CPaneInterior& interior, const CPaneInterior& unset) {
        interior.SetBackground(unset.Background());
        interior.SetForeground(unset.Foreground());
        interior.ClearBackground();
    };
    reset(area.Interior(), fresh.PaneArea().Interior());
    reset(area.PlotFrame().Interior(), fresh.PaneArea().PlotFrame().Interior());
    area.CandleLook().SetFilled(fresh.PaneArea().CandleLook().Filled());
    area.PaneMarkers("x").SetLock(fresh.PaneArea().Marker().Lock());
}

void Read(const CPaneField& pane, CChart2D& chart, const CPaneVectors& vectors)
{
    pane.At("control").Int();
    if (!pane.At("study").IsNull())
        pane.At("study").Int();
    pane.At("visible").Bool();
    CPaneArea& area = chart.PaneArea();
    ReadSizes(pane, area);
    area.BarLook().SetBarWidth(pane.At("barWidth").Int());
    Read(pane.At("interior"), chart.PaneInterior());
    Read(pane.At("axes").At("x"), area.PaneAxes().X());
    Read(pane.At("axes").At("y"), area.PaneAxes().Y());
    Read(pane.At("axes").At("y2"), area.PaneAxes().Y2());
    pane.At("groups").NeedSize(2);
    for (std::size_t i = 0; i < 2; ++i)
        Read(pane.At("groups").At(i), chart.PaneGroups(static_cast<int>(i) + 1), vectors, i);
    const CPaneField labels = pane.At("labels");
    const std::size_t count = labels.Size();
    chart.PaneLabels().RemoveAll();
    for (std::size_t i = 0; i < count; ++i)
        Read(labels.At(i), chart.PaneLabels().Add());
    CPaneMarker& marker = area.PaneMarkers("x");
    marker.SetShown(pane.At("marker").At("shown").Bool());
    marker.SetPoint(pane.At("marker").At("point").Int());
    Read(pane.At("marker").At("line"), marker.LineLook());
    if (!pane.Has("more"))
        return ResetOmitted(chart);
    const CPaneField more = pane.At("more");
    Read(more.At("areaInterior"), area.Interior());
    if (!more.At("areaInterior").At("opaque").Bool())
        area.Interior().ClearBackground();
    Read(more.At("plotInterior"), area.PlotFrame().Interior());
    if (!more.At("plotInterior").At("opaque").Bool())
        area.PlotFrame().Interior().ClearBackground();
    area.CandleLook().SetFilled(more.At("filledCandles").Bool());
    marker.SetLock(more.At("markerLock").Int());
}

// A batch of changes, unless the scene is in one already.
class COwnBatch
{
public:
    explicit COwnBatch(CChart2D& chart) : m_chart(chart), m_batched(chart.Batched())
    {
        if (!m_batched)
            m_chart.SetBatched(true);
    }
    ~COwnBatch()
    {
        if (!m_batched)
            m_chart.SetBatched(false);
    }
    COwnBatch(const COwnBatch&) = delete;
    COwnBatch& operator=(const COwnBatch&) = delete;

private:
    CChart2D& m_chart;
    const bool m_batched;
};

// Reads into another scene first, so that an error leaves chart as it was.
void FromJson(const json& pane, CChart2D& chart, const CPaneVectors& vectors)
{
    CChart2D trial;
    Read(CPaneField(pane, "pane"), trial, vectors);
    const COwnBatch batch(chart);
    Read(CPaneField(pane, "pane"), chart, vectors);
}

// Turns every other exception of `read`, lack of memory included, into std::runtime_error.
template<class F> void ReadOrFail(F read)
{
    try {
        read();
    } catch (const std::runtime_error&) {
        throw;
    } catch (const json::exception& error) {
        throw std::runtime_error(std::string("pane file: not JSON: ") + error.what());
    } catch (const std::exception& error) {
        throw std::runtime_error(std::string("pane file: cannot be held: ") + error.what());
    }
}

} // namespace

void PaneFromJson(const json& pane, CChart2D& chart)
{
    ReadOrFail([&] { FromJson(pane, chart, {}); });
}

void PaneFromText(const std::string& text, CChart2D& chart)
{
    ReadOrFail([&] {
        CPaneVectors vectors;
        const std::optional<std::string> rest = vectors.TakeFrom(text);
        const std::string& parsed = rest ? *rest : text; // without the long lists, as a rule
        CheckPaneText(parsed);
        FromJson(json::parse(parsed), chart, vectors);
    });
}

} // namespace zantroq
