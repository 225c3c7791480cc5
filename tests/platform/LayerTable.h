// Which folder of src/ may include which. Arrows point downwards.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace zantroq::test {

using LayerTable = std::map<std::string, std::vector<std::string>>;

inline const LayerTable& MayInclude()
{
    static const LayerTable table{
        {"platform", {}},
        {"market", {"platform"}},
        {"settings", {"platform"}},
        {"scene", {"platform"}},
        {"ink", {"platform", "scene"}},
        {"paint", {"platform", "scene", "ink"}},
        {"drawing", {"platform", "market", "settings", "scene"}},
        {"studies", {"platform", "market", "settings", "scene", "drawing"}},
        {"trends", {"platform", "market", "settings", "scene", "drawing"}},
        {"search", {"platform", "market"}},
        {"window", {"platform", "market", "settings", "scene", "drawing", "studies", "trends", "search"}},
        {"conveniences", {"platform", "market", "window"}},
        {"printing",
         {"platform", "market", "settings", "scene", "drawing", "studies", "trends", "search", "window"}},
        {"replay",
         {"platform", "market", "settings", "scene", "drawing", "studies", "trends", "search", "window"}},
        {"export",
         {"platform", "market", "settings", "scene", "drawing", "studies", "trends", "search", "window"}},
        {"feed", {"platform", "market"}},
        {"qt",
         {"platform", "market", "settings", "scene", "ink", "paint", "drawing", "studies", "trends", "search",
          "window", "conveniences", "printing", "replay", "export", "feed"}},
        {"control",
         {"platform", "market", "settings", "scene", "ink", "paint", "drawing", "studies", "trends", "search",
          "window", "conveniences", "printing", "replay", "export", "feed", "qt"}},
        {"resources", {}},
    };
    return table;
}

} // namespace zantroq::test
