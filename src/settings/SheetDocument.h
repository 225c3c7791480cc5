// The section of docs/settings.md about the settings sheet. Pure function.
#pragma once

#include <string>

namespace zantroq {

std::string SheetDocument();

} // namespace zantroq
