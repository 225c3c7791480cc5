// The records by which a host that knows only "Brivane.Chart.1" finds the module: keys below
// Software\Classes in the user's settings file. No toolkit; any thread, one at a time.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zantroq {

enum RegistrationResult : std::uint32_t
{
    Registered = 0,
    NoTypeLibrary = 0x80040200,
    NoClass = 0x80040201
};

struct sRegistrationRecord
{
    std::string Key, Name, Value;
};
using RegistrationRecords = std::vector<sRegistrationRecord>;

RegistrationRecords TypeLibraryRecords(const std::string& modulePath);
RegistrationRecords ClassRecords(const std::string& modulePath);
RegistrationRecords CategoryRecords();
RegistrationRecords ImplementedRecords();

// Opens a key of the settings by its path.
using OpenKey = std::function<std::unique_ptr<ISettingsKey>(const std::string& path)>;

// Writes in this order: type library, class, categories, the categories that the class implements. A failure of
// the last two skips the rest and is not reported. Records that were written before a failure stay. An empty
// path counts as a failure of the type library, because the module contains the type library.
RegistrationResult RegisterModule(const OpenKey& open, const std::string& modulePath);

// Removes the type library, then the class with the categories that it implements. Missing records are no
// failure. The categories themselves stay, because other classes may implement them.
RegistrationResult UnregisterModule(const OpenKey& open);

} // namespace zantroq
