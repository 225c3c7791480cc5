#include "scene/PaneTextCheck.h"

#include <cstddef>
#include <stdexcept>

namespace zantroq {

void RefuseDeepValue()
{
    throw std::runtime_error("pane file: values lie deeper in one another than in any pane file");
}

void CheckPaneText(std::string_view text)
{
    int depth = 0; // of the value that begins next
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
        case '\0':
            throw std::runtime_error("pane file: a NUL byte at offset " + std::to_string(i));
        case ' ':
        case '\n':
        case '\r':
        case '\t':
            break;
        case ']':
        case '}':
            --depth;
            break;
        default:
            if (depth > DeepestPaneValue)
                RefuseDeepValue();
            if (text[i] == '[' || text[i] == '{')
                ++depth;
            else if (text[i] == '"')
                for (++i; i < text.size() && text[i] != '"'; ++i)
                    if (text[i] == '\\')
                        ++i;
        }
    }
}

} // namespace zantroq
