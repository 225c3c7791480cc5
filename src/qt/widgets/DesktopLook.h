// The dark look for desktops that do not hand their own palette to programs. Chart window's thread.
#pragma once

#include <QPalette>

namespace zantroq {

// Everything around the panes; their own colors are settings.
QPalette DarkPalette();

} // namespace zantroq
