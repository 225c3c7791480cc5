// The exchange format of the settings: everything that is read must be written and read back the same.
#include "settings/SettingsExchange.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace zantroq;
    SettingsTree tree;
    try {
        tree = ParseSettings({reinterpret_cast<const char*>(data), size});
    } catch (const CSettingsFormatError&) {
        return 0;
    }
    if (ParseSettings(FormatSettings(tree)) != tree)
        std::abort();
    for (const auto& [key, values] : tree)
        for (const auto& [name, value] : values) {
            const std::string line = ListingLine(name, value);
            if (line.find('\n') != std::string::npos || std::count(line.begin(), line.end(), '\t') != 2)
                std::abort();
            if (ValueFromText(TypeNameOf(value), ValueText(value)) != value)
                std::abort();
        }
    return 0;
}
