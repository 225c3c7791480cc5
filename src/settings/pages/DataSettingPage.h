// The page "Data": the data requested from the feed, with separate load options for each of the five data
// types. Chart window's thread.
#pragma once

#include "settings/pages/SettingPage.h"

#include <functional>

namespace zantroq {

class CDataSettingPage : public ISettingPage
{
public:
    enum Control : int
    {
        Days = 220,
        SaveAsDefault = 223,
        ExtendedTrades = 226,
        ExchangeFormat = 227,
        DataType = 229,
        LoadRange = 231,
        StartDate = 233,
        StopDate = 234,
        Filter = 235,
        FilterStart = 236,
        FilterStop = 237,
        DaysSpin = 240,
        Interval = 243,
        ClearSaved = 248,
        PointsLabel = 254,
        StartTime = 258,
        StopTime = 259,
        LoadDays = 315,
        LoadPoints = 316,
        Points = 317
    };

    // `clear` deletes the stored request settings; `box` shows messages over the page.
    CDataSettingPage(IForm& form, IMessageBox& box, std::function<void()> clear)
        : m_form(form), m_box(box), m_clear(std::move(clear))
    {
    }

    const char* Title() const override { return "Data"; }
    void Start(const sChartSettings& settings) override;
    std::optional<sRefusal> Accept() override; // never refuses: invalid input is corrected with a message
    void CopyTo(sChartSettings& settings) const override;
    void OnChanged(int id) override;
    void OnPressed(int id) override;

    bool SavesAsDefault() const { return m_form.Checked(SaveAsDefault); }

private:
    // A date or time field, and the list of which it shows one entry.
    struct sMoment
    {
        int Control;
        std::array<std::string, 5> sRequestSettings::*Texts;
        std::string Shown{};
    };

    void ShowAll();
    void ShowType();
    void ShowMoment(sMoment& moment);
    void FollowChoices(); // enables the controls that apply to the current type and choices
    void StoreType();
    void StorePoints(std::size_t type);
    void StoreKind(std::size_t type);
    void AskToClear();

    IForm& m_form;
    IMessageBox& m_box;
    std::function<void()> m_clear;
    sRequestSettings m_request;
    CNumberField m_points{Points}, m_days{Days};
    std::array<sMoment, 6> m_moments{{{StartDate, &sRequestSettings::BeginDates},
                                      {StopDate, &sRequestSettings::EndDates},
                                      {StartTime, &sRequestSettings::BeginTimes},
                                      {StopTime, &sRequestSettings::EndTimes},
                                      {FilterStart, &sRequestSettings::BeginFilterTimes},
                                      {FilterStop, &sRequestSettings::EndFilterTimes}}};
};

} // namespace zantroq
