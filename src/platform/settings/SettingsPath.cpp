#include "platform/settings/SettingsPath.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace zantroq {
namespace {

std::string Variable(const char* name)
{
    const char* text = std::getenv(name);
    return text ? text : "";
}

std::string HomeFolder()
{
    std::string home = Variable("HOME");
    if (!home.empty())
        return home;
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found && found->pw_dir)
        return found->pw_dir;
    return "";
}

std::string Absolute(const std::filesystem::path& path)
{
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return error ? path.string() : absolute.string();
}

} // namespace

std::string SettingsFilePath()
{
    if (const std::string own = Variable("ZANTROQ_SETTINGS"); !own.empty())
        return Absolute(own);
    const std::filesystem::path inFolder = std::filesystem::path("zantroq") / "settings.db";
    if (const std::filesystem::path config = Variable("XDG_CONFIG_HOME"); config.is_absolute())
        return (config / inFolder).string();
    const std::string home = HomeFolder();
    return home.empty() ? "" : Absolute(std::filesystem::path(home) / ".config" / inFolder);
}

} // namespace zantroq
