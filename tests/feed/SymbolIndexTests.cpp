// The index of the symbol search compared with a plain scan of its rows.
#include "feed/markets/SimulatedSymbols.h"
#include "feed/markets/SymbolIndex.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace zantroq::feed {
namespace {

using TField = CSymbolQuery::Field;
using TFilter = CSymbolQuery::Filter;

CSymbolIndex IndexOf(std::vector<sLISTED_SYMBOL> rows)
{
    return CSymbolIndex(CSymbolIndex(), std::move(rows), ListRank::Named);
}

std::string Answer(const CSymbolIndex& index, const CSymbolQuery& query, std::size_t step = 1000)
{
    std::vector<std::size_t> found;
    for (std::size_t from = 0; from < index.Size(); from += step)
        index.Find(query, from, from + step, found);
    std::string symbols;
    for (const std::size_t row : found)
        symbols += std::string(index.Row(row).Symbol) + ' ';
    return symbols;
}

std::string Describing(const CSymbolIndex& index, std::string_view text)
{
    return Answer(index, CSymbolQuery(TField::Descriptions, text));
}

} // namespace

TEST(SymbolIndex, KeepsTheOrderOfItsSymbols)
{
    const auto index = IndexOf({{"B", 2, 3, "two"}, {"A", 1, 1, "one"}, {"C", 4, 5, "three"}});
    EXPECT_EQ(Answer(index, CSymbolQuery(TField::Descriptions, "o")), "A B ");
    const auto row = index.Row(1);
    EXPECT_EQ(row.Symbol, "B");
    EXPECT_EQ(row.Description, "two");
    EXPECT_EQ(row.MarketId, 2);
    EXPECT_EQ(row.SecurityTypeId, 3);
    EXPECT_EQ(index.Find("C"), 2u);
    EXPECT_FALSE(index.Find("c"));
    EXPECT_FALSE(index.Find("D"));
    EXPECT_FALSE(CSymbolIndex().Find(""));
}

TEST(SymbolIndex, TheLaterRowOfTheHigherRankStays)
{
    const CSymbolIndex simulated(CSymbolIndex(), {{"A", 9, 9, "simulated"}, {"B", 9, 9, "simulated"}},
                                 ListRank::Simulated);
    const CSymbolIndex named(simulated, {{"A", 1, 1, "first"}, {"A", 1, 1, "second"}}, ListRank::Named);
    const CSymbolIndex recorded(named, {{"A", 1, 1, "recorded"}, {"B", 1, 1, "recorded"}, {"C", 1, 1, "new"}},
                                ListRank::Recorded);
    ASSERT_EQ(recorded.Size(), 3u);
    EXPECT_EQ(recorded.Row(0).Description, "second");
    EXPECT_EQ(recorded.Row(1).Description, "recorded");
    EXPECT_EQ(recorded.Row(2).Description, "new");
    EXPECT_EQ(simulated.Row(0).Description, "simulated") << "the index that it was made from stays";
}

TEST(SymbolIndex, SymbolsAreFoundByTheirBeginning)
{
    const auto index = IndexOf(
        {{"MSFT", 1, 1, "x"}, {"msn", 1, 1, "x"}, {"XMS", 1, 1, "x"}, {"M", 1, 1, "x"}, {"ΜΣ", 1, 1, "x"}});
    EXPECT_EQ(Answer(index, CSymbolQuery(TField::Symbols, "mS")), "MSFT msn ");
    EXPECT_EQ(Answer(index, CSymbolQuery(TField::Symbols, "μς")), "ΜΣ ");
}

TEST(SymbolIndex, TheCaseOfNoScriptMatters)
{
    const auto index = IndexOf({{"A", 1, 1, "Société Générale"},
                                {"B", 1, 1, "ГАЗПРОМ"},
                                {"C", 1, 1, "Straßenbau"},
                                {"D", 1, 1, "ΟΔΥΣΣΕΥΣ"},
                                {"E", 1, 1, "Kelvin \xE2\x84\xAA"},
                                {"F", 1, 1, "Cafe\xCC\x81"}, // the accent as a character of its own
                                {"G", 1, 1, "PLAIN"}});
    EXPECT_EQ(Describing(index, "SOCIÉTÉ"), "A ");
    EXPECT_EQ(Describing(index, "газпром"), "B ");
    EXPECT_EQ(Describing(index, "STRASSEN"), "C ");
    EXPECT_EQ(Describing(index, "straßen"), "C ");
    EXPECT_EQ(Describing(index, "οδυσσευς"), "D ");
    EXPECT_EQ(Describing(index, "n k"), "E ");
    EXPECT_EQ(Describing(index, "CAFÉ"), "F ");
    EXPECT_EQ(Describing(index, "pLaIn"), "G ");
    EXPECT_EQ(Describing(index, "\xE2\x84\xAA"), "E ") << "a sign that folds to an ASCII letter";
}

TEST(SymbolIndex, APieceIsNeverFoundAcrossTwoDescriptions)
{
    const auto index = IndexOf({{"A", 1, 1, "ab"}, {"B", 1, 1, "cd"}, {"C", 1, 1, "bc"}});
    EXPECT_EQ(Describing(index, "bc"), "C ");
    EXPECT_EQ(Describing(index, "abc"), "");
}

TEST(SymbolIndex, SignsBesideTheLettersAreNoLetters)
{
    // '[' and '{', '@' and '`' differ in the bit that tells small letters from capital ones.
    const auto index = IndexOf({{"A", 1, 1, "a[b"}, {"B", 1, 1, "a{b"}, {"C", 1, 1, "@"}, {"D", 1, 1, "`"}});
    EXPECT_EQ(Describing(index, "A[B"), "A ");
    EXPECT_EQ(Describing(index, "A{B"), "B ");
    EXPECT_EQ(Describing(index, "@"), "C ");
    EXPECT_EQ(Describing(index, "`"), "D ");
}

TEST(SymbolIndex, FiltersKeepMarketsOrSecurityTypes)
{
    const auto index = IndexOf({{"A", 0, 255, "x"}, {"B", 7, 3, "x"}, {"C", 255, 7, "x"}});
    CSymbolQuery::TIds ids;
    ids.set(255).set(7);
    const auto ask = [&](TFilter filter) {
        return Answer(index, CSymbolQuery(TField::Descriptions, "x", filter, ids));
    };
    EXPECT_EQ(ask(TFilter::None), "A B C ");
    EXPECT_EQ(ask(TFilter::Markets), "B C ");
    EXPECT_EQ(ask(TFilter::SecurityTypes), "A C ");
}

TEST(SymbolIndex, ATextAsLongAsACommandIsLookedFor)
{
    std::string text(CTextTable::LongestPiece, 'x');
    const auto index = IndexOf({{"A", 1, 1, text}, {"B", 1, 1, text.substr(1)}});
    EXPECT_EQ(Describing(index, text), "A ");
    EXPECT_EQ(Describing(index, text.substr(1)), "A B ");
}

// Random rows of few letters, so that pieces repeat, overlap and cross block ends.
TEST(SymbolIndex, FindsWhatAPlainScanFinds)
{
    std::mt19937 random(7);
    const std::vector<std::string> letters{"a", "A", "b", "B", " ", "é", "É", "s", "ß"};
    const auto word = [&](std::size_t longest) {
        std::string text;
        for (std::size_t left = random() % longest + 1; left > 0; --left)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int round = 0; round < 40; ++round) {
        std::vector<sLISTED_SYMBOL> rows;
        for (int i = 0; i < 200; ++i)
            rows.push_back({"S" + std::to_string(1000 + i), i % 5, i % 3, i % 3 == 0 ? word(90) : word(4)});
        const auto index = IndexOf(rows);
        for (int ask = 0; ask < 20; ++ask) {
            const std::string text = word(4);
            std::string expected;
            for (const sLISTED_SYMBOL& row : rows)
                if (FoldCase(row.Description).find(FoldCase(text)) != std::string::npos)
                    expected += row.Symbol + ' ';
            ASSERT_EQ(Answer(index, CSymbolQuery(TField::Descriptions, text), 1 + random() % 70), expected)
                << text;
        }
    }
}

TEST(SymbolIndex, AMillionWouldTakeLessThan64BytesEachBesideTheirText)
{
    std::vector<sLISTED_SYMBOL> rows;
    for (int i = 0; i < 20'000; ++i)
        rows.push_back(
            {"SYM" + std::to_string(i), 1, 1, "A company of an ordinary name " + std::to_string(i)});
    const auto index = IndexOf(std::move(rows));
    EXPECT_LE(index.BytesBesideText(), 64u * index.Size());
}

TEST(SimulatedSymbols, AreMoreThan5000AndSaySo)
{
    const auto symbols = SimulatedSymbols();
    EXPECT_GE(symbols.size(), 5'000u);
    std::set<std::string> names;
    for (const sLISTED_SYMBOL& symbol : symbols) {
        EXPECT_TRUE(names.insert(symbol.Symbol).second) << symbol.Symbol << " stands twice";
        EXPECT_TRUE(symbol.Symbol.starts_with("SIM.")) << symbol.Symbol;
        EXPECT_TRUE(symbol.Description.ends_with(" (simulated)")) << symbol.Description;
        EXPECT_EQ(symbol.Description.find(','), std::string::npos);
    }
}

} // namespace zantroq::feed
