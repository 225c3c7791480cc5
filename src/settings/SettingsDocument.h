// The text of docs/settings.md, generated from the table. Pure function, any thread.
#pragma once

#include <string>

namespace zantroq {

std::string SettingsDocument();

} // namespace zantroq
