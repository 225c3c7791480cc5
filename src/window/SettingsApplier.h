// What a settings sheet closed with OK does to the window: stores what differs, adjusts the parts concerned,
// and asks the feed for the whole series again. Chart window's thread.
#pragma once

#include "window/WindowDialogs.h"

#include <string>

namespace zantroq {

// The parts of the window that a change of settings reaches.
class ISettingsTarget
{
public:
    virtual ~ISettingsTarget() = default;
    virtual void SetResetScale(bool reset) = 0;
    virtual void RebuildGrid() = 0;   // with its status texts
    virtual void PointsChanged() = 0; // "PTS INDEX"
    virtual void ScrollStepChanged() = 0;
    virtual void AxisSideChanged() = 0;
    virtual void StudyListChanged(const sPaneStack& wanted) = 0;
    virtual void PaneLayoutChanged() = 0;
    virtual void TrendStylesChanged() = 0;
    virtual void BarsChanged() = 0; // boxes, check buttons and marker
    // Takes the symbol box's text as the current symbol; answers the one before.
    virtual std::string TakeSymbol() = 0;
    virtual bool DrawChart() = 0;
    virtual void RedrawWithoutRequest() = 0;
};

// The effects are a combination of SettingEffect, as the settings table gives them for what differs between
// before and settings, which are already stored and in force but for the list of displayed studies.
void ApplyEffects(ISettingsTarget& target, unsigned effects, const sChartSettings& settings,
                  const sPaneStack& wantedPanes, bool resetScaleNow);

} // namespace zantroq
