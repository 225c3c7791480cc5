// The page "General": value axis, number of points, grid, scale, chart type and scrolling. Chart window's
// thread.
#pragma once

#include "settings/pages/SettingPage.h"

namespace zantroq {

class CSettingPage : public ISettingPage
{
public:
    enum Control : int
    {
        ScrollByPercent = 300,
        ScrollByItems = 301,
        ScrollItems = 302,
        ScrollItemsSpin = 303,
        ScrollPercent = 304,
        ScrollPercentSpin = 305,
        AxisSide = 308,
        FlexibleScale = 309,
        FixedScale = 310,
        ResetNow = 311,
        GridStyle = 230,
        ChartType = 231,
        PointsShown = 232,
        Grid = 233
    };

    explicit CSettingPage(IForm& form) : m_form(form) {}

    const char* Title() const override { return "General"; }
    void Start(const sChartSettings& settings) override;
    std::optional<sRefusal> Accept() override;
    void CopyTo(sChartSettings& settings) const override;
    void OnChanged(int id) override;

    bool ResetScaleNow() const { return m_form.Checked(ResetNow); }

private:
    void FollowScale();

    IForm& m_form;
    CNumberField m_percent{ScrollPercent}, m_items{ScrollItems};
};

} // namespace zantroq
