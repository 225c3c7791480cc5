// The page "Lower Studies": the displayed studies, their order, and the properties of each study. One set of
// controls serves all ten studies; StudyFields.h assigns their meaning. Chart window's thread.
#pragma once

#include "settings/pages/SettingPage.h"

namespace zantroq {

struct sStudyFields;

class CLowerStudiesSettingPage : public ISettingPage
{
public:
    enum Control : int
    {
        Choice1 = 202,
        Choice2 = 203,
        Choice3 = 204,
        CustomChoice = 294,
        CustomPeriod = 269,
        CustomPeriodSpin = 271,
        SecondNumber = 282,
        SecondNumberSpin = 284,
        ThirdNumber = 285,
        ThirdNumberSpin = 286,
        PeriodLabel = 287,
        UpperLabel = 288,
        LowerLabel = 289,
        FirstColorLabel = 290,
        SecondColorLabel = 291,
        AverageColorLabel = 298,
        UpperColor = 292,
        LowerColor = 293,
        FirstColorButton = 297,
        SecondColorButton = 300,
        AverageColor = 301,
        SlowChoice = 295,
        FastChoice = 296,
        Available = 328,
        Displayed = 329,
        Add = 330,
        Up = 331,
        Down = 332,
        Group = 335,
        ShowStudy = 336,
        ShowAverage = 339,
        Remove = 340
    };
    static constexpr std::size_t MostDisplayed = 10;

    explicit CLowerStudiesSettingPage(IForm& form) : m_form(form) {}

    const char* Title() const override { return "Lower Studies"; }
    void Start(const sChartSettings& settings) override;
    std::optional<sRefusal> Accept() override;
    void CopyTo(sChartSettings& settings) const override;
    void OnChanged(int id) override;
    void OnPressed(int id) override;
    void OnDoubleClicked(int id, int row) override;
    void OnSelectionChanged(int id) override;
    void OnDropped(int from, int row, int list, int to) override;

private:
    void Visit(int study);
    void Show();
    void ShowChoices(const sStudyFields& fields);
    void ShowPeriods(const sStudyFields& fields);
    void ShowFields(const sStudyFields& fields);
    void HideFields();
    void Leave(); // stores the fields of the current study
    void StorePeriod(const sStudyFields& fields);

    bool IsDisplayed(int study) const;
    int SelectedRow(int list) const; // -1: none
    void ShowDisplayed(int selectedRow);
    void AddStudy(int study, std::size_t before);
    void RemoveRow(int row);
    void MoveRow(int row, int to);
    void FollowLists(); // enables the buttons that apply to the selection

    std::int32_t& PeriodOf(int study) { return m_studies.Periods[static_cast<std::size_t>(study)]; }
    std::int32_t& CustomOf(int study) { return m_studies.CustomPeriods[static_cast<std::size_t>(study)]; }

    IForm& m_form;
    sStudySettings m_studies;
    std::vector<int> m_displayed;
    int m_study = 0;        // the study whose properties are shown
    bool m_visited = false; // the user chose this study or changed one of its properties
    CNumberField m_custom{CustomPeriod}, m_second{SecondNumber}, m_third{ThirdNumber};
};

} // namespace zantroq
