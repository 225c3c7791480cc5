#include "conveniences/Questions.h"

namespace zantroq {

bool AsksToDelete(const std::string& text)
{
    return text.starts_with("Delete ") || text.starts_with("Do you really want to delete ") ||
           text.starts_with("Do you really want to clear ");
}

std::string BoxTitle(const std::string& text, const std::string& caption)
{
    if (!caption.empty())
        return caption;
    return text.find("trendline") != std::string::npos ? "Trendline deletion" : "Chart";
}

} // namespace zantroq
