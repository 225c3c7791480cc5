// Where the user's settings file stands. Pure look at the environment; any thread that does not change the
// environment.
#pragma once

#include <string>

namespace zantroq {

// $ZANTROQ_SETTINGS, else $XDG_CONFIG_HOME/zantroq/settings.db, else ~/.config/zantroq/settings.db. An empty
// variable counts as not set, and so does a relative $XDG_CONFIG_HOME. The answer is absolute; it is empty
// when there is no home directory either.
std::string SettingsFilePath();

} // namespace zantroq
