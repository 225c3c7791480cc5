#include "settings/TypedSetting.h"

#include "settings/SettingIds.h"
#include "settings/SettingMember.h"
#include "settings/SettingText.h"
#include "settings/StoredNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zantroq {
namespace {

int Number(std::string_view digits)
{
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

bool IsDate(std::string_view text)
{
    if (!AllDigits(text, 8))
        return false;
    const int month = Number(text.substr(4, 2)), day = Number(text.substr(6, 2));
    return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

bool IsTime(std::string_view text)
{
    return AllDigits(text, 6) && Number(text.substr(0, 2)) < 24 && Number(text.substr(2, 2)) < 60 &&
           Number(text.substr(4, 2)) < 60;
}

std::string Quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

// A whole number; for colors also 0x and hexadecimal digits.
bool ParseTypedInt(const sSettingRow& row, std::string_view text, std::int64_t& value)
{
    if (row.Type == SettingType::Color && (text.starts_with("0x") || text.starts_with("0X"))) {
        const auto digits = text.substr(2);
        const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        return end.ec == std::errc() && end.ptr == digits.data() + digits.size() && value >= 0 &&
               digits.front() != '-';
    }
    return ParseWholeInt(text, value);
}

struct sIntRange
{
    std::int64_t Low = LeastStoredInt, High = GreatestStoredInt;
};

sIntRange TypedRange(const sSettingRow& row)
{
    if (row.Id == ScrollPercentId)
        return {1, 99};
    if (row.HasRange())
        return {static_cast<std::int64_t>(row.Low), static_cast<std::int64_t>(row.High)};
    return {};
}

std::string CheckTypedInt(const sSettingRow& row, std::string_view text, std::int64_t& value)
{
    const auto range = TypedRange(row);
    if (ParseTypedInt(row, text, value) && value >= range.Low && value <= range.High)
        return "";
    return Quoted(text) + " is not a whole number from " + std::to_string(range.Low) + " to " +
           std::to_string(range.High);
}

// Checks the rules that involve several fields.
std::string CheckTogether(const sChartSettings& settings, const sSettingPlace& place)
{
    const auto& panes = settings.Panes;
    const auto& studies = settings.Studies;
    if ((place.Row->Id == MacdShortId || place.Row->Id == MacdLongId) &&
        studies.MacdShort >= studies.MacdLong)
        return "MACD short period must be shorter then MACD long period";
    if (place.Row->Id == MaximizedId && panes.MaximizedIndex != NoMaximizedPane &&
        (panes.MaximizedIndex < 0 || panes.MaximizedIndex > panes.StudyCount))
        return TextFromInt(panes.MaximizedIndex) + " is no pane; use 999 for none, or 0 to " +
               TextFromInt(panes.StudyCount);
    if (place.Row->Type == SettingType::Double && place.Row->Form == SettingForm::Indexed) {
        const auto at = static_cast<std::size_t>(place.Number);
        const auto count = static_cast<std::size_t>(std::clamp(panes.StudyCount, 0, 10));
        if (at <= count + 1 && (panes.Bounds[at] <= panes.Bounds[at - 1] ||
                                (at <= count && panes.Bounds[at] >= panes.Bounds[at + 1])))
            return TextFromDouble(panes.Bounds[at]) + " does not lie between the borders above and below";
    }
    return "";
}

std::string TakeTypedEntry(const sSettingRow& row, std::size_t number, std::string_view text,
                           std::int32_t& entry)
{
    std::int64_t value = 0;
    if (auto wrong = CheckTypedInt(row, text, value); !wrong.empty())
        return wrong;
    if (row.Id == RequestKindsId &&
        !RequestKindFits(static_cast<int>(number), static_cast<std::int32_t>(value)))
        return "request kind " + std::to_string(value) + " does not belong to data type " +
               std::to_string(number);
    entry = static_cast<std::int32_t>(value);
    return "";
}

std::string TakeTypedEntry(const sSettingRow&, std::size_t, std::string_view text, bool& entry)
{
    if (text != "0" && text != "1")
        return Quoted(text) + " is neither 0 nor 1";
    entry = text == "1";
    return "";
}

std::string TakeTypedEntry(const sSettingRow& row, std::size_t, std::string_view text, std::string& entry)
{
    if (row.Type == SettingType::Date && !IsDate(text))
        return Quoted(text) + " is not a date of the form YYYYMMDD";
    if (row.Type == SettingType::Time && !IsTime(text))
        return Quoted(text) + " is not a time of the form HHMMSS";
    entry = text;
    return "";
}

template<class Array> std::string TakeTypedList(const sSettingRow& row, std::string_view text, Array& member)
{
    const auto entries = SplitList(text);
    if (entries.empty() || entries.size() > member.size())
        return Quoted(text) + " is not a list of 1 to " + std::to_string(member.size()) +
               " entries with commas between";
    Array taken = member;
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (auto wrong = TakeTypedEntry(row, i, entries[i], taken[i]); !wrong.empty())
            return wrong;
    member = taken;
    return "";
}

} // namespace

std::string TakeTypedText(sChartSettings& settings, const sSettingPlace& place, std::string_view text)
{
    const sSettingRow& row = *place.Row;
    sChartSettings changed = settings;
    std::string wrong;
    if (!row.HasMember()) {
        wrong = "nothing uses this setting";
    } else if (row.IsList()) {
        VisitMember(changed, row.Member, [&](auto& member) {
            using Member = std::decay_t<decltype(member)>;
            if constexpr (requires(Member m) { TakeTypedEntry(row, 0, text, m[0]); })
                wrong = TakeTypedList(row, text, member);
        });
    } else if (row.Type == SettingType::Double) {
        double value = 0;
        if (!ParseWholeDouble(text, value) || !std::isfinite(value) || value < row.Low || value > row.High)
            wrong = Quoted(text) + " is not a number from " + TextFromDouble(row.Low) + " to " +
                    TextFromDouble(row.High);
        else
            TakeStoredDouble(changed, place, value);
    } else {
        std::int64_t value = 0;
        wrong = CheckTypedInt(row, text, value);
        if (wrong.empty())
            TakeStoredInt(changed, place, static_cast<std::int32_t>(value));
    }
    if (wrong.empty())
        wrong = CheckTogether(changed, place);
    if (wrong.empty())
        settings = std::move(changed);
    return wrong;
}

} // namespace zantroq
