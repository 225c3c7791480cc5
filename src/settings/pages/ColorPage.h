// The page "Colors": the general colors, the colors of the price pane, and two colors for each study. Chart
// window's thread.
#pragma once

#include "settings/pages/SettingPage.h"

namespace zantroq {

class CColorPage : public ISettingPage
{
public:
    enum Control : int
    {
        Background = 251,
        PriceLabel = 252,
        PriceData = 253,
        UpCandle = 254,
        DownCandle = 255,
        PriceBar = 256,
        Grid = 258,
        StudyLabel = 259,
        StudyData = 264,
        Indicator = 344
    };

    explicit CColorPage(IForm& form) : m_form(form) {}

    const char* Title() const override { return "Colors"; }
    void Start(const sChartSettings& settings) override;
    std::optional<sRefusal> Accept() override { return std::nullopt; }
    void CopyTo(sChartSettings& settings) const override;
    void OnChanged(int id) override;

private:
    void ShowStudy();

    IForm& m_form;
    int m_study = 0;
    std::array<ColorValue, StudyKinds> m_data{}, m_label{};
    ColorValue m_volumeLabel = 0; // not shown by any control; copied unchanged
};

} // namespace zantroq
