// Stores the position of the host's top-level window by its title and restores it. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"
#include "settings/WindowPosition.h"

#include <optional>

namespace zantroq {

// Moves a rectangle onto the screen, and enlarges a width or height of 200 pixels or less to 200 around its
// centre.
sWindowRect FitToScreen(sWindowRect rect, const sWindowRect& screen);

class CWindowPlacement
{
public:
    CWindowPlacement(ISettingsKey& key, ITopLevelWindow& top) : m_key(key), m_top(top) {}

    void SetResizeParentWindow(bool resize); // true also moves the window to its stored position
    bool ResizeParentWindow() const { return m_resizeParent; }

    void LoadWindowPosition(); // for the current title; missing values get defaults
    // Stores the position under the current title if the host asked for it. Does nothing if the stored
    // position could not be read and the window is still at the default position, because the user did not
    // choose that position.
    void SaveIfAsked();
    const sWindowPosition& Position() const { return m_position; }

private:
    void Apply();

    ISettingsKey& m_key;
    ITopLevelWindow& m_top;
    sWindowPosition m_position;
    bool m_resizeParent = false;
    bool m_isUnread = false; // the position could not be read
    std::optional<sWindowPosition>
        m_default; // default position used because the stored one could not be read
};

} // namespace zantroq
