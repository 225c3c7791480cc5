// The part of the readout about the displayed studies at a point.
#include "StudyPane.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;

enum class Stochastics
{
    Slow,
    Fast
};

// The line of a pane whose first point has these values, one for each series of group 1.
std::string Study(int kind, const std::vector<double>& values, Stochastics speed = Stochastics::Slow)
{
    CStudyPane pane(kind);
    pane.Settings().StoFast = speed == Stochastics::Fast ? 1 : 0;
    pane.Data().SetSeriesCount(static_cast<int>(values.size()));
    pane.Data().SetPointCount(1, 1);
    for (std::size_t i = 0; i < values.size(); ++i)
        pane.Data().SetPointY(static_cast<int>(i) + 1, 1, values[i]);
    return pane.Study().ReadoutText(1);
}

TEST(StudyReadout, EachStudyHasItsLine)
{
    EXPECT_EQ(Study(StudyRSI, {55.55}), "\nRSI:55.5");
    EXPECT_EQ(Study(StudyMomentum, {-1.5}), "\nMomentum:-1.50");
    EXPECT_EQ(Study(StudyROC, {101.256}), "\nROC:101.26");
    EXPECT_EQ(Study(StudyOBV, {-1234567}), "\nOBV:-1,230,000");
    EXPECT_EQ(Study(StudyMACD, {0.1234, 0.5}), "\nMACD:0.123Signal:0.500");
    EXPECT_EQ(Study(StudyMACD, {0.1234, Hole}), "\nMACD:0.123");
    EXPECT_EQ(Study(StudyStochastics, {80, 70}), "\nSlowSTO%K:80.0STO%D:70.0");
    EXPECT_EQ(Study(StudyStochastics, {80, Hole}, Stochastics::Fast), "\nFastSTO%K:80.0");
    EXPECT_EQ(Study(StudyVolume, {1000}), "");
    EXPECT_EQ(Study(StudyMoneyFlow, {1234567, 1000, 0}), "\nMoney Flow:1.23M, pos:1.00K, neg:");
    EXPECT_EQ(Study(StudyMFI, {50.04}), "\nMFI:50.0");
    EXPECT_EQ(Study(StudyADX, {20, 30.25, 10}), "\nADX:20.0, +DI:30.2, -DI:10.0");
}

TEST(StudyReadout, AStudyWithoutAValueSaysNothing)
{
    for (int kind = 0; kind < StudyKinds; ++kind)
        EXPECT_EQ(Study(kind, {Hole, 1, 2}), "") << kind;
    EXPECT_EQ(CStudyPane(StudyRSI).Study().ReadoutText(2), "") << "a point that is not there";
}

} // namespace
} // namespace zantroq
