#include "feed/server/FeedServer.h"

#include <cstdlib>

namespace zantroq::feed {

std::filesystem::path ShippedDataFolder()
{
    if (const char* const given = std::getenv("ZANTROQ_DATA"); given && *given)
        return given;
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto installed = program.parent_path().parent_path() / "share" / "zantroq-chart" / "data";
    if (!error && std::filesystem::is_directory(installed, error))
        return installed;
    return ZANTROQ_SOURCE_DATA;
}

} // namespace zantroq::feed
