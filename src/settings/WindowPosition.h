// The stored position of a top-level window, by its title. Window's thread.
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

// "RectPosition." + title. The value has 16 bytes, four signed little-endian 32-bit numbers: left, top,
// right, bottom.
std::string WindowRectName(const std::string& title);
// "RectPosition." + title + ".Maximized": a number, 1 if the window was maximized.
std::string WindowMaximizedName(const std::string& title);

// A rectangle that is missing or not 16 bytes becomes 0, 0, 620, 460; a flag that is missing or not 1 means
// not maximized. Values that cannot be read get the same defaults. Returns true if everything could be read.
bool LoadWindowPosition(ISettingsKey& key, const std::string& title, sWindowPosition& position);

void SaveWindowPosition(ISettingsKey& key, const std::string& title, const sWindowPosition& position);

// The window's restored rectangle and its state.
sWindowPosition PositionOf(const ITopLevelWindow& window);

} // namespace zantroq
