#include "settings/pages/LowerStudiesSettingPage.h"

#include "settings/pages/StudyFields.h"
#include "settings/pages/StudyNames.h"

#include <algorithm>

namespace zantroq {
namespace {

using Page = CLowerStudiesSettingPage;

constexpr std::array<int, 3> Choices{Page::Choice1, Page::Choice2, Page::Choice3};
constexpr int LongestPeriod = 999;

} // namespace

void CLowerStudiesSettingPage::Start(const sChartSettings& settings)
{
    m_studies = settings.Studies;
    const auto count = static_cast<std::size_t>(settings.Panes.StudyCount);
    m_displayed.assign(settings.Panes.StudyTypes.begin(),
                       settings.Panes.StudyTypes.begin() + static_cast<std::ptrdiff_t>(count));
    for (const int spin : {CustomPeriodSpin, SecondNumberSpin, ThirdNumberSpin})
        m_form.SetRange(spin, 1, LongestPeriod);
    std::vector<FormRow> rows;
    for (const std::string& name : StudyNameTexts())
        rows.push_back({name});
    m_form.SetRows(Available, std::move(rows));
    ShowDisplayed(m_displayed.empty() ? -1 : 0);
    if (m_displayed.empty())
        m_form.SelectRows(Available, {0});
    m_study = m_displayed.empty() ? 0 : m_displayed.front();
    Show();
    FollowLists();
}

void CLowerStudiesSettingPage::Show()
{
    const sStudyFields& fields = FieldsOf(m_study);
    m_form.SetText(Group, fields.Group);
    m_form.SetChecked(ShowStudy, IsDisplayed(m_study));
    ShowChoices(fields);
    ShowPeriods(fields);
    m_form.SetVisible(SlowChoice, fields.Fast != nullptr);
    m_form.SetVisible(FastChoice, fields.Fast != nullptr);
    if (fields.Fast != nullptr)
        m_form.SetChecked(m_studies.*fields.Fast != 0 ? FastChoice : SlowChoice, true);
    m_form.SetVisible(ShowAverage, fields.Average != nullptr);
    if (fields.Average != nullptr)
        m_form.SetChecked(ShowAverage, m_studies.*fields.Average != 0);
    ShowFields(fields);
}

void CLowerStudiesSettingPage::ShowChoices(const sStudyFields& fields)
{
    const std::int32_t chosen = m_studies.*fields.Radio;
    m_form.SetText(CustomChoice, fields.Custom);
    m_form.SetChecked(CustomChoice, chosen == 0);
    for (std::size_t k = 0; k < Choices.size(); ++k) {
        const char* const text = fields.Choices[k].Text;
        m_form.SetVisible(Choices[k], text != nullptr);
        m_form.SetText(Choices[k], text != nullptr ? text : "");
        m_form.SetChecked(Choices[k], text != nullptr && chosen == static_cast<std::int32_t>(k) + 1);
    }
}

// For MACD, the three edits are the short, the long and the signal period.
void CLowerStudiesSettingPage::ShowPeriods(const sStudyFields& fields)
{
    m_form.SetVisible(PeriodLabel, fields.PeriodLabel != nullptr);
    if (fields.PeriodLabel != nullptr)
        m_form.SetText(PeriodLabel, fields.PeriodLabel);
    if (!fields.HasPeriodTriple)
        return m_custom.Show(m_form, CustomOf(m_study));
    m_custom.Show(m_form, m_studies.MacdCustomShort);
    m_second.Show(m_form, m_studies.MacdCustomLong);
    m_third.Show(m_form, CustomOf(m_study));
}

void CLowerStudiesSettingPage::HideFields()
{
    for (const int id : {UpperLabel, LowerLabel, FirstColorLabel, SecondColorLabel, AverageColorLabel,
                         UpperColor, LowerColor, FirstColorButton, SecondColorButton, AverageColor,
                         SecondNumber, SecondNumberSpin, ThirdNumber, ThirdNumberSpin})
        m_form.SetVisible(id, false);
}

void CLowerStudiesSettingPage::ShowFields(const sStudyFields& fields)
{
    HideFields();
    if (fields.HasPeriodTriple)
        for (const int id : {SecondNumber, SecondNumberSpin, ThirdNumber, ThirdNumberSpin})
            m_form.SetVisible(id, true);
    for (const sStudyField& field : fields.Fields) {
        if (field.LabelControl == 0)
            continue;
        m_form.SetVisible(field.LabelControl, true);
        m_form.SetText(field.LabelControl, field.Label);
        m_form.SetVisible(field.ColorControl, true);
        m_form.SetColor(field.ColorControl, m_studies.*field.Color);
        if (field.NumberControl == 0)
            continue;
        const bool second = field.NumberControl == SecondNumber;
        m_form.SetVisible(field.NumberControl, true);
        m_form.SetVisible(second ? SecondNumberSpin : ThirdNumberSpin, true);
        (second ? m_second : m_third).Show(m_form, m_studies.*field.Number);
    }
}

void CLowerStudiesSettingPage::Visit(int study)
{
    if (study != m_study) {
        Leave();
        m_study = study;
        Show();
    }
    m_visited = true;
}

// A study that the user neither visited nor changed keeps its values, even a period that is none of its
// choices.
void CLowerStudiesSettingPage::Leave()
{
    if (!m_visited)
        return;
    const sStudyFields& fields = FieldsOf(m_study);
    StorePeriod(fields);
    if (fields.Fast != nullptr)
        SetFlag(m_studies.*fields.Fast, m_form.Checked(FastChoice));
    if (fields.Average != nullptr)
        SetFlag(m_studies.*fields.Average, m_form.Checked(ShowAverage));
    for (const sStudyField& field : fields.Fields) {
        if (field.LabelControl == 0)
            continue;
        m_studies.*field.Color = m_form.Color(field.ColorControl);
        if (field.NumberControl != 0)
            m_studies.*field.Number = (field.NumberControl == SecondNumber ? m_second : m_third).Read(m_form);
    }
    m_visited = false;
}

void CLowerStudiesSettingPage::StorePeriod(const sStudyFields& fields)
{
    if (m_form.Checked(CustomChoice)) {
        m_studies.*fields.Radio = 0;
        const CNumberField& period = fields.HasPeriodTriple ? m_third : m_custom;
        PeriodOf(m_study) = CustomOf(m_study) = period.Read(m_form);
        if (fields.HasPeriodTriple) {
            m_studies.MacdShort = m_studies.MacdCustomShort = m_custom.Read(m_form);
            m_studies.MacdLong = m_studies.MacdCustomLong = m_second.Read(m_form);
        }
        return;
    }
    for (std::size_t k = 0; k < Choices.size(); ++k) {
        if (fields.Choices[k].Text == nullptr || !m_form.Checked(Choices[k]))
            continue;
        m_studies.*fields.Radio = static_cast<std::int32_t>(k) + 1;
        PeriodOf(m_study) = fields.Choices[k].Period;
        if (fields.HasPeriodTriple) {
            m_studies.MacdShort = fields.Choices[k].Short;
            m_studies.MacdLong = fields.Choices[k].Long;
        }
    }
}

void CLowerStudiesSettingPage::OnChanged(int id)
{
    if (id != ShowStudy) {
        m_visited = true;
        return;
    }
    const auto at = std::ranges::find(m_displayed, m_study);
    if (m_form.Checked(ShowStudy))
        AddStudy(m_study, m_displayed.size());
    else if (at != m_displayed.end())
        RemoveRow(static_cast<int>(at - m_displayed.begin()));
}

bool CLowerStudiesSettingPage::IsDisplayed(int study) const
{
    return std::ranges::find(m_displayed, study) != m_displayed.end();
}

int CLowerStudiesSettingPage::SelectedRow(int list) const
{
    const std::vector<int> rows = m_form.SelectedRows(list);
    return rows.empty() ? -1 : rows.front();
}

void CLowerStudiesSettingPage::ShowDisplayed(int selectedRow)
{
    std::vector<FormRow> rows;
    for (const int study : m_displayed)
        rows.push_back({StudyName(study)});
    m_form.SetRows(Displayed, std::move(rows));
    if (selectedRow >= 0)
        m_form.SelectRows(Displayed, {selectedRow});
}

void CLowerStudiesSettingPage::FollowLists()
{
    const int available = SelectedRow(Available), row = SelectedRow(Displayed);
    const int last = static_cast<int>(m_displayed.size()) - 1;
    const bool room = m_displayed.size() < MostDisplayed;
    m_form.SetEnabled(Add, available >= 0 && room && !IsDisplayed(available));
    m_form.SetEnabled(Up, row > 0);
    m_form.SetEnabled(Down, row >= 0 && row < last);
    m_form.SetEnabled(Remove, row >= 0);
    m_form.SetChecked(ShowStudy, IsDisplayed(m_study));
}

void CLowerStudiesSettingPage::AddStudy(int study, std::size_t before)
{
    if (IsDisplayed(study) || m_displayed.size() >= MostDisplayed)
        return;
    before = std::min(before, m_displayed.size());
    m_displayed.insert(m_displayed.begin() + static_cast<std::ptrdiff_t>(before), study);
    ShowDisplayed(static_cast<int>(before));
    FollowLists();
}

void CLowerStudiesSettingPage::RemoveRow(int row)
{
    m_displayed.erase(m_displayed.begin() + row);
    ShowDisplayed(std::min(row, static_cast<int>(m_displayed.size()) - 1));
    FollowLists();
}

void CLowerStudiesSettingPage::MoveRow(int row, int to)
{
    const int study = m_displayed[static_cast<std::size_t>(row)];
    m_displayed.erase(m_displayed.begin() + row);
    m_displayed.insert(m_displayed.begin() + to, study);
    ShowDisplayed(to);
    FollowLists();
}

void CLowerStudiesSettingPage::OnPressed(int id)
{
    if (!m_form.Enabled(id))
        return;
    const int row = SelectedRow(Displayed);
    if (id == Add)
        AddStudy(SelectedRow(Available), m_displayed.size());
    else if (id == Up)
        MoveRow(row, row - 1);
    else if (id == Down)
        MoveRow(row, row + 1);
    else if (id == Remove)
        RemoveRow(row);
}

void CLowerStudiesSettingPage::OnDoubleClicked(int id, int row)
{
    if (id == Available)
        AddStudy(row, m_displayed.size());
    else if (id == Displayed)
        RemoveRow(row);
}

void CLowerStudiesSettingPage::OnSelectionChanged(int id)
{
    if (const int row = SelectedRow(id); row >= 0)
        Visit(id == Available ? row : m_displayed[static_cast<std::size_t>(row)]);
    FollowLists();
}

void CLowerStudiesSettingPage::OnDropped(int from, int row, int list, int to)
{
    if (from == Available && list == Displayed)
        AddStudy(row, static_cast<std::size_t>(to));
    else if (from == Displayed && list == Available)
        RemoveRow(row);
    else if (from == Displayed && list == Displayed)
        MoveRow(row, to > row ? to - 1 : to); // the row is removed from its old place first
}

std::optional<sRefusal> CLowerStudiesSettingPage::Accept()
{
    Leave();
    if (m_studies.MacdShort < m_studies.MacdLong)
        return std::nullopt;
    m_study = StudyMACD;
    Show();
    FollowLists();
    return sRefusal{"MACD short period must be shorter then MACD long period", ErrorCaption, CustomPeriod};
}

void CLowerStudiesSettingPage::CopyTo(sChartSettings& settings) const
{
    const auto dataColors = settings.Studies.DataColors, labelColors = settings.Studies.LabelColors;
    settings.Studies = m_studies;
    settings.Studies.DataColors = dataColors; // edited on another page
    settings.Studies.LabelColors = labelColors;
    settings.Panes.StudyCount = static_cast<std::int32_t>(m_displayed.size());
    std::ranges::copy(m_displayed, settings.Panes.StudyTypes.begin());
}

} // namespace zantroq
