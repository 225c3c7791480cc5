#include "StudyPane.h"

#include "studies/HistMFChart.h"
#include "studies/HistMFIChart.h"

#include <gmock/gmock.h>

#include <cmath>

namespace zantroq {
namespace {

using testing::Each;

constexpr double Hole = 1e+308;

class CFlowPane : public CStudyPane
{
public:
    CFlowPane(int kind, int period) : CStudyPane(kind) { SetPeriod(period); }
    void Add(std::initializer_list<double> prices)
    {
        for (const double price : prices)
            Series.AddTick(price, 10);
    }
};

TEST(MoneyFlow, SumsOneBarMoreThanThePeriodOverThePeriod)
{
    CFlowPane pane(StudyMoneyFlow, 2);
    pane.Add({10, 12, 11, 13, 13});
    pane.Draw(0, 5);
    for (int point = 1; point <= 3; ++point)
        EXPECT_EQ(pane.Y(1, point), Hole) << point; // index 2, the period itself, has no value
    EXPECT_EQ(pane.Y(2, 4), (120 + 130) / 2.0);
    EXPECT_EQ(pane.Y(3, 4), 110 / 2.0);
    EXPECT_EQ(pane.Y(1, 4), 180); // a sum and not a difference
    EXPECT_EQ(pane.Y(2, 5), 130 / 2.0);
    EXPECT_EQ(pane.Y(3, 5), 110 / 2.0);
}

TEST(MoneyFlow, FirstValueIsOnePastThePeriod)
{
    for (const int period : {1, 2, 5, 14}) {
        CFlowPane flow(StudyMoneyFlow, period), index(StudyMFI, period);
        for (CFlowPane* pane : {&flow, &index}) {
            for (int i = 0; i < 20; ++i)
                pane->Add({10.0 + i % 3});
            pane->Draw(0, 20);
            for (int i = 0; i < 20; ++i)
                EXPECT_EQ(pane->Y(1, i + 1) == Hole, i <= period) << "period " << period << ", index " << i;
        }
    }
}

TEST(MoneyFlow, TypicalPriceOfATickIsItsPrice)
{
    CFlowPane pane(StudyMoneyFlow, 1);
    for (const double price : {12.0, 15.0, 9.0})
        pane.Series.AddTick(price, 100);
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Y(2, 3), 100 * 15);
    EXPECT_EQ(pane.Y(3, 3), 100 * 9);
}

TEST(MoneyFlow, UsesTheTypicalPriceOfBars)
{
    CFlowPane pane(StudyMoneyFlow, 1);
    for (int i = 0; i < 3; ++i)
        pane.Series.Add(0, 12 + i, 6, 9, 10);
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Y(2, 3), 10 * ((9.0 + (6 + 13)) / 3) + 10 * ((9.0 + (6 + 14)) / 3));
}

TEST(MoneyFlow, FlatPricesLieAtZero)
{
    CFlowPane flow(StudyMoneyFlow, 3), index(StudyMFI, 3);
    for (CFlowPane* pane : {&flow, &index}) {
        pane->Add({5, 5, 5, 5, 5, 5, 5});
        pane->Draw(4, 3);
    }
    for (int series = 1; series <= 3; ++series)
        EXPECT_THAT(flow.Values(series), Each(0.0));
    for (const double value : index.Values())
        EXPECT_TRUE(std::isnan(value));
}

TEST(MoneyFlow, AxisOriginIsZero)
{
    CFlowPane pane(StudyMoneyFlow, 2);
    pane.Add({10, 12, 11, 13, 13});
    pane.Draw(0, 5);
    EXPECT_EQ(pane.YAxis().AxisOrigin().Value(), 0);
    EXPECT_FALSE(pane.YAxis().AxisOrigin().Automatic());
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 180);
    EXPECT_EQ(pane.YAxis().DataLow().Value(), 55);
}

TEST(MoneyFlow, LiveWarmUpHoldsHoles)
{
    CFlowPane pane(StudyMoneyFlow, 5);
    pane.Add({10, 12});
    pane.DrawEnd(120);
    pane.Add({11, 13});
    pane.Update(2);
    for (int series = 1; series <= 3; ++series)
        EXPECT_THAT(pane.Values(series), Each(Hole));
}

TEST(MoneyFlow, LivePointBeyondTheAxisWidensIt)
{
    CFlowPane pane(StudyMoneyFlow, 1);
    pane.Add({10, 12, 11, 13});
    pane.DrawEnd(120);
    const double high = pane.YAxis().DataHigh().Value();
    pane.Add({500});
    pane.Update(1);
    EXPECT_EQ(pane.Y(1, 5), 5000 + 130);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 5130);
    EXPECT_LT(high, 5130);
}

TEST(MoneyFlow, HeaderNamesAllThreeValuesWithoutDecimals)
{
    CFlowPane pane(StudyMoneyFlow, 2);
    pane.Add({10, 12, 11, 13, 13});
    pane.Draw(0, 5);
    EXPECT_EQ(pane.Header(), "Money Flow, lookback period - 2");
    pane.Marker().SetPoint(4);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "Money Flow, lookback period - 2 MF: 180 pos: 125 neg: 55");
    pane.Marker().SetPoint(2);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "Money Flow, lookback period - 2");
}

TEST(Mfi, IsTheShareOfThePositiveFlow)
{
    CFlowPane pane(StudyMFI, 2);
    pane.Add({10, 12, 11, 13, 13});
    pane.Draw(0, 5);
    EXPECT_EQ(pane.Y(1, 3), Hole);
    EXPECT_EQ(pane.Y(1, 4), ((125.0 - 55) * 50) / (55.0 + 125) + 50);
    EXPECT_THAT(pane.Values(2), Each(80.0));
    EXPECT_THAT(pane.Values(3), Each(20.0));
}

TEST(Mfi, AxisKeepsZeroAndAHundredInView)
{
    CFlowPane pane(StudyMFI, 2);
    pane.Add({10, 12, 11, 13, 13});
    pane.Draw(0, 5);
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), 100.5);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 100.5);
    EXPECT_EQ(pane.YAxis().ViewLow().Value(), -0.5);
    EXPECT_EQ(pane.YAxis().DataLow().Value(), -0.5);
    EXPECT_THAT(pane.Labels(), testing::ElementsAre("25", "50", "75"));
    EXPECT_EQ(pane.YAxis().AxisGrid().Spacing(), 25);
}

TEST(Mfi, HeaderNamesPeriodLevelsAndMarkedValue)
{
    CFlowPane pane(StudyMFI, 2);
    pane.Add({10, 12, 13, 14, 15});
    pane.Draw(0, 5);
    pane.Marker().SetPoint(5);
    EXPECT_EQ(pane.Study().GetStudyInfoText(),
              "Money Flow Index, lookback period - 2, levels - 80, 20 MFI: 100.0000");
}

} // namespace
} // namespace zantroq
