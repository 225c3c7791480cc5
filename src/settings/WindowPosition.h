// Where a top-level window stood, by its title. Lives on the chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"

#include <string>

namespace zantroq {

struct sWindowPosition
{
    sWindowRect Rect{0, 0, 620, 460}; // restored size, in screen pixels
    bool Maximized = false;
    bool operator==(const sWindowPosition&) const = default;
};

// "RectPosition." + title: 16 bytes, four signed 32-bit numbers with the low byte first: left, top, right,
// bottom.
std::string WindowRectName(const std::string& title);
// The same + ".Maximized": a number, 1 when the window was maximized.
std::string WindowMaximizedName(const std::string& title);

// A missing rectangle, or one that is not 16 bytes, is 0, 0, 620, 460; a flag that is missing or not 1 means
// not maximized. What could not be read takes the same defaults. Answers whether everything could be read.
bool LoadWindowPosition(ISettingsKey& key, const std::string& title, sWindowPosition& position);

void SaveWindowPosition(ISettingsKey& key, const std::string& title, const sWindowPosition& position);

// The window's restored rectangle and state.
sWindowPosition PositionOf(const ITopLevelWindow& window);

} // namespace zantroq
