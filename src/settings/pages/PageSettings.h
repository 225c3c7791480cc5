// Which stored setting stands on which page of the settings sheet, and why the others stand on none. Constant
// data, any thread.
#pragma once

#include <span>

namespace zantroq {

// String numbers in the order of the page's fields; pages are 0 to 4.
std::span<const int> SettingsOfPage(int page);

struct sOffSheet
{
    int Id;
    const char* Reason;
};
std::span<const sOffSheet> SettingsOnNoPage();

// The place of a setting in the order of pages and fields; settings on no page come last.
int SheetOrder(int id);

} // namespace zantroq
