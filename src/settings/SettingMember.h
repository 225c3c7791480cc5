// Access to the member of a settings row in a record, whatever its type. Pure functions, any thread.
#pragma once

#include "settings/SettingsTable.h"

namespace zantroq {

// Calls `call` with the member, which is a value or an array.
template<class Call> void VisitMember(sChartSettings& settings, const SettingMember& member, Call call)
{
    std::visit(
        [&](auto get) {
            if constexpr (!std::is_same_v<decltype(get), std::monostate>)
                call(get(settings));
        },
        member);
}

// Calls `call` with the value at `place`: the member, or one element of it if it is an array.
template<class Call> void VisitValue(sChartSettings& settings, const sSettingPlace& place, Call call)
{
    VisitMember(settings, place.Row->Member, [&](auto& member) {
        if constexpr (requires { member.size(); })
            call(member[static_cast<std::size_t>(place.Number)]);
        else
            call(member);
    });
}

} // namespace zantroq
