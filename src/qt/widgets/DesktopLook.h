// The dark palette for desktops that do not provide a palette of their own. Chart window's thread.
#pragma once

#include <QPalette>

namespace zantroq {

// For everything around the panes; the panes' colors are settings.
QPalette DarkPalette();

} // namespace zantroq
