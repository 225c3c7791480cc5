// Numbers of the settings that code refers to one by one; code reaches all others only through the table.
// SettingName() gives the stored name. Constants.
#pragma once

namespace zantroq {

inline constexpr int GridId = 32785, ShowPriceBarId = 32898;
inline constexpr int DataTypeId = 32904, IntervalIndexId = 32908;
inline constexpr int ScrollItemsId = 32791, ScrollPercentId = 32792;
inline constexpr int MacdShortId = 32816, MacdLongId = 32817;
inline constexpr int PaneCountId = 32882, TypeOfPaneId = 32883, TopOfPaneId = 32884, MaximizedId = 32895,
                     MinimizedId = 32896;
inline constexpr int OldPeriodId = 32802, OldCustomPeriodId = 32803, PeriodId = 32905;
inline constexpr int RequestKindsId = 32912;

} // namespace zantroq
