#include "settings/pages/ColorPage.h"

#include "settings/pages/StudyNames.h"

namespace zantroq {
namespace {

struct sColorField
{
    int Control;
    ColorValue sChartSettings::*Member;
};

constexpr std::array<sColorField, 7> Fields{{{CColorPage::Background, &sChartSettings::BackgroundColor},
                                             {CColorPage::Grid, &sChartSettings::GridColor},
                                             {CColorPage::PriceLabel, &sChartSettings::PriceLabelColor},
                                             {CColorPage::PriceData, &sChartSettings::PriceDataColor},
                                             {CColorPage::UpCandle, &sChartSettings::UpCandleColor},
                                             {CColorPage::DownCandle, &sChartSettings::DownCandleColor},
                                             {CColorPage::PriceBar, &sChartSettings::PriceBarColor}}};

} // namespace

void CColorPage::Start(const sChartSettings& settings)
{
    for (const sColorField& field : Fields)
        m_form.SetColor(field.Control, settings.*field.Member);
    m_data = settings.Studies.DataColors;
    m_label = settings.Studies.LabelColors;
    m_volumeLabel = settings.VolumeLabelColor;
    m_form.SetItems(Indicator, StudyNameTexts());
    m_form.SetIndex(Indicator, m_study);
    ShowStudy();
}

void CColorPage::ShowStudy()
{
    m_form.SetColor(StudyData, m_data[static_cast<std::size_t>(m_study)]);
    m_form.SetColor(StudyLabel, m_label[static_cast<std::size_t>(m_study)]);
}

void CColorPage::OnChanged(int id)
{
    const auto study = static_cast<std::size_t>(m_study);
    if (id == StudyData) {
        m_data[study] = m_form.Color(id);
    } else if (id == StudyLabel) {
        m_label[study] = m_form.Color(id);
    } else if (id == Indicator && m_form.Index(id) >= 0) {
        m_study = m_form.Index(id);
        ShowStudy();
    }
}

void CColorPage::CopyTo(sChartSettings& settings) const
{
    for (const sColorField& field : Fields)
        settings.*field.Member = m_form.Color(field.Control);
    settings.Studies.DataColors = m_data;
    settings.Studies.LabelColors = m_label;
    settings.VolumeLabelColor = m_volumeLabel;
}

} // namespace zantroq
