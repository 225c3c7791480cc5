// docs/settings.md, made from the table so that it cannot say anything else.
#pragma once

#include <string>

namespace zantroq {

std::string SettingsDocument();

} // namespace zantroq
