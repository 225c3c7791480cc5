// The section of docs/settings.md about the settings sheet. Pure function, any thread.
#pragma once

#include <string>

namespace zantroq {

std::string SheetDocument();

} // namespace zantroq
