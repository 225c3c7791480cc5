#include "settings/pages/UpperStudiesSettingPage.h"

#include "platform/parse/LeadingNumber.h"

#include <algorithm>
#include <charconv>

namespace zantroq {
namespace {

using Page = CUpperStudiesSettingPage;

constexpr std::array<int, 3> Selects{Page::Average1, Page::Average2, Page::Average3};
constexpr std::array<int, 3> Colors{Page::AverageColor1, Page::AverageColor2, Page::AverageColor3};
constexpr int LongestPeriod = 999, WidestLine = 99;

std::string TwoDecimals(double value)
{
    std::array<char, 400> text{}; // the longest double has 309 digits before the point
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 2);
    return {text.data(), end.ptr};
}

} // namespace

void CUpperStudiesSettingPage::Start(const sChartSettings& settings)
{
    const sOverlaySettings& overlays = settings.Overlays;
    m_form.SetChecked(ShowAverages, overlays.ShowAverages != 0);
    m_form.SetChecked(Exponential, overlays.Exponential != 0);
    for (std::size_t k = 0; k < Selects.size(); ++k) {
        m_form.SetChecked(Selects[k], overlays.AverageSelected[k] != 0);
        m_periods[k].Show(m_form, overlays.AveragePoints[k]);
        m_form.SetColor(Colors[k], overlays.AverageColors[k]);
    }
    for (const int spin : {Period1Spin, Period2Spin, Period3Spin})
        m_form.SetRange(spin, 1, LongestPeriod);
    m_form.SetChecked(ShowBands, overlays.ShowBands != 0);
    m_form.SetColor(BandColor, overlays.BandColor);
    m_form.SetRange(BandPeriodSpin, 2, LongestPeriod);
    m_bandPeriod.Show(m_form, overlays.BandPeriod);
    m_deviations = overlays.BandDeviations;
    m_shownDeviations = TwoDecimals(m_deviations);
    m_form.SetText(Deviations, m_shownDeviations);
    m_trends = settings.Trends;
    m_form.SetItems(TrendKindBox, {"Horizontal", "Sloping", "Parallel", "Andrew's Pitchfork", "Fibonacci Fan",
                                   "Fibonacci Retracements", "Speed Resistance"});
    m_form.SetIndex(TrendKindBox, m_kind);
    m_form.SetRange(WidthSpin, 1, WidestLine);
    ShowTrend();
}

void CUpperStudiesSettingPage::ShowTrend()
{
    const sTrendStyle& style = m_trends[static_cast<std::size_t>(m_kind)];
    m_form.SetChecked(Extendable, style.Extendable != 0);
    m_form.SetColor(TrendColor, style.Color);
    m_width.Show(m_form, style.Width);
    ShowSample();
}

int CUpperStudiesSettingPage::WantedWidth() const
{
    return std::clamp(m_width.Read(m_form), 1, WidestLine);
}

void CUpperStudiesSettingPage::ShowSample()
{
    m_form.SetLineSample(LinePicture, m_form.Color(TrendColor), WantedWidth());
}

void CUpperStudiesSettingPage::StoreTrend()
{
    sTrendStyle& style = m_trends[static_cast<std::size_t>(m_kind)];
    SetFlag(style.Extendable, m_form.Checked(Extendable));
    style.Color = m_form.Color(TrendColor);
    style.Width = WantedWidth();
}

void CUpperStudiesSettingPage::OnChanged(int id)
{
    if (id == TrendColor || id == Width)
        return ShowSample();
    if (id != TrendKindBox || m_form.Index(TrendKindBox) < 0)
        return;
    StoreTrend();
    m_kind = m_form.Index(TrendKindBox);
    ShowTrend();
}

std::optional<sRefusal> CUpperStudiesSettingPage::Accept()
{
    const int period = m_bandPeriod.Read(m_form);
    if (period < 2 || period > LongestPeriod)
        return sRefusal{"Study average period must be from 2 to 999", ErrorCaption, BandPeriod};
    const std::string text = m_form.Text(Deviations);
    if (text.empty())
        return sRefusal{"You must select a valid No. of Deviations.", ErrorCaption, Deviations};
    const double deviations = TextToDouble(text);
    if (!(deviations >= 0.01 && deviations <= 100))
        return sRefusal{"No. of Deviations must be from 0.01 to 100", ErrorCaption, Deviations};
    // The text shows only two decimals, so an unchanged text keeps the exact value.
    if (text != m_shownDeviations)
        m_deviations = deviations;
    m_shownDeviations = text;
    StoreTrend();
    return std::nullopt;
}

void CUpperStudiesSettingPage::CopyTo(sChartSettings& settings) const
{
    sOverlaySettings& overlays = settings.Overlays;
    SetFlag(overlays.ShowAverages, m_form.Checked(ShowAverages));
    SetFlag(overlays.Exponential, m_form.Checked(Exponential));
    for (std::size_t k = 0; k < Selects.size(); ++k) {
        SetFlag(overlays.AverageSelected[k], m_form.Checked(Selects[k]));
        overlays.AveragePoints[k] = m_periods[k].Read(m_form);
        overlays.AverageColors[k] = m_form.Color(Colors[k]);
    }
    SetFlag(overlays.ShowBands, m_form.Checked(ShowBands));
    overlays.BandColor = m_form.Color(BandColor);
    overlays.BandPeriod = m_bandPeriod.Read(m_form);
    overlays.BandDeviations = m_deviations;
    settings.Trends = m_trends;
}

} // namespace zantroq
