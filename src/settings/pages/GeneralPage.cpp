#include "settings/pages/GeneralPage.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr int LargestPercent = 99, LargestItems = 999;

std::vector<std::string> PointTexts()
{
    std::vector<std::string> texts;
    for (const int points : DisplayMaxPoints)
        texts.push_back(std::to_string(points));
    return texts;
}

// An unchanged value is kept, even if it is out of the field's range.
std::int32_t Held(std::int32_t wanted, std::int32_t before, int largest)
{
    return wanted == before ? before : std::clamp(wanted, 1, largest);
}

} // namespace

void CSettingPage::Start(const sChartSettings& settings)
{
    m_form.SetItems(AxisSide, {"Left", "Right"});
    m_form.SetIndex(AxisSide, settings.AxisOnRight ? 1 : 0);
    m_form.SetItems(PointsShown, PointTexts());
    m_form.SetIndex(PointsShown, settings.PtsIndex);
    m_form.SetChecked(Grid, settings.Grid != 0);
    m_form.SetItems(GridStyle, {"Short-Dashed", "Line"});
    m_form.SetIndex(GridStyle, settings.GridStyle);
    m_form.SetChecked(settings.FixedScale ? FixedScale : FlexibleScale, true);
    m_form.SetChecked(ResetNow, false);
    m_form.SetEnabled(ResetNow, settings.FixedScale);
    m_form.SetItems(ChartType, {"H/L/O/C", "Candlestick"});
    m_form.SetIndex(ChartType, settings.CandleStyle);
    m_form.SetChecked(settings.ScrollByItems ? ScrollByItems : ScrollByPercent, true);
    m_form.SetRange(ScrollPercentSpin, 1, LargestPercent);
    m_form.SetRange(ScrollItemsSpin, 1, LargestItems);
    m_percent.Show(m_form, settings.ScrollPercent);
    m_items.Show(m_form, settings.ScrollItems);
}

void CSettingPage::OnChanged(int id)
{
    if (id == FlexibleScale || id == FixedScale)
        FollowScale();
}

// A scale that becomes fixed is recomputed first.
void CSettingPage::FollowScale()
{
    const bool fixed = m_form.Checked(FixedScale);
    m_form.SetChecked(ResetNow, fixed);
    m_form.SetEnabled(ResetNow, fixed);
}

std::optional<sRefusal> CSettingPage::Accept()
{
    if (m_form.Index(ChartType) < 0)
        return sRefusal{"You must select a chart type.", ErrorCaption, ChartType};
    if (m_form.Index(PointsShown) < 0)
        return sRefusal{"You must select a valid No. of Display Pts.", ErrorCaption, PointsShown};
    if (m_form.Checked(Grid) && m_form.Index(GridStyle) < 0)
        return sRefusal{"You must select a valid No. of Grid Style.", ErrorCaption, GridStyle};
    return std::nullopt;
}

void CSettingPage::CopyTo(sChartSettings& settings) const
{
    if (const int side = m_form.Index(AxisSide); side >= 0)
        settings.AxisOnRight = side == 1;
    settings.PtsIndex = m_form.Index(PointsShown);
    SetFlag(settings.Grid, m_form.Checked(Grid));
    if (const int style = m_form.Index(GridStyle); style >= 0)
        settings.GridStyle = style;
    settings.FixedScale = m_form.Checked(FixedScale);
    settings.CandleStyle = m_form.Index(ChartType);
    settings.ScrollByItems = m_form.Checked(ScrollByItems);
    settings.ScrollPercent = Held(m_percent.Read(m_form), m_percent.Shown(), LargestPercent);
    settings.ScrollItems = Held(m_items.Read(m_form), m_items.Shown(), LargestItems);
}

} // namespace zantroq
