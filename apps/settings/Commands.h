// What zantroq-settings does, one function a subcommand. Results go to standard output, messages to standard
// error; each answers the exit code of the program. A CSettingsFileError goes through to the caller.
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

// One sentence behind the program's name.
void Complain(const std::string& sentence);

int ListValues(CSettingsFile& file, const std::string& key, bool asJson);
int GetValue(CSettingsFile& file, const std::string& key, const std::string& name);
int SetValue(CSettingsFile& file, const std::string& key, const std::string& name, const std::string& value,
             const std::string& type);
int DeleteValue(CSettingsFile& file, const std::string& key, const std::string& name);
// All keys where none is given.
int ExportValues(CSettingsFile& file, const std::optional<std::string>& key, const std::string& target);
int ImportValues(CSettingsFile& file, const std::optional<std::string>& key, const std::string& source);
int ResetKey(CSettingsFile& file, const std::string& key, bool confirmed);

} // namespace zantroq
