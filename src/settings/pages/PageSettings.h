// Which page of the settings sheet shows which stored setting, and why the others are on no page. Constant
// data, any thread.
#pragma once

#include <span>

namespace zantroq {

// String numbers in the order of the page's fields. `page` is 0 to 4.
std::span<const int> SettingsOfPage(int page);

struct sOffSheet
{
    int Id;
    const char* Reason;
};
std::span<const sOffSheet> SettingsOnNoPage();

// The position of a setting in the order of pages and fields; settings on no page come last.
int SheetOrder(int id);

} // namespace zantroq
