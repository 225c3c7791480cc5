// A pane's scene out of JSON, a text or a file. A first reading into a scene of its own is the check.
#include "scene/AxisBounds.h"
#include "scene/PaneFile.h"
#include "scene/PaneTextCheck.h"
#include "scene/PaneVectors.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <string_view>

namespace zantroq {

using nlohmann::json;

namespace {

[[noreturn]] void Wrong(const std::string& field, const std::string& what)
{
    throw std::runtime_error("pane file: " + field + ": " + what);
}

// A field of an object, with its place in the file for messages.
class CField
{
public:
    CField(const json& value, std::string path) : m_value(value), m_path(std::move(path)) {}

    CField At(const char* name) const
    {
        const auto found = Object().find(name);
        if (found == m_value.end())
            Wrong(m_path, std::string("\"") + name + "\" is missing");
        return {*found, m_path + "." + name};
    }
    bool Has(const char* name) const { return Object().contains(name); }
    CField At(std::size_t index) const
    {
        return {m_value.at(index), m_path + "[" + std::to_string(index) + "]"};
    }
    std::size_t Size() const
    {
        if (!m_value.is_array())
            Wrong(m_path, "not a list");
        return m_value.size();
    }
    void NeedSize(std::size_t size) const { NeedSize(Size(), size); }
    void NeedSize(std::size_t has, std::size_t size) const
    {
        if (has != size)
            Wrong(m_path, std::to_string(has) + " entries where there are to be " + std::to_string(size));
    }
    bool IsNull() const { return m_value.is_null(); }
    bool Bool() const
    {
        if (!m_value.is_boolean())
            Wrong(m_path, "neither true nor false");
        return m_value.get<bool>();
    }
    std::string Text() const
    {
        if (!m_value.is_string())
            Wrong(m_path, "not a text");
        return m_value.get<std::string>();
    }
    int Int(std::int64_t low = std::numeric_limits<int>::min(),
            std::int64_t high = std::numeric_limits<int>::max()) const
    {
        return static_cast<int>(Integer(low, high));
    }
    ColorValue Color() const
    {
        return static_cast<ColorValue>(Integer(0, std::numeric_limits<ColorValue>::max()));
    }
    double Number() const
    {
        if (m_value.is_number())
            return m_value.get<double>();
        if (m_value.is_null())
            return CPaneData::HoleValue();
        if (m_value.is_string()) {
            const std::string& text = m_value.get_ref<const std::string&>();
            if (text == "nan")
                return std::numeric_limits<double>::quiet_NaN();
            if (text == "inf" || text == "-inf")
                return text == "inf" ? std::numeric_limits<double>::infinity()
                                     : -std::numeric_limits<double>::infinity();
        }
        Wrong(m_path, "not a number");
    }
    std::vector<double> Numbers() const
    {
        std::vector<double> numbers(Size());
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const json& value = m_value[i];
            numbers[i] = value.is_number_float() ? *value.get_ptr<const double*>() : At(i).Number();
        }
        return numbers;
    }
    const json& Value() const { return m_value; }

private:
    const json& Object() const
    {
        if (!m_value.is_object())
            Wrong(m_path, "not an object");
        return m_value;
    }
    std::int64_t Integer(std::int64_t low, std::int64_t high) const
    {
        if (!m_value.is_number_integer())
            Wrong(m_path, "not a whole number");
        // The unsigned form holds numbers that the signed one cannot.
        const bool huge = m_value.is_number_unsigned() &&
                          m_value.get<std::uint64_t>() >
                              static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
        const std::int64_t number =
            huge ? std::numeric_limits<std::int64_t>::max() : m_value.get<std::int64_t>();
        if (huge || number < low || number > high)
            Wrong(m_path,
                  m_value.dump() + " is not between " + std::to_string(low) + " and " + std::to_string(high));
        return number;
    }

    const json& m_value;
    std::string m_path;
};

constexpr int LargestPixel = FarPixel;

void Read(const CField& field, CLineLook& line)
{
    line.SetPattern(field.At("pattern").Int());
    line.SetColor(field.At("color").Color());
    line.SetWidth(field.At("width").Int());
}

void Read(const CField& field, CPaneInterior& interior)
{
    interior.SetBackground(field.At("background").Color());
    interior.SetForeground(field.At("foreground").Color());
}

void Read(const CField& field, CSeriesStyle& style)
{
    Read(field.At("line"), style.LineLook());
    style.FillLook().SetPattern(field.At("fill").At("pattern").Int());
    style.FillLook().SetColor(field.At("fill").At("color").Color());
    style.SymbolLook().SetShape(field.At("symbol").At("shape").Int());
    style.SymbolLook().SetColor(field.At("symbol").At("color").Color());
    style.SymbolLook().SetSize(field.At("symbol").At("size").Int());
}

bool Lists(const CField& list, const char* name)
{
    list.Size();
    return std::any_of(list.Value().begin(), list.Value().end(),
                       [&](const json& entry) { return entry == name; });
}

void Read(const CField& field, CPaneAxis& axis)
{
    axis.SetShown(field.At("shown").Bool());
    axis.SetLabelMethod(field.At("labelMethod").Int());
    axis.AxisGrid().SetSpacing(field.At("gridSpacing").Number());
    Read(field.At("gridLine"), axis.AxisGrid().LineLook());
    const CField labels = field.At("tickLabels");
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
        const CField value = field.At(name);
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

// The numbers of a list: those that were taken out of the text, or else the field's own, for which `own` is
// the room.
std::span<const double> NumbersOf(const CField& field, const std::optional<std::vector<double>>* taken,
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

// Whether every series has as many points as the first one and a number for each, before there is room for
// them: a short text may ask for any number of points.
void CheckPointCounts(const CField& series, const CPaneVectors& vectors, std::size_t group)
{
    const auto size = [](const CField& list, const std::optional<std::vector<double>>* taken) {
        return taken && *taken ? (*taken)->size() : list.Size();
    };
    std::size_t firstPoints = 0, firstX = 0;
    for (std::size_t i = 0; i < series.Size(); ++i) {
        const CField field = series.At(i);
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
            Wrong("groups.series",
                  "the x values of series " + std::to_string(i + 1) + " differ from those of series 1");
        }
    }
}

void ReadData(const CField& series, CPaneData& data, const CPaneVectors& vectors, std::size_t group)
{
    const std::size_t count = series.Size();
    if (count > static_cast<std::size_t>(MaxSeries))
        Wrong("groups.series", std::to_string(count) + " series are more than a pane holds");
    CheckPointCounts(series, vectors, group);
    data.SetSeriesCount(0);
    data.SetSeriesCount(static_cast<int>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const CField field = series.At(i);
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
            Wrong("groups.series",
                  "the x values of series " + std::to_string(number) + " differ from those of series 1");
        }
        data.SetYVector(number, y);
        data.SetDrawnTo(number, field.At("drawnTo").Int());
        const bool more = field.Has("more");
        data.SetFirstPoint(number, more ? field.At("more").At("firstPoint").Int(0) : 1);
        const bool undrawn = more && field.At("more").Has("undrawn");
        data.SetUndrawn(number, undrawn ? field.At("more").At("undrawn").Int(0) : 0);
    }
}

void Read(const CField& field, CPaneGroup& group, const CPaneVectors& vectors, std::size_t number)
{
    group.SetChartType(field.At("type").Int());
    CPaneData& data = group.PaneData();
    data.SetFirstShownSeries(field.At("firstShownSeries").Int());
    data.SetLastShownSeries(field.At("lastShownSeries").Int());
    const bool more = field.Has("more");
    data.SetLayout(more ? field.At("more").At("layout").Int() : 1);
    const CField series = field.At("series");
    ReadData(series, data, vectors, number);
    group.RemoveStyles();
    for (std::size_t i = 0; i < series.Size(); ++i)
        Read(series.At(i), group.SeriesStyles(static_cast<int>(i) + 1));
    if (!more)
        return;
    const CField styles = field.At("more").At("styles");
    for (std::size_t i = 0; i < styles.Size(); ++i) {
        if (series.Size() + i >= static_cast<std::size_t>(MaxSeries))
            Wrong("groups.more.styles", "more styles than a pane holds");
        Read(styles.At(i), group.SeriesStyles(static_cast<int>(series.Size() + i) + 1));
    }
}

void Read(const CField& field, CPaneLabel& label)
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

void Read(const CField& field, CPixelValue& value, const CField* fixed, const char* name)
{
    value.SetValue(field.Int(-LargestPixel, LargestPixel));
    value.SetAutomatic(!fixed || !Lists(*fixed, name));
}

void ReadSizes(const CField& pane, CPaneArea& area)
{
    std::optional<CField> fixed, box;
    pane.At("rect").NeedSize(4);
    for (std::size_t i = 0; i < 4; ++i)
        pane.At("rect").At(i).Int(-LargestPixel, LargestPixel);
    if (pane.Has("more")) {
        fixed.emplace(pane.At("more").At("fixed"));
        box.emplace(pane.At("more").At("box"));
        box->NeedSize(3);
    }
    const CField* names = fixed ? &*fixed : nullptr;
    Read(box ? box->At(std::size_t{0}) : pane.At("rect").At(std::size_t{0}), area.AreaBox().Left(), names,
         "boxLeft");
    Read(box ? box->At(std::size_t{1}) : pane.At("rect").At(std::size_t{2}), area.AreaBox().Width(), names,
         "boxWidth");
    Read(box ? box->At(std::size_t{2}) : pane.At("rect").At(std::size_t{3}), area.AreaBox().Height(), names,
         "boxHeight");
    const CField plot = pane.At("plot");
    Read(plot.At("left"), area.PlotFrame().LeftMargin(), names, "left");
    Read(plot.At("right"), area.PlotFrame().RightMargin(), names, "right");
    Read(plot.At("top"), area.PlotFrame().TopMargin(), names, "top");
    Read(plot.At("bottom"), area.PlotFrame().BottomMargin(), names, "bottom");
}

// What a file without "more" leaves out becomes that of a new pane.
void ResetUntold(CChart2D& chart)
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

void Read(const CField& pane, CChart2D& chart, const CPaneVectors& vectors)
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
    const CField labels = pane.At("labels");
    const std::size_t count = labels.Size();
    chart.PaneLabels().RemoveAll();
    for (std::size_t i = 0; i < count; ++i)
        Read(labels.At(i), chart.PaneLabels().Add());
    CPaneMarker& marker = area.PaneMarkers("x");
    marker.SetShown(pane.At("marker").At("shown").Bool());
    marker.SetPoint(pane.At("marker").At("point").Int());
    Read(pane.At("marker").At("line"), marker.LineLook());
    if (!pane.Has("more"))
        return ResetUntold(chart);
    const CField more = pane.At("more");
    Read(more.At("areaInterior"), area.Interior());
    if (!more.At("areaInterior").At("opaque").Bool())
        area.Interior().ClearBackground();
    Read(more.At("plotInterior"), area.PlotFrame().Interior());
    if (!more.At("plotInterior").At("opaque").Bool())
        area.PlotFrame().Interior().ClearBackground();
    area.CandleLook().SetFilled(more.At("filledCandles").Bool());
    marker.SetLock(more.At("markerLock").Int());
}

// One batch of changes, unless there is one already.
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

void FromJson(const json& pane, CChart2D& chart, const CPaneVectors& vectors)
{
    CChart2D trial; // the first reading is the check
    Read(CField(pane, "pane"), trial, vectors);
    const COwnBatch batch(chart);
    Read(CField(pane, "pane"), chart, vectors);
}

// Whatever else a reading may throw, a lack of memory too, becomes the failure that callers know.
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

bool CChart2D::LoadFromFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    try {
        std::string text;
        std::vector<char> piece(1 << 20);
        while (file.read(piece.data(), static_cast<std::streamsize>(piece.size())) || file.gcount() > 0)
            text.append(piece.data(), static_cast<std::size_t>(file.gcount()));
        if (file.bad())
            return false;
        PaneFromText(text, *this);
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

} // namespace zantroq
