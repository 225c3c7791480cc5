// The rules of the symbol search dialog with a form, a lookup and a feed in memory.
#include "search/SymbolSearch.h"

#include "SearchFakes.h"

#include "support/FakeForm.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using test::sPeer;
using TRows = std::vector<FormRow>;

struct sScriptedLookup : ISymbolLookupMaker
{
    struct sLookup : ISymbolLookup
    {
        explicit sLookup(sScriptedLookup& owner) : Owner(owner) { ++Owner.Alive; }
        ~sLookup() override { --Owner.Alive; }
        void Find(const std::string& field, const std::string& text, const std::string& kind,
                  const std::string& ids, const std::string&) override
        {
            Owner.Asked.push_back(field + '|' + text + '|' + kind + '|' + ids);
        }
        void Stop() override { ++Owner.Stops; }
        sScriptedLookup& Owner;
    };
    std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) override
    {
        Events = &events;
        return Reachable ? std::make_unique<sLookup>(*this) : nullptr;
    }
    bool Reachable = true;
    int Alive = 0, Stops = 0;
    ISymbolLookupEvents* Events = nullptr;
    std::vector<std::string> Asked;
};

struct sFrame : IDialogFrame
{
    std::vector<DialogEnd> Ends;
    void End(DialogEnd end) override { Ends.push_back(end); }
};

class SymbolSearch : public testing::Test
{
protected:
    SymbolSearch()
    {
        m_markets.Blocks = {
            "2,NASDAQ,Nasdaq Stock Market,1,R\r\n5,,\r\n3,NYSE,New York,1,R\r\n0,MAIN,Main\r\n"
            "9,lost\r\n!ENDMSG!,\r\n"};
        m_types.Blocks = {"1,EQUITY,Equity\r\n7,FUTURE,Future\r\n9,lost\r\n!ENDMSG!,\r\n"};
        m_form.AddRadioGroup({SearchSymbols, SearchDescriptions});
        m_form.AddRadioGroup({SearchByMarket, SearchBySecurityType});
    }

    void Open()
    {
        m_search = std::make_unique<CSymbolSearch>(
            m_form, m_frame,
            sSymbolSearchSetup{
                {MakePortKey(1, 2), std::make_unique<test::CFakeConnection>(m_markets), nullptr},
                {MakePortKey(1, 2), std::make_unique<test::CFakeConnection>(m_types), nullptr},
                m_lookup,
                m_thread});
        m_form.Bind(*m_search);
        m_search->OnInitDialog();
    }
    void SearchFor(const std::string& text)
    {
        m_form[SearchText].Text = text;
        m_form.Press(SearchButton);
    }
    void Answer(std::initializer_list<std::string_view> lines)
    {
        for (const std::string_view line : lines)
            m_lookup.Events->OnResultLine(std::string(line) + "\r\n");
        m_thread.Run();
    }
    std::string FilterRow(int row) { return m_form.Row(SearchFilterRows, row)[0]; }

    test::CFakeForm m_form;
    sFrame m_frame;
    sPeer m_markets, m_types;
    sScriptedLookup m_lookup;
    test::CTestWindowThread m_thread;
    std::unique_ptr<CSymbolSearch> m_search;
};

} // namespace

TEST_F(SymbolSearch, OpensSmallOnDescriptionsWithTheMarketsAsFilter)
{
    Open();
    EXPECT_TRUE(m_form[SearchDescriptions].Checked);
    EXPECT_FALSE(m_form[SearchSymbols].Checked);
    EXPECT_TRUE(m_form[SearchByMarket].Checked);
    EXPECT_EQ(m_form[SearchOptions].Text, "Show Options");
    EXPECT_EQ(m_form.Width, 335);
    EXPECT_EQ(m_form.Height, 310);
    EXPECT_FALSE(m_form[SearchFilterRows].Visible);
    EXPECT_EQ(m_form.Focused, SearchText);
    EXPECT_EQ(m_markets.Connects, 1);
    EXPECT_EQ(m_types.Connects, 0) << "fetched on first use";
}

TEST_F(SymbolSearch, HasTheColumnsOfBothLists)
{
    Open();
    const auto widths = [&](int id) {
        std::string text;
        for (const sFormColumn& column : m_form[id].Columns)
            text += column.Title + ' ' + std::to_string(column.Width) + ' ';
        return text;
    };
    EXPECT_EQ(widths(SearchResults), "Symbol 90 Market 75 Description 130 ");
    EXPECT_EQ(widths(SearchFilterRows), "Data 305 ID 0 ");
}

TEST_F(SymbolSearch, TheOptionsToggleTheSize)
{
    Open();
    m_form.Press(SearchOptions);
    EXPECT_EQ(m_form[SearchOptions].Text, "Hide Options");
    EXPECT_EQ(m_form.Width, 335);
    EXPECT_EQ(m_form.Height, 500);
    EXPECT_TRUE(m_form[SearchFilterRows].Visible);
    m_form.Press(SearchOptions);
    EXPECT_EQ(m_form[SearchOptions].Text, "Show Options");
    EXPECT_EQ(m_form.Height, 310);
}

TEST_F(SymbolSearch, FilterRowsComeByIdAndSkipHoles)
{
    Open();
    // Id 5 has only a carriage return, so its text is longer than an empty row's text.
    ASSERT_EQ(m_form.RowCount(SearchFilterRows), 4);
    EXPECT_EQ(FilterRow(0), "MAIN - Main");
    EXPECT_EQ(FilterRow(1), "NASDAQ - Nasdaq Stock Market");
    EXPECT_EQ(FilterRow(2), "NYSE - New York");
    EXPECT_EQ(FilterRow(3), " - ");
    EXPECT_EQ(m_form.Row(SearchFilterRows, 1)[1], "2");
}

TEST_F(SymbolSearch, NoMoreRowsAreListedThanTheTableCounts)
{
    m_markets.Blocks = {"3,A,a\n7\n200,B,b\nx\n!ENDMSG!"};
    Open();
    EXPECT_EQ(m_form.RowCount(SearchFilterRows), 2) << "id 7 counts and stays empty";
}

TEST_F(SymbolSearch, ASecondClickOnTheActiveFilterKeepsTheSelection)
{
    Open();
    m_form.Press(SearchOptions);
    m_form.Select(SearchFilterRows, {1});
    m_form.Check(SearchByMarket);
    EXPECT_EQ(m_form.SelectedRows(SearchFilterRows), std::vector<int>{1});
    m_form.Check(SearchBySecurityType);
    EXPECT_TRUE(m_form.SelectedRows(SearchFilterRows).empty());
    EXPECT_EQ(FilterRow(0), "EQUITY - Equity");
    EXPECT_EQ(m_types.Connects, 1);
}

TEST_F(SymbolSearch, AFeedThatIsNotRunningLeavesTheFilterEmpty)
{
    m_markets.Refuses = true;
    Open();
    EXPECT_EQ(m_form.RowCount(SearchFilterRows), 0);
}

TEST_F(SymbolSearch, AsksForTheTextInTheCheckedField)
{
    Open();
    SearchFor("goo");
    m_form.Check(SearchSymbols);
    SearchFor("GO");
    EXPECT_EQ(m_lookup.Asked, (std::vector<std::string>{"d|goo||", "s|GO||"}));
}

TEST_F(SymbolSearch, SendsTheIdsOfTheFilterOnShow)
{
    Open();
    m_form.Select(SearchFilterRows, {0, 2});
    SearchFor("goo");
    m_form.Check(SearchBySecurityType);
    SearchFor("goo");
    m_form.Select(SearchFilterRows, {1});
    SearchFor("goo");
    EXPECT_EQ(m_lookup.Asked, (std::vector<std::string>{"d|goo|e|0 3", "d|goo||", "d|goo|t|7"}));
}

TEST_F(SymbolSearch, AnEmptyTextSendsNothingAndClearsTheList)
{
    Open();
    SearchFor("goo");
    Answer({"GOOG,2,1,Google", "!ENDMSG!,"});
    m_form.Select(SearchFilterRows, {0});
    SearchFor("");
    EXPECT_EQ(m_lookup.Asked.size(), 1u);
    EXPECT_EQ(m_form.RowCount(SearchResults), 0);
    EXPECT_FALSE(m_form.Waiting);
    EXPECT_EQ(m_search->Progress(), SearchProgress::NotStarted);
}

TEST_F(SymbolSearch, ResultsComeInReverseOrderWithTheirMarket)
{
    Open();
    SearchFor("x");
    EXPECT_TRUE(m_form.Waiting);
    EXPECT_EQ(m_search->Progress(), SearchProgress::Waiting);
    Answer({"A,2,1,Alpha", "B,3,1,Beta", "C,77,1,Gamma", "!ENDMSG!,"});
    EXPECT_EQ(m_form[SearchResults].Rows,
              (TRows{{"C", "", "Gamma"}, {"B", "NYSE", "Beta"}, {"A", "NASDAQ", "Alpha"}}));
    EXPECT_FALSE(m_form.Waiting);
    EXPECT_EQ(m_search->Progress(), SearchProgress::Ended);
}

TEST_F(SymbolSearch, AnErrorRowIsShownLikeAnyOtherWithTheMarketOfId0)
{
    Open();
    SearchFor("x");
    m_lookup.Events->OnErrorLine("E,Empty search text\r\n");
    m_lookup.Events->OnErrorLine("!ENDMSG!,\r\n");
    m_thread.Run();
    EXPECT_EQ(m_form[SearchResults].Rows, (TRows{{"ERROR", "MAIN", "Empty search text"}}));
    EXPECT_EQ(m_search->Progress(), SearchProgress::Ended);
}

TEST_F(SymbolSearch, AnObjectThatCannotBeReachedIsAnErrorRow)
{
    Open();
    m_lookup.Reachable = false;
    SearchFor("x");
    EXPECT_EQ(m_form[SearchResults].Rows, (TRows{{"Error", "", "Symbol Request Failed"}}));
    EXPECT_FALSE(m_form.Waiting);
    EXPECT_EQ(m_search->Progress(), SearchProgress::Ended);
}

TEST_F(SymbolSearch, NoRowsLeaveTheListEmpty)
{
    Open();
    SearchFor("x");
    Answer({"!ENDMSG!,"});
    EXPECT_EQ(m_form.RowCount(SearchResults), 0);
    EXPECT_EQ(m_search->Progress(), SearchProgress::Ended);
}

TEST_F(SymbolSearch, ASearchWithoutAnAnswerLeavesTheListEmptyAndTakesTheHourglassAway)
{
    Open();
    SearchFor("x");
    m_lookup.Events->OnResultLine("A,2,1,Alpha\r\n");
    m_lookup.Events->OnNoAnswer();
    EXPECT_EQ(m_form.RowCount(SearchResults), 0);
    EXPECT_FALSE(m_form.Waiting);
    EXPECT_EQ(m_search->Progress(), SearchProgress::NoAnswer);
}

TEST_F(SymbolSearch, AMessageOfAnEarlierSearchIsDropped)
{
    Open();
    SearchFor("x");
    m_lookup.Events->OnResultLine("A,2,1,Alpha\r\n");
    m_lookup.Events->OnResultLine("!ENDMSG!,\r\n"); // posted, and not yet delivered
    SearchFor("y");
    m_thread.Run();
    EXPECT_EQ(m_form.RowCount(SearchResults), 0);
    EXPECT_TRUE(m_form.Waiting);
    EXPECT_EQ(m_lookup.Stops, 1);
}

TEST_F(SymbolSearch, ADialogClosedBeforeTheAnswerLeavesNothingBehind)
{
    Open();
    SearchFor("x");
    Answer({"A,2,1,Alpha"});
    m_lookup.Events->OnResultLine("!ENDMSG!,\r\n");
    m_search.reset();
    EXPECT_EQ(m_lookup.Alive, 0);
    m_thread.Run();
}

TEST_F(SymbolSearch, OkTakesTheSelectedSymbol)
{
    Open();
    SearchFor("x");
    Answer({"A,2,1,Alpha", "B,3,1,Beta", "!ENDMSG!,"});
    m_form.Select(SearchResults, {1});
    m_form.Press(SearchUse);
    EXPECT_EQ(m_search->Result(), "A");
    EXPECT_EQ(m_frame.Ends, std::vector<DialogEnd>{DialogEnd::Ok});
}

TEST_F(SymbolSearch, ADoubleClickTakesTheSymbol)
{
    Open();
    SearchFor("x");
    Answer({"A,2,1,Alpha", "B,3,1,Beta", "!ENDMSG!,"});
    m_form.DoubleClick(SearchResults, 0);
    EXPECT_EQ(m_search->Result(), "B");
    EXPECT_EQ(m_frame.Ends, std::vector<DialogEnd>{DialogEnd::Ok});
}

TEST_F(SymbolSearch, ADoubleClickOutsideOfTheRowsDoesNothing)
{
    Open();
    m_search->OnDoubleClicked(SearchResults, -1);
    m_form.Select(SearchFilterRows, {0});
    m_search->OnDoubleClicked(SearchFilterRows, 0);
    EXPECT_TRUE(m_frame.Ends.empty());
}

TEST_F(SymbolSearch, OkWithoutASelectionSearches)
{
    Open();
    m_form[SearchText].Text = "goo";
    m_form.Press(SearchUse);
    EXPECT_EQ(m_lookup.Asked, std::vector<std::string>{"d|goo||"});
    m_form[SearchText].Text = "";
    m_form.Press(SearchUse);
    EXPECT_EQ(m_lookup.Asked.size(), 1u);
    EXPECT_TRUE(m_frame.Ends.empty());
}

TEST_F(SymbolSearch, CancelEndsWithoutAResult)
{
    Open();
    SearchFor("x");
    Answer({"A,2,1,Alpha", "!ENDMSG!,"});
    m_form.Select(SearchResults, {0});
    m_form.Press(SearchCancel);
    EXPECT_EQ(m_frame.Ends, std::vector<DialogEnd>{DialogEnd::Cancel});
    EXPECT_EQ(m_search->Result(), "");
}

TEST_F(SymbolSearch, CarriageReturnsOfLastTokensAreNotShown)
{
    Open();
    SearchFor("x");
    m_lookup.Events->OnResultLine("ABCD\r\n");
    m_lookup.Events->OnResultLine("!ENDMSG!,\r\n");
    m_thread.Run();
    EXPECT_EQ(m_form[SearchResults].Rows, (TRows{{"ABCD", "MAIN", ""}}));
    m_form.Check(SearchBySecurityType);
    EXPECT_EQ(FilterRow(0), "EQUITY - Equity");
}

// Each attempt may take five seconds: an absent feed is tried once for all rows, not once per row.
TEST_F(SymbolSearch, ATableThatCannotBeHadIsTriedOnceForAllResults)
{
    m_markets.Refuses = true;
    Open();
    const int before = m_markets.Connects;
    SearchFor("x");
    Answer({"A,1,1,a", "B,2,1,b", "C,3,1,c", "D,1,1,d", "!ENDMSG!,"});
    EXPECT_EQ(m_markets.Connects - before, 1);
    EXPECT_EQ(m_form.RowCount(SearchResults), 4);
}

} // namespace zantroq
