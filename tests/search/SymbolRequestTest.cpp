// The client of the lookup object and its three columns.
#include "search/SymbolRequest.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace zantroq {
namespace {

struct sLookupMaker : ISymbolLookupMaker
{
    struct sLookup : ISymbolLookup
    {
        explicit sLookup(sLookupMaker& maker) : Maker(maker) {}
        void Find(const std::string& field, const std::string& text, const std::string& kind,
                  const std::string& ids, const std::string& reserved) override
        {
            Maker.Asked.push_back(field + '|' + text + '|' + kind + '|' + ids + '|' + reserved);
        }
        void Stop() override { Maker.Asked.push_back("stop"); }
        sLookupMaker& Maker;
    };
    std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) override
    {
        ++Made;
        Events = &events;
        return Reachable ? std::make_unique<sLookup>(*this) : nullptr;
    }
    bool Reachable = true;
    int Made = 0;
    ISymbolLookupEvents* Events = nullptr;
    std::vector<std::string> Asked;
};

struct sNotify : ISearchNotify
{
    std::vector<int> Counts;
    int NoAnswers = 0;
    void PostResults(int count) override { Counts.push_back(count); }
    void OnNoAnswer() override { ++NoAnswers; }
};

class SymbolRequest : public testing::Test
{
protected:
    std::string Row(int row) const
    {
        return m_request.GetColumn(row, 0) + '|' + m_request.GetColumn(row, 1) + '|' +
               m_request.GetColumn(row, 2);
    }
    ISymbolLookupEvents& Events()
    {
        m_request.Connect();
        return *m_maker.Events;
    }

    sLookupMaker m_maker;
    sNotify m_notify;
    CSymbolRequest m_request{m_notify, m_maker};
};

} // namespace

TEST_F(SymbolRequest, TheLookupObjectIsMadeOnceWhenFirstNeeded)
{
    EXPECT_EQ(m_maker.Made, 0);
    EXPECT_TRUE(m_request.Request("d", "goo", "e", "2 3"));
    EXPECT_TRUE(m_request.Request("s", "m", "", ""));
    EXPECT_TRUE(m_request.Connect());
    EXPECT_EQ(m_maker.Made, 1);
    EXPECT_EQ(m_maker.Asked, (std::vector<std::string>{"d|goo|e|2 3|", "s|m|||"}));
}

TEST_F(SymbolRequest, AnObjectThatCannotBeReachedSendsNothingAndIsTriedAgain)
{
    m_maker.Reachable = false;
    EXPECT_FALSE(m_request.Request("d", "goo", "", ""));
    EXPECT_FALSE(m_request.Request("d", "goo", "", ""));
    EXPECT_EQ(m_maker.Made, 2);
    EXPECT_TRUE(m_maker.Asked.empty());
}

TEST_F(SymbolRequest, ResultLinesFillThreeColumns)
{
    Events().OnResultLine("GOOG,2,1,Google Inc.\r\n");
    ASSERT_EQ(m_request.GetCount(), 1);
    EXPECT_EQ(Row(0), "GOOG|2|Google Inc.\r");
    EXPECT_EQ(m_request.GetColumn(0, 3), "Invalid Column");
    EXPECT_EQ(m_request.GetColumn(0, -1), "Invalid Column");
    EXPECT_THROW(m_request.GetColumn(1, 0), std::invalid_argument);
    m_request.Clear();
    EXPECT_EQ(m_request.GetCount(), 0);
    EXPECT_EQ(m_maker.Asked, std::vector<std::string>{"stop"}) << "no row of a search under way follows";
}

TEST_F(SymbolRequest, ADescriptionEndsAtItsFirstComma)
{
    Events().OnResultLine("A,2,1,Acme, Inc.\r\n");
    EXPECT_EQ(Row(0), "A|2|Acme");
}

TEST_F(SymbolRequest, EmptyFieldsMoveTheTokensBehindThem)
{
    Events().OnResultLine("A,,1,Acme\r\n");
    EXPECT_EQ(Row(0), "A|1|") << "the type is taken for the market, the description for the type";
    Events().OnResultLine("A,2,1,\r\n");
    EXPECT_EQ(Row(1), "A|2|\r");
}

TEST_F(SymbolRequest, LinesOfFourCharactersOrLessAreDropped)
{
    Events().OnResultLine("A,\r\n");
    Events().OnErrorLine("E,\r\n");
    EXPECT_EQ(m_request.GetCount(), 0);
    Events().OnResultLine("A,1\r\n");
    EXPECT_EQ(Row(0), "A|1\r|");
}

TEST_F(SymbolRequest, OnlyTheWholeEndLineEndsASearch)
{
    Events().OnResultLine("A,2,1,Acme\r\n");
    Events().OnResultLine("!ENDMSG!,\r\n");
    EXPECT_EQ(m_notify.Counts, std::vector<int>{1});
    Events().OnResultLine("!ENDMSG!,\n");
    EXPECT_EQ(m_notify.Counts.size(), 1u);
    EXPECT_EQ(Row(1), "!ENDMSG!||") << "another text is a row";
    Events().OnErrorLine("!ENDMSG!,\r\n");
    EXPECT_EQ(m_notify.Counts, (std::vector<int>{1, 2}));
}

TEST_F(SymbolRequest, AnErrorReadsAsOneMoreRow)
{
    Events().OnErrorLine("E,Empty search text\r\n");
    EXPECT_EQ(Row(0), "ERROR||Empty search text\r");
    Events().OnErrorLine("E,!SYNTAX_ERROR!,,\r\n");
    EXPECT_EQ(Row(1), "ERROR||!SYNTAX_ERROR!");
}

TEST_F(SymbolRequest, ASearchWithoutAnAnswerIsPassedOn)
{
    Events().OnNoAnswer();
    EXPECT_EQ(m_notify.NoAnswers, 1);
    EXPECT_TRUE(m_notify.Counts.empty());
}

} // namespace zantroq
