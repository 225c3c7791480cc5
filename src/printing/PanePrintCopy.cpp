#include "printing/PanePrintCopy.h"

namespace zantroq {

namespace {

constexpr ColorValue Paper = 0xFFFFFF;

void Pin(CPixelValue& value)
{
    const int pixels = value.Value();
    value.SetAutomatic(false);
    value.SetValue(pixels);
}

} // namespace

std::unique_ptr<CChart2D> MakePanePrintCopy(const CChart2D& pane, const sPaneSize& client,
                                            const std::string& folder)
{
    auto copy = std::make_unique<CChart2D>();
    CPaneArea& area = copy->PaneArea();
    area.AreaBox().Width().SetValue(client.Width);
    area.AreaBox().Height().SetValue(client.Height);
    CTemporaryFile file("CHT", folder);
    pane.SaveToFile(file.Path());
    copy->LoadFromFile(file.Path());
    file.Remove();
    copy->SetInteractive(false);
    copy->PaneInterior().SetBackground(Paper);
    area.Interior().SetBackground(Paper);
    // On screen the plot has its own background; on paper the area's background is visible.
    area.PlotFrame().Interior().ClearBackground();
    Pin(area.PlotFrame().LeftMargin());
    Pin(area.PlotFrame().RightMargin());
    Pin(area.AreaBox().Left());
    Pin(area.AreaBox().Width());
    return copy;
}

} // namespace zantroq
