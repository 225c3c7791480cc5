#include "settings/SettingText.h"

#include "settings/SettingIds.h"
#include "settings/SettingMember.h"
#include "settings/StoredNumber.h"

#include <algorithm>
#include <cmath>

namespace zantroq {
namespace {

constexpr ColorValue ColorBits = 0xFFFFFF;

std::string TextOf(std::int32_t value)
{
    return TextFromInt(value);
}
std::string TextOf(ColorValue value)
{
    return TextFromInt(static_cast<std::int32_t>(value));
}
std::string TextOf(bool value)
{
    return value ? "1" : "0";
}
std::string TextOf(double value)
{
    return TextFromDouble(value);
}
std::string TextOf(const std::string& value)
{
    return value;
}

// Gives read access through the member pointers, which take a mutable record.
sChartSettings& Readable(const sChartSettings& settings)
{
    return const_cast<sChartSettings&>(settings);
}

void TakeStoredEntry(const sSettingRow& row, std::size_t number, std::string_view text, std::int32_t& entry)
{
    const std::int32_t value = ParseStoredInt(text);
    if (row.Id != RequestKindsId || RequestKindFits(static_cast<int>(number), value))
        entry = value;
}

void TakeStoredEntry(const sSettingRow&, std::size_t, std::string_view text, bool& entry)
{
    entry = text == "1";
}

void TakeStoredEntry(const sSettingRow& row, std::size_t, std::string_view text, std::string& entry)
{
    if (AllDigits(text, row.Type == SettingType::Date ? 8 : 6))
        entry = text;
}

} // namespace

bool AllDigits(std::string_view text, std::size_t length)
{
    return text.size() == length && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::vector<std::string_view> SplitList(std::string_view text)
{
    std::vector<std::string_view> entries;
    if (text.empty())
        return entries;
    for (;;) {
        const auto comma = text.find(',');
        entries.push_back(text.substr(0, comma));
        if (comma == std::string_view::npos)
            return entries;
        text.remove_prefix(comma + 1);
    }
}

std::string SettingText(const sChartSettings& settings, const sSettingPlace& place)
{
    std::string text;
    if (!place.Row->IsList()) {
        VisitValue(Readable(settings), place, [&](const auto& value) {
            if constexpr (requires { TextOf(value); })
                text = TextOf(value);
        });
        return text;
    }
    VisitMember(Readable(settings), place.Row->Member, [&](const auto& member) {
        if constexpr (requires { member.size(); }) {
            for (std::size_t i = 0; i < member.size(); ++i)
                text += (i ? "," : "") + TextOf(member[i]);
        }
    });
    return text;
}

void TakeStoredInt(sChartSettings& settings, const sSettingPlace& place, std::int32_t value)
{
    const sSettingRow& row = *place.Row;
    if (row.HasRange() && (value < row.Low || value > row.High)) {
        if (row.Outside == OutOfRange::Default)
            return; // a new record holds the default
        if (row.Outside == OutOfRange::Nearest)
            value = static_cast<std::int32_t>(std::clamp<double>(value, row.Low, row.High));
    }
    VisitValue(settings, place, [&](auto& member) {
        using Member = std::decay_t<decltype(member)>;
        if constexpr (std::is_same_v<Member, ColorValue>)
            member = static_cast<ColorValue>(value) & ColorBits;
        else if constexpr (std::is_same_v<Member, bool>)
            member = value == 1;
        else if constexpr (std::is_same_v<Member, std::int32_t>)
            member = value;
    });
}

void TakeStoredDouble(sChartSettings& settings, const sSettingPlace& place, double value)
{
    if (!std::isfinite(value))
        return;
    VisitValue(settings, place, [&](auto& member) {
        if constexpr (std::is_same_v<std::decay_t<decltype(member)>, double>)
            member = value;
    });
}

void TakeStoredList(sChartSettings& settings, const sSettingPlace& place, std::string_view text)
{
    const sSettingRow& row = *place.Row;
    const auto entries = SplitList(text);
    VisitMember(settings, row.Member, [&](auto& member) {
        if constexpr (requires { TakeStoredEntry(row, 0, text, member[0]); })
            for (std::size_t i = 0; i < std::min(entries.size(), member.size()); ++i)
                if (!entries[i].empty())
                    TakeStoredEntry(row, i, entries[i], member[i]);
    });
}

bool RequestKindFits(int dataType, std::int32_t kind)
{
    switch (dataType) {
    case 0:
        return kind >= 0 && kind <= 2;
    case 1:
        return kind >= 3 && kind <= 5;
    case 2:
        return kind == 6 || kind == 7;
    case 3:
        return kind == 8;
    case 4:
        return kind == 9;
    default:
        return false;
    }
}

} // namespace zantroq
