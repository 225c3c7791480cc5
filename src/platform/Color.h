// The color type of settings, pane files and scenes.
#pragma once

#include <cstdint>

namespace zantroq {

// Red in the low byte: 0x00BBGGRR.
using ColorValue = std::uint32_t;

} // namespace zantroq
