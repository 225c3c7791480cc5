// The subcommands of zantroq-settings, one function each. Results go to standard output, messages to
// standard error; each returns the exit code of the program. A CSettingsFileError is passed on to the
// caller. Main thread.
#pragma once

#include "platform/settings/SettingsFile.h"

#include <optional>
#include <string>

namespace zantroq {

enum ExitCode : int
{
    ExitDone = 0,
    ExitNotThere = 1,
    ExitUsage = 2,
    ExitNotWritten = 4
};

// Prints the program's name and a sentence on standard error.
void Complain(const std::string& sentence);

int ListValues(CSettingsFile& file, const std::string& key, bool asJson);
int GetValue(CSettingsFile& file, const std::string& key, const std::string& name);
int SetValue(CSettingsFile& file, const std::string& key, const std::string& name, const std::string& value,
             const std::string& type);
int DeleteValue(CSettingsFile& file, const std::string& key, const std::string& name);
// Without a key, all keys.
int ExportValues(CSettingsFile& file, const std::optional<std::string>& key, const std::string& target);
int ImportValues(CSettingsFile& file, const std::optional<std::string>& key, const std::string& source);
int ResetKey(CSettingsFile& file, const std::string& key, bool confirmed);

} // namespace zantroq
