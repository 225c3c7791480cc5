// Where the host's top-level window stood when a chart was last on show, stored by its title, and bringing it
// back there. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"
#include "settings/WindowPosition.h"

#include <optional>

namespace zantroq {

// Moves a rectangle onto the screen and widens one of 200 pixels or less to 200 about its centre.
sWindowRect FitToScreen(sWindowRect rect, const sWindowRect& screen);

class CWindowPlacement
{
public:
    CWindowPlacement(ISettingsKey& key, ITopLevelWindow& top) : m_key(key), m_top(top) {}

    void SetResizeParentWindow(bool resize); // true also brings the window to its stored place
    bool ResizeParentWindow() const { return m_resizeParent; }

    void LoadWindowPosition(); // for the current title; what is missing takes its default
    // Under the current title, and only where the host asked for it. A window that stands where a default put
    // it, because its place could not be read, was not placed by the user: nothing is saved then.
    void SaveIfAsked();
    const sWindowPosition& Position() const { return m_position; }

private:
    void Apply();

    ISettingsKey& m_key;
    ITopLevelWindow& m_top;
    sWindowPosition m_position;
    bool m_resizeParent = false;
    bool m_isUnread = false;                  // the position could not be read
    std::optional<sWindowPosition> m_default; // where a default put the window in place of an unread position
};

} // namespace zantroq
