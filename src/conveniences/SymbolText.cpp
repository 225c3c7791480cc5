#include "conveniences/SymbolText.h"

namespace zantroq {

std::string TrimmedSymbol(std::string_view text)
{
    constexpr std::string_view Blanks = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(Blanks) + 1 - first));
}

} // namespace zantroq
