// The path of the user's settings file. Reads the environment; any thread while no thread changes the
// environment.
#pragma once

#include <string>

namespace zantroq {

// $ZANTROQ_SETTINGS, else $XDG_CONFIG_HOME/zantroq/settings.db, else ~/.config/zantroq/settings.db. An empty
// variable counts as not set, and so does a relative $XDG_CONFIG_HOME. The result is an absolute path, or
// empty if there is no home directory either.
std::string SettingsFilePath();

} // namespace zantroq
