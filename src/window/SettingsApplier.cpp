#include "window/SettingsApplier.h"

#include "settings/SettingsTable.h"

namespace zantroq {

void ApplyEffects(ISettingsTarget& target, unsigned effects, const sChartSettings& settings,
                  const sPaneStack& wantedPanes, bool resetScaleNow)
{
    const std::string previousSymbol = target.TakeSymbol();
    target.SetResetScale(resetScaleNow || ((effects & EffectFixedScale) != 0 && settings.FixedScale));
    if ((effects & EffectGrid) != 0)
        target.RebuildGrid();
    if ((effects & EffectScrollStep) != 0)
        target.ScrollStepChanged();
    if ((effects & EffectAxisSide) != 0)
        target.AxisSideChanged();
    if ((effects & EffectStudyList) != 0)
        target.StudyListChanged(wantedPanes);
    else if ((effects & EffectPaneLayout) != 0)
        target.PaneLayoutChanged();
    if ((effects & EffectTrends) != 0)
        target.TrendStylesChanged();
    if ((effects & (EffectPriceBar | EffectRequest | EffectGrid | EffectLevel1)) != 0)
        target.BarsChanged();
    if ((effects & EffectPoints) != 0)
        target.PointsChanged();
    // Any OK asks the feed again, whatever was changed; without a chart there is nothing to ask for.
    if (!previousSymbol.empty() && !target.DrawChart())
        target.RedrawWithoutRequest();
}

} // namespace zantroq
