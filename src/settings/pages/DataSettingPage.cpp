#include "settings/pages/DataSettingPage.h"

#include "settings/SettingsLoader.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr int Types = 5;
constexpr int MinuteType = 1;
constexpr int MostPoints = 2000000, DefaultPoints = 1000;
constexpr int MostDays = 9999;
constexpr int NoKind = -1;

// The request kinds of a data type: by number of points, by days, by range.
struct sKinds
{
    int Points, Days, Range;
};
constexpr std::array<sKinds, Types> Kinds{
    {{0, 1, 2}, {3, 4, 5}, {6, NoKind, 7}, {8, NoKind, NoKind}, {9, NoKind, NoKind}}};

// Only the commands of ticks and intervals have a time-of-day filter.
constexpr bool CanFilter(int type)
{
    return type <= MinuteType;
}

constexpr std::array<const char*, Types> TypeTexts{"Tick", "Minute", "Daily", "Weekly", "Monthly"};
constexpr std::array<const char*, Types> PointTexts{"Ticks", "Intervals", "Days", "Weeks", "Months"};

std::vector<std::string> IntervalTexts()
{
    std::vector<std::string> texts;
    for (const int minutes : IntervalMinutes)
        texts.push_back(std::to_string(minutes));
    return texts;
}

// "20140102" as "2014-01-02", "093000" as "09:30:00".
std::string ShownMoment(const std::string& stored)
{
    if (stored.size() == 8)
        return stored.substr(0, 4) + "-" + stored.substr(4, 2) + "-" + stored.substr(6);
    if (stored.size() == 6)
        return stored.substr(0, 2) + ":" + stored.substr(2, 2) + ":" + stored.substr(4);
    return stored;
}

std::string StoredMoment(std::string shown)
{
    std::erase_if(shown, [](char c) { return c == '-' || c == ':'; });
    return shown;
}

} // namespace

void CDataSettingPage::Start(const sChartSettings& settings)
{
    m_request = settings.Request;
    m_form.SetItems(DataType, {TypeTexts.begin(), TypeTexts.end()});
    m_form.SetItems(Interval, IntervalTexts());
    m_form.SetRange(DaysSpin, 0, MostDays);
    m_form.SetChecked(SaveAsDefault, false);
    ShowAll();
}

void CDataSettingPage::ShowAll()
{
    m_form.SetIndex(DataType, m_request.DataType);
    m_form.SetIndex(Interval, m_request.IntervalIndex);
    m_form.SetChecked(ExchangeFormat, m_request.UseExchangeFormat);
    ShowType();
}

void CDataSettingPage::ShowType()
{
    const auto type = static_cast<std::size_t>(m_request.DataType);
    const sKinds& kinds = Kinds[type];
    m_form.SetChecked(ExtendedTrades, m_request.ExtendedTrades[type]);
    m_points.Show(m_form, m_request.DatapointCounts[type]);
    m_form.SetText(PointsLabel, PointTexts[type]);
    m_days.Show(m_form, m_request.DayCounts[type]);
    const int kind = m_request.RequestKinds[type];
    const int radio = kind == kinds.Days ? LoadDays : kind == kinds.Range ? LoadRange : LoadPoints;
    m_form.SetChecked(radio, true);
    m_form.SetChecked(Filter, m_request.TimeFilterOn[type]);
    for (sMoment& moment : m_moments)
        ShowMoment(moment);
    FollowChoices();
}

void CDataSettingPage::ShowMoment(sMoment& moment)
{
    const std::string& stored = (m_request.*moment.Texts)[static_cast<std::size_t>(m_request.DataType)];
    // A stored date that the calendar does not have cannot be shown; it is kept until the user chooses
    // another.
    if (stored.size() == 8)
        m_form.SetText(moment.Control, ShownMoment(TodayText()));
    m_form.SetText(moment.Control, ShownMoment(stored));
    moment.Shown = m_form.Text(moment.Control);
}

void CDataSettingPage::FollowChoices()
{
    const int type = m_request.DataType;
    const sKinds& kinds = Kinds[static_cast<std::size_t>(type)];
    m_form.SetEnabled(Interval, type == MinuteType);
    m_form.SetEnabled(LoadDays, kinds.Days != NoKind);
    m_form.SetEnabled(LoadRange, kinds.Range != NoKind);
    const bool range = m_form.Checked(LoadRange), days = m_form.Checked(LoadDays);
    m_form.SetEnabled(Points, m_form.Checked(LoadPoints));
    m_form.SetEnabled(Days, days);
    m_form.SetEnabled(DaysSpin, days);
    for (const int control : {StartDate, StartTime, StopDate, StopTime})
        m_form.SetEnabled(control, range);
    m_form.SetEnabled(Filter, CanFilter(type));
    const bool filter = CanFilter(type) && m_form.Checked(Filter);
    m_form.SetEnabled(FilterStart, filter);
    m_form.SetEnabled(FilterStop, filter);
}

void CDataSettingPage::OnChanged(int id)
{
    if (id != DataType)
        return FollowChoices();
    const int type = m_form.Index(DataType);
    if (type < 0 || type == m_request.DataType)
        return;
    StoreType();
    m_request.DataType = type;
    ShowType();
}

void CDataSettingPage::OnPressed(int id)
{
    if (id == ClearSaved)
        AskToClear();
}

void CDataSettingPage::AskToClear()
{
    if (m_box.Ask("Do you really want to clear the saved settings?", "Settings", BoxButtons::YesNo,
                  BoxIcon::Question) != BoxAnswer::Yes)
        return;
    m_clear();
    m_request = DefaultChartSettings().Request;
    ShowAll();
}

// Stores the fields of the data type that is shown.
void CDataSettingPage::StoreType()
{
    const auto type = static_cast<std::size_t>(m_request.DataType);
    m_request.ExtendedTrades[type] = m_form.Checked(ExtendedTrades);
    m_request.UseExchangeFormat = m_form.Checked(ExchangeFormat);
    StorePoints(type);
    const int days = m_days.Read(m_form);
    m_request.DayCounts[type] = days == m_days.Shown() ? days : std::clamp(days, 0, MostDays);
    m_request.TimeFilterOn[type] = m_form.Checked(Filter);
    for (sMoment& moment : m_moments)
        if (const std::string shown = m_form.Text(moment.Control); shown != moment.Shown)
            (m_request.*moment.Texts)[type] = StoredMoment(shown);
    StoreKind(type);
}

void CDataSettingPage::StorePoints(std::size_t type)
{
    m_request.DatapointCounts[type] = m_points.Read(m_form);
    if (m_request.DatapointCounts[type] >= 0 && m_request.DatapointCounts[type] <= MostPoints)
        return;
    m_request.DatapointCounts[type] = DefaultPoints;
    m_box.Ask("Datapoints outside of range (1 - 2,000,000).  Defaulting to 1000.", InvalidSettingCaption,
              BoxButtons::Ok, BoxIcon::Error);
    m_points.Show(m_form, DefaultPoints);
}

void CDataSettingPage::StoreKind(std::size_t type)
{
    const sKinds& kinds = Kinds[type];
    int kind = NoKind;
    if (m_form.Checked(LoadPoints))
        kind = kinds.Points;
    else if (m_form.Checked(LoadDays))
        kind = kinds.Days;
    else if (m_form.Checked(LoadRange))
        kind = kinds.Range;
    if (kind == NoKind) {
        m_box.Ask("Unknown request type Selected.\r\nDefaulting to datapoints request.",
                  InvalidSettingCaption, BoxButtons::Ok, BoxIcon::Error);
        kind = kinds.Points;
        m_form.SetChecked(LoadPoints, true);
        FollowChoices();
    }
    m_request.RequestKinds[type] = kind;
}

std::optional<sRefusal> CDataSettingPage::Accept()
{
    if (m_form.Index(DataType) < 0)
        m_box.Ask("Invalid Data Type Selection!", InvalidSettingCaption, BoxButtons::Ok, BoxIcon::Error);
    StoreType();
    return std::nullopt;
}

void CDataSettingPage::CopyTo(sChartSettings& settings) const
{
    const std::int32_t requestType = settings.Request.RequestType; // shown on no page
    settings.Request = m_request;
    settings.Request.RequestType = requestType;
    if (const int interval = m_form.Index(Interval); interval >= 0)
        settings.Request.IntervalIndex = interval;
}

} // namespace zantroq
