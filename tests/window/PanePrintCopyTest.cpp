#include "printing/PanePrintCopy.h"

#include "scene/PaneFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <unistd.h>

namespace zantroq {
namespace {

constexpr ColorValue Night = 0x1a1008, Chalk = 0xe0e0e0, White = 0xFFFFFF;

// A folder for this test only, so that no other files are counted.
struct sFolder
{
    sFolder()
    {
        static int number = 0;
        Path = TemporaryFolder() + "/zantroq-print-" + std::to_string(::getpid()) + "-" +
               std::to_string(++number);
        std::filesystem::create_directory(Path);
    }
    ~sFolder() { std::filesystem::remove_all(Path); }
    bool Empty() const { return std::filesystem::is_empty(Path); }
    std::string Path;
};

// Changes every kind of state from its default.
void Fill(CChart2D& pane)
{
    for (CPaneInterior* interior :
         {&pane.PaneInterior(), &pane.PaneArea().Interior(), &pane.PaneArea().PlotFrame().Interior()}) {
        interior->SetBackground(Night);
        interior->SetForeground(Chalk);
    }
    pane.PaneArea().AreaBox().Left().SetValue(3);
    pane.PaneArea().AreaBox().Width().SetValue(640);
    pane.PaneArea().AreaBox().Height().SetValue(210);
    pane.PaneArea().PlotFrame().LeftMargin().SetValue(23);
    pane.PaneArea().PlotFrame().RightMargin().SetValue(58);
    pane.PaneArea().BarLook().SetBarWidth(4);
    pane.PaneArea().PaneAxes().Y().ViewLow().SetValue(99.5);
    pane.PaneArea().PaneAxes().Y().ViewHigh().SetValue(101.25);
    pane.PaneArea().PaneAxes().Y().TickLabels().Add(100, "100.00");
    CPaneGroup& group = pane.PaneGroups(1);
    group.SetChartType(ChartLines);
    group.PaneData().SetSeriesCount(2);
    group.PaneData().SetPointCount(1, 3);
    for (int point = 1; point <= 3; ++point) {
        group.PaneData().SetPointX(1, point, point);
        group.PaneData().SetPointY(1, point, 100 + point / 3.0);
    }
    group.SeriesStyles(1).LineLook().SetColor(0x0000FF);
    pane.PaneLabels().Add().SetText("MSFT");
    pane.PaneLabels().Item(1).Interior().SetBackground(0x232323);
    pane.PaneLabels().Item(1).SetShown(true);
    pane.PaneArea().PaneMarkers("x").SetShown(true);
    pane.PaneArea().PaneMarkers("x").SetPoint(2);
}

TEST(PanePrintCopy, IsTheWholePaneButForItsBackgrounds)
{
    CChart2D pane;
    Fill(pane);
    const auto copy = MakePanePrintCopy(pane, {640, 210});
    nlohmann::json wanted = nlohmann::json::parse(PaneToText(pane));
    wanted["interior"]["background"] = White;
    wanted["more"]["areaInterior"]["background"] = White;
    nlohmann::json made = nlohmann::json::parse(PaneToText(*copy));
    wanted["more"].erase("plotInterior");
    made["more"].erase("plotInterior");
    EXPECT_EQ(made, wanted) << nlohmann::json::diff(wanted, made).dump();
}

TEST(PanePrintCopy, IsWhiteAroundAndBehindThePlot)
{
    CChart2D pane;
    Fill(pane);
    const auto copy = MakePanePrintCopy(pane, {640, 210});
    EXPECT_EQ(copy->PaneInterior().Background(), White);
    EXPECT_EQ(copy->PaneArea().Background(copy->PaneInterior()), White);
    EXPECT_EQ(copy->PaneArea().PlotBackground(copy->PaneInterior()), White);
}

TEST(PanePrintCopy, KeepsTheColorOfTheAxisTexts)
{
    CChart2D pane;
    Fill(pane);
    EXPECT_EQ(MakePanePrintCopy(pane, {640, 210})->PaneInterior().Foreground(), Chalk);
}

TEST(PanePrintCopy, LeavesThePaneOnScreenAsItIs)
{
    CChart2D pane;
    Fill(pane);
    const std::string before = PaneToText(pane);
    MakePanePrintCopy(pane, {640, 210});
    EXPECT_EQ(PaneToText(pane), before);
}

TEST(PanePrintCopy, FixesAutomaticMarginsAndBoxAtWhatTheyAre)
{
    CChart2D pane;
    CPlotFrame& frame = pane.PaneArea().PlotFrame();
    for (CPixelValue* value : {&frame.LeftMargin(), &frame.RightMargin(), &pane.PaneArea().AreaBox().Left(),
                               &pane.PaneArea().AreaBox().Width()})
        value->SetAutomatic(true);
    const auto copy = MakePanePrintCopy(pane, {640, 210});
    const CPlotFrame& copied = copy->PaneArea().PlotFrame();
    EXPECT_FALSE(copied.LeftMargin().Automatic());
    EXPECT_FALSE(copied.RightMargin().Automatic());
    EXPECT_EQ(copied.LeftMargin().Value(), frame.LeftMargin().Value());
    EXPECT_EQ(copied.RightMargin().Value(), frame.RightMargin().Value());
    EXPECT_TRUE(copied.TopMargin().Automatic()); // not one of the four
    EXPECT_FALSE(copy->PaneArea().AreaBox().Left().Automatic());
    EXPECT_FALSE(copy->PaneArea().AreaBox().Width().Automatic());
    EXPECT_EQ(copy->PaneArea().AreaBox().Width().Value(), pane.PaneArea().AreaBox().Width().Value());
}

TEST(PanePrintCopy, ReactsToNobody)
{
    CChart2D pane;
    pane.SetInteractive(true);
    EXPECT_FALSE(MakePanePrintCopy(pane, {640, 210})->Interactive());
    EXPECT_TRUE(pane.Interactive());
}

TEST(PanePrintCopy, ItsTemporaryFileIsGone)
{
    const sFolder folder;
    CChart2D pane;
    Fill(pane);
    const auto copy = MakePanePrintCopy(pane, {640, 210}, folder.Path);
    EXPECT_EQ(copy->PaneLabels().Count(), 1);
    EXPECT_TRUE(folder.Empty());
}

TEST(PanePrintCopy, WithoutRoomForItsFileIsAnEmptyWhitePaneOfTheClientSize)
{
    CChart2D pane;
    Fill(pane);
    const auto copy = MakePanePrintCopy(pane, {640, 210}, "/no-such-folder");
    EXPECT_EQ(copy->PaneLabels().Count(), 0);
    EXPECT_EQ(copy->PixelWidth(), 640);
    EXPECT_EQ(copy->PixelHeight(), 210);
    EXPECT_EQ(copy->PaneArea().PlotBackground(copy->PaneInterior()), White);
    EXPECT_FALSE(copy->Interactive());
}

} // namespace
} // namespace zantroq
