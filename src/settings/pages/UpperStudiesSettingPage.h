// The page "Upper Studies": three moving averages, the Bollinger Bands, and the style of each kind of
// trendline. Chart window's thread.
#pragma once

#include "settings/pages/SettingPage.h"

namespace zantroq {

class CUpperStudiesSettingPage : public ISettingPage
{
public:
    enum Control : int
    {
        Average1 = 239,
        Average2 = 237,
        Average3 = 238,
        Period1 = 255,
        Period1Spin = 254,
        Period2 = 256,
        Period2Spin = 257,
        Period3 = 258,
        Period3Spin = 259,
        AverageColor1 = 280,
        AverageColor2 = 281,
        AverageColor3 = 262,
        BandColor = 265,
        ShowBands = 272,
        BandPeriod = 273,
        BandPeriodSpin = 274,
        Deviations = 275,
        Exponential = 276,
        ShowAverages = 277,
        Width = 320,
        WidthSpin = 284,
        TrendKindBox = 334,
        TrendColor = 337,
        Extendable = 338,
        LinePicture = 1001
    };

    explicit CUpperStudiesSettingPage(IForm& form) : m_form(form) {}

    const char* Title() const override { return "Upper Studies"; }
    void Start(const sChartSettings& settings) override;
    std::optional<sRefusal> Accept() override;
    void CopyTo(sChartSettings& settings) const override;
    void OnChanged(int id) override;

private:
    void ShowTrend();
    void StoreTrend();
    void ShowSample();
    int WantedWidth() const;

    IForm& m_form;
    std::array<CNumberField, 3> m_periods{CNumberField(Period1), CNumberField(Period2),
                                          CNumberField(Period3)};
    CNumberField m_bandPeriod{BandPeriod}, m_width{Width};
    double m_deviations = 0;
    std::string m_shownDeviations;
    int m_kind = 0;
    std::array<sTrendStyle, TrendKinds> m_trends{};
};

} // namespace zantroq
