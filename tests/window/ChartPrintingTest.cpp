#include "printing/ChartPrinting.h"

#include "platform/TemporaryFile.h"
#include "window/PrintFakes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace zantroq {
namespace {

using test::PrintLog;

struct sPrinting
{
    int Run()
    {
        Log.clear();
        return CChartPrinting(
                   Chart, [this] { return Now; }, Manner)
            .Run(Dialog);
    }
    long Times(const std::string& event) const { return std::count(Log.begin(), Log.end(), event); }

    PrintLog Log;
    sPrintManner Manner;
    sTIME_W_MILLISECONDS Now = MakeTime({2024, 3, 1, 14, 5, 9});
    test::sFakePrintedChart Chart{Log};
    test::sFakePrintJob Job{Log};
    test::sFakePrintDialog Dialog{Log, &Job};
};

TEST(ChartPrinting, GoesFromTheDialogToTheFocusThatReturns)
{
    sPrinting print;
    EXPECT_EQ(print.Run(), 1);
    EXPECT_EQ(print.Log, (PrintLog{"ask 1", "status Loading...", "status Print ...", "disable draw",
                                   "document Chart", "page", "pane", "pane", "heading", "end page",
                                   "end document", "status Ready", "enable draw", "focus"}));
}

// Panes with white texts and their marker on.
void SetUpForADarkScreen(sPrinting& print)
{
    for (CChart2D& pane : print.Chart.Panes) {
        pane.PaneInterior().SetForeground(0xFFFFFF);
        pane.PaneArea().PaneMarkers("x").SetShown(true);
    }
}

TEST(ChartPrinting, ThePlainPageKeepsTheColorsAndTheMarkerOfTheScreen)
{
    sPrinting print;
    SetUpForADarkScreen(print);
    print.Run();
    for (const auto& drawn : print.Job.Drawn) {
        EXPECT_EQ(drawn.Text, 0xFFFFFFU);
        EXPECT_TRUE(drawn.MarkerShown);
    }
}

TEST(ChartPrinting, APageWithPaperInkHasReadableTextsAndNoMarker)
{
    sPrinting print;
    SetUpForADarkScreen(print);
    print.Manner.PaperInk = true;
    print.Run();
    ASSERT_EQ(print.Job.Drawn.size(), 2U);
    for (const auto& drawn : print.Job.Drawn) {
        EXPECT_LT(drawn.Text & 0xFF, 0x80U);
        EXPECT_FALSE(drawn.MarkerShown);
    }
    EXPECT_EQ(print.Chart.Panes[0].PaneInterior().Foreground(), 0xFFFFFFU) << "the screen stays as it is";
}

TEST(ChartPrinting, APointThatWasClickedKeepsItsMarkerOnPaper)
{
    sPrinting print;
    SetUpForADarkScreen(print);
    print.Manner.PaperInk = true;
    print.Chart.Note = true;
    print.Run();
    ASSERT_FALSE(print.Job.Drawn.empty());
    EXPECT_TRUE(print.Job.Drawn[0].MarkerShown);
}

TEST(ChartPrinting, ANoticeStandsAtTheEndOfTheHeading)
{
    sPrinting print;
    print.Manner.Notice = "simulated market";
    print.Run();
    ASSERT_EQ(print.Job.Headings.size(), 1U);
    EXPECT_EQ(print.Job.Headings[0].Runs.back().Text, "simulated market");
}

TEST(ChartPrinting, ACancelledDialogReturnsTheFocusAndNothingElse)
{
    sPrinting print;
    print.Dialog.Job = nullptr;
    EXPECT_EQ(print.Run(), 0);
    EXPECT_EQ(print.Log, (PrintLog{"ask 1", "focus"}));
}

TEST(ChartPrinting, PrintsTheWholeDocumentForEachCopy)
{
    sPrinting print;
    print.Job.CopiesAsked = 3;
    EXPECT_EQ(print.Run(), 3);
    EXPECT_EQ(print.Times("document Chart"), 3);
    EXPECT_EQ(print.Times("page"), 3);
    EXPECT_EQ(print.Times("pane"), 6);
    EXPECT_EQ(print.Times("heading"), 3);
    EXPECT_EQ(print.Times("end document"), 3);
    EXPECT_EQ(print.Times("status Print ..."), 1);
    for (std::size_t drawn = 2; drawn < 6; ++drawn)
        EXPECT_EQ(print.Job.Drawn[drawn].Box, print.Job.Drawn[drawn - 2].Box);
}

TEST(ChartPrinting, APageThatDoesNotStartEndsTheLoop)
{
    sPrinting print;
    print.Job.CopiesAsked = 3;
    print.Job.PageAnswers = {true, false};
    EXPECT_EQ(print.Run(), 1);
    EXPECT_EQ(print.Log,
              (PrintLog{"ask 1", "status Loading...", "status Print ...", "disable draw", "document Chart",
                        "page", "pane", "pane", "heading", "end page", "end document", "document Chart",
                        "page", "end document", "status Ready", "enable draw", "focus"}));
}

TEST(ChartPrinting, ADocumentThatDoesNotStartIsEndedAndTheNextCopyTried)
{
    sPrinting print;
    print.Job.CopiesAsked = 2;
    print.Job.DocumentAnswers = {false, true};
    EXPECT_EQ(print.Run(), 1);
    EXPECT_EQ(print.Log,
              (PrintLog{"ask 1", "status Loading...", "status Print ...", "disable draw", "document Chart",
                        "end document", "document Chart", "page", "pane", "pane", "heading", "end page",
                        "end document", "status Ready", "enable draw", "focus"}));
}

TEST(ChartPrinting, NoCopiesPrintNothing)
{
    sPrinting print;
    print.Job.CopiesAsked = 0;
    EXPECT_EQ(print.Run(), 0);
    EXPECT_EQ(print.Log, (PrintLog{"ask 1", "status Loading...", "status Print ...", "disable draw",
                                   "status Ready", "enable draw", "focus"}));
}

TEST(ChartPrinting, PrintsCopiesOfTheDisplayedPanesInOrder)
{
    sPrinting print;
    print.Run();
    ASSERT_EQ(print.Job.Drawn.size(), 2u);
    EXPECT_EQ(print.Job.Drawn[0].Box, (sPageBox{0, 2100, 4800, 1800}));
    EXPECT_EQ(print.Job.Drawn[1].Box, (sPageBox{0, 3900, 4800, 600}));
    for (std::size_t pane = 0; pane < 2; ++pane) {
        EXPECT_NE(print.Job.Drawn[pane].Pane, &print.Chart.Panes[pane]);
        EXPECT_EQ(print.Job.Drawn[pane].Background, 0xFFFFFFu);
        EXPECT_EQ(print.Chart.Panes[pane].PaneInterior().Background(), 0u);
    }
}

TEST(ChartPrinting, AHiddenPaneIsNotPrinted)
{
    sPrinting print;
    print.Chart.Shown = 1;
    print.Run();
    EXPECT_EQ(print.Times("pane"), 1);
    print.Chart.Shown = 3;
    print.Run();
    EXPECT_EQ(print.Times("pane"), 3);
}

TEST(ChartPrinting, TheHeadingCarriesTheMomentOfItsPage)
{
    sPrinting print;
    print.Chart.Settings.DataType = 2;
    print.Run();
    ASSERT_EQ(print.Job.Headings.size(), 1u);
    ASSERT_EQ(print.Job.Headings[0].Runs.size(), 2u);
    EXPECT_EQ(print.Job.Headings[0].Runs[0].Text, "MSFT Daily");
    EXPECT_EQ(print.Job.Headings[0].Runs[1].Text, "14:05:09 on 2024/03/01");
    // 10 characters of 100, stops at 1440 and 2160, 22 characters: 4360.
    EXPECT_EQ(print.Job.Headings[0].Left, (20 * 600 - 4360) / 2);
}

TEST(ChartPrinting, NoTemporaryFileIsLeft)
{
    const std::string folder = TemporaryFolder() + "/zantroq-printing-" + std::to_string(::getpid());
    std::filesystem::create_directory(folder);
    ::setenv("TMPDIR", folder.c_str(), 1);
    sPrinting print;
    EXPECT_EQ(print.Run(), 1);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    std::filesystem::remove_all(folder);
    EXPECT_EQ(print.Run(), 1); // and with nowhere to write the page still comes
    EXPECT_EQ(print.Times("pane"), 2);
    ::unsetenv("TMPDIR");
}

} // namespace
} // namespace zantroq
