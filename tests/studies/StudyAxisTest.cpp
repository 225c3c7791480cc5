#include "StudyPane.h"

#include "studies/StudyAxis.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace zantroq {
namespace {

using testing::ElementsAre;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

struct sAxisFixture
{
    CChart2D Chart;
    sStudyAxisLook Look;
    CPaneAxis& Y() { return Chart.PaneArea().PaneAxes().Y(); }
    CPaneAxis& Y2() { return Chart.PaneArea().PaneAxes().Y2(); }
    std::vector<std::string> Labels()
    {
        std::vector<std::string> texts;
        for (const sTickLabel& label : Y().TickLabels().All())
            texts.push_back(label.Text);
        return texts;
    }
    std::vector<double> LabelValues()
    {
        std::vector<double> values;
        for (const sTickLabel& label : Y().TickLabels().All())
            values.push_back(label.Value);
        return values;
    }
};

TEST(AxisStep, TakesTheMultiplierNearestTheQuarter)
{
    struct sRow
    {
        double Top, Step;
        int Exponent;
    };
    // raw is a quarter of the top: 1.4, 1.5, 2.3, 3.4, 7, 7.1 and their like in other decades.
    for (const sRow& row : {sRow{5.6, 1, 0},
                            {6, 2, 0},
                            {9.2, 2.5, -1},
                            {13.6, 5, 0},
                            {28, 5, 0},
                            {28.4, 10, 1},
                            {0.056, 0.01, -2},
                            {56000, 10000, 4},
                            {92000, 25000, 3}}) {
        const sAxisStep axis = ChooseAxisStep(row.Top, 0, 4);
        EXPECT_NEAR(axis.Step, row.Step, row.Step * 1e-12) << row.Top;
        EXPECT_EQ(axis.Exponent, row.Exponent) << row.Top;
    }
}

TEST(AxisStep, StartsAtTheMultipleAtOrBelowTheBottom)
{
    EXPECT_EQ(ChooseAxisStep(10, -7, 4).Step, 5);
    EXPECT_EQ(ChooseAxisStep(10, -7, 4).Start, -10);
    EXPECT_EQ(ChooseAxisStep(30, 15, 4).Start, 15);
}

TEST(AxisStep, EndsOnEveryInput)
{
    const double denormal = std::numeric_limits<double>::denorm_min(),
                 greatest = std::numeric_limits<double>::max();
    for (const double top :
         {0.0, denormal, -denormal, 1e-310, 1.0, 1e300, greatest, -greatest, Infinity, -Infinity, NotANumber})
        for (const double bottom :
             {0.0, denormal, 1.0, greatest, -greatest, Infinity, -Infinity, NotANumber}) {
            const sAxisStep axis = ChooseAxisStep(top, bottom, 4);
            EXPECT_TRUE(std::isfinite(axis.Step) && axis.Step >= 0) << top << ' ' << bottom;
        }
}

TEST(StudyAxis, ZeroAloneRunsToOneWithMargin)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, 0, 0);
    EXPECT_EQ(f.Y().DataHigh().Value(), 1);
    EXPECT_EQ(f.Y().DataLow().Value(), 0);
    EXPECT_EQ(f.Y().ViewHigh().Value(), 1.015);
    // A quarter of 1.03 is 0.2575: a step of 0.25, the first multiple below -0.015.
    EXPECT_EQ(f.Y().ViewLow().Value(), -0.25);
    EXPECT_THAT(f.Labels(), ElementsAre("-0.25", "0.00", "0.25", "0.50", "0.75"));
}

TEST(StudyAxis, NegativeConstantRunsToZero)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, -8, -8);
    EXPECT_EQ(f.Y().DataHigh().Value(), 0);
    EXPECT_EQ(f.Y().DataLow().Value(), -8);
}

TEST(StudyAxis, PositiveConstantRunsFromZero)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, 8, 8);
    EXPECT_EQ(f.Y().DataHigh().Value(), 8);
    EXPECT_EQ(f.Y().DataLow().Value(), 0);
}

TEST(StudyAxis, StepOf2500ReadsInTenthsOfThousands)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, 10000, 0);
    EXPECT_EQ(f.Y().TickSpacing().Value(), 2500);
    EXPECT_THAT(f.Labels(), ElementsAre("-2.5K", "0.0K", "2.5K", "5.0K", "7.5K"));
}

TEST(StudyAxis, SuffixGoesByTheStep)
{
    struct sRow
    {
        double Max;
        const char* Last;
    };
    for (const sRow& row :
         {sRow{4000, "3K"}, {4e6, "3M"}, {4e9, "3B"}, {4e12, "3T"}, {4e15, "3000T"}, {400, "300"}}) {
        sAxisFixture f;
        SetStudyYAxis(f.Chart, f.Look, row.Max, 0);
        EXPECT_EQ(f.Labels().back(), row.Last) << row.Max;
    }
}

TEST(StudyAxis, NoDataOnlyClearsTheLabels)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, 10, 0);
    f.Y2().TickLabels().Add(1, "left over");
    SetStudyYAxis(f.Chart, f.Look, -100, 100);
    EXPECT_TRUE(f.Labels().empty());
    EXPECT_EQ(f.Y2().TickLabels().Count(), 0);
    EXPECT_EQ(f.Y().DataHigh().Value(), 10);
}

TEST(StudyAxis, NoFiniteEndLeavesTheAxisAndClearsTheLabels)
{
    for (const double max : {Infinity, NotANumber, std::numeric_limits<double>::max()}) {
        sAxisFixture f;
        SetStudyYAxis(f.Chart, f.Look, 10, 0);
        SetStudyYAxis(f.Chart, f.Look, max, -std::numeric_limits<double>::max());
        EXPECT_TRUE(f.Labels().empty());
        EXPECT_EQ(f.Y().DataHigh().Value(), 10);
    }
}

TEST(StudyAxis, StepBelowTheValuesResolutionEnds)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, 1e16 + 2, 1e16);
    EXPECT_LE(f.Labels().size(), 20u);
    SetStudyYAxis(f.Chart, f.Look, std::numeric_limits<double>::denorm_min(), 0);
    EXPECT_LE(f.Labels().size(), 20u);
}

TEST(StudyAxis, ZeroLabelReadsExactlyZero)
{
    sAxisFixture f;
    SetStudyYAxis(f.Chart, f.Look, 0.37, -0.37);
    EXPECT_THAT(f.LabelValues(), testing::Contains(0.0));
    EXPECT_THAT(f.Labels(), testing::Contains("0.0"));
}

TEST(StudyAxis, LabelsStandOnTheChosenSideAlone)
{
    sAxisFixture f;
    f.Look.Side = AxisSide::Right;
    SetStudyYAxis(f.Chart, f.Look, 10, 0);
    EXPECT_EQ(f.Y().TickLabels().Count(), 0);
    EXPECT_GT(f.Y2().TickLabels().Count(), 0);
    EXPECT_EQ(f.Y2().ViewHigh().Value(), f.Y().ViewHigh().Value());
    EXPECT_EQ(f.Y2().ViewLow().Value(), f.Y().ViewLow().Value());
}

TEST(StudyAxis, GridSpacingIsWrittenOnlyWithTheGridOn)
{
    sAxisFixture f;
    f.Y().AxisGrid().SetSpacing(77);
    SetStudyYAxis(f.Chart, f.Look, 10, 0);
    EXPECT_EQ(f.Y().AxisGrid().Spacing(), 77);
    f.Look.Grid = true;
    SetStudyYAxis(f.Chart, f.Look, 10, 0);
    EXPECT_EQ(f.Y().AxisGrid().Spacing(), 2.5);
}

TEST(VolumeAxis, BelowTenRunsTo1040)
{
    sAxisFixture f;
    SetVolumeYAxis(f.Chart, f.Look, 9);
    EXPECT_EQ(f.Y().ViewHigh().Value(), 1040);
    EXPECT_EQ(f.Y().DataHigh().Value(), 1000);
    EXPECT_EQ(f.Y().ViewLow().Value(), 0);
    EXPECT_EQ(f.Y().DataLow().Value(), 0);
    EXPECT_THAT(f.Labels(), ElementsAre("200", "400", "600", "800", "1000"));
}

TEST(VolumeAxis, LabelsAreCutByTheDecade)
{
    struct sRow
    {
        std::int64_t Max;
        std::vector<std::string> Labels;
    };
    const std::vector<sRow> rows{
        // top 41,600, a third 13,866: a step of 10,000; the exponent is 4, so thousands.
        {40000, {"10K", "20K", "30K", "40K"}},
        {30000000, {"10M", "20M", "30M"}},
        // top 13, a third 4: a step of 2.
        {13, {"2", "4", "6", "8", "10", "12"}},
    };
    for (const sRow& row : rows) {
        sAxisFixture f;
        SetVolumeYAxis(f.Chart, f.Look, row.Max);
        EXPECT_EQ(f.Labels(), row.Labels) << row.Max;
    }
}

TEST(VolumeAxis, EndsForEveryMaximum)
{
    for (const std::int64_t max :
         {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1}, std::int64_t{0}, std::int64_t{10},
          std::int64_t{2147483647}, std::numeric_limits<std::int64_t>::max()}) {
        sAxisFixture f;
        SetVolumeYAxis(f.Chart, f.Look, max);
        EXPECT_LE(f.Labels().size(), 30u);
        EXPECT_GE(f.Labels().size(), 1u);
    }
}

} // namespace
} // namespace zantroq
