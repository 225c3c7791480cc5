// Symbol search benchmarks; the argument is the number of symbols.
//
//   YardstickStrcasestr  one pass over all descriptions with the C library's case-insensitive substring search,
//                        which handles only ASCII
//   FindRare             a FIND by description that two rows in a thousand match, from the command to the last
//                        line of its reply
//   FindNothing          the same with a text that no description contains
//   FindCommon           the same with a text that every description contains
//   FindSymbols          a FIND by symbol
//   FindUnicode          a FIND by description with a text that is not ASCII
//   BuildIndex           the index built from its rows; counters give the bytes per symbol besides its text
#include "feed/markets/CsvLine.h"
#include "feed/protocol/FindAnswer.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <map>
#include <random>

using namespace zantroq::feed;

namespace {

// Names of ten to forty letters; one in twenty is not ASCII.
std::vector<sLISTED_SYMBOL> MakeRows(std::size_t count)
{
    const std::vector<std::string> words{"Northern", "Copper",  "Holding", "Électricité", "Railways",
                                         "of the",   "Pacific", "Motors",  "Trust",       "Paper",
                                         "Union",    "Glass",   "Energy",  "Bank",        "Shipping"};
    std::mt19937 random(1);
    std::vector<sLISTED_SYMBOL> rows;
    rows.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::string name = i % 500 == 0 ? "Quartz" : "Company";
        for (int word = 0; word < 3; ++word) {
            const std::size_t place = random() % words.size();
            name += ' ' + words[place == 3 && random() % 4 != 0 ? 4 : place];
        }
        rows.push_back({"S" + std::to_string(1'000'000 + i), static_cast<int>(i % 8), static_cast<int>(i % 5),
                        name + " Inc."});
    }
    return rows;
}

std::shared_ptr<const CSymbolIndex> IndexOf(std::size_t count)
{
    static std::map<std::size_t, std::shared_ptr<const CSymbolIndex>> made;
    auto& index = made[count];
    if (index == nullptr)
        index = std::make_shared<const CSymbolIndex>(CSymbolIndex(), MakeRows(count), ListRank::Named);
    return index;
}

std::size_t CountOf(const benchmark::State& state)
{
    return static_cast<std::size_t>(state.range(0));
}

void YardstickStrcasestr(benchmark::State& state)
{
    std::vector<std::string> descriptions;
    for (const sLISTED_SYMBOL& row : MakeRows(CountOf(state)))
        descriptions.push_back(row.Description);
    for (auto _ : state) {
        std::size_t found = 0;
        for (const std::string& description : descriptions)
            found += strcasestr(description.c_str(), "QUARTZ") != nullptr;
        benchmark::DoNotOptimize(found);
    }
}

void Find(benchmark::State& state, const char* line)
{
    const auto index = IndexOf(CountOf(state));
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::vector<std::string_view> fields;
        SplitAtCommas(line, fields);
        const auto answer = AnswerFind(index, fields);
        CTextBlock block;
        bytes = 0;
        CWorkSlice slice = CWorkSlice::Unlimited();
        WorkProgress progress = WorkProgress::More;
        for (; progress != WorkProgress::Ended; bytes += block.Size()) {
            block.Clear();
            progress = answer->Write(block, 256 * 1024, slice);
        }
        benchmark::DoNotOptimize(bytes);
    }
    state.counters["reply_bytes"] = static_cast<double>(bytes);
}

void BuildIndex(benchmark::State& state)
{
    const auto rows = MakeRows(CountOf(state));
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = CSymbolIndex(CSymbolIndex(), rows, ListRank::Named).BytesBesideText();
    state.counters["bytes_a_symbol"] = static_cast<double>(bytes) / static_cast<double>(rows.size());
}

#define SIZES Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)
BENCHMARK(YardstickStrcasestr)->SIZES;
BENCHMARK_CAPTURE(Find, Rare, "FIND,1,d,qUARTZ,,")->SIZES;
BENCHMARK_CAPTURE(Find, Nothing, "FIND,1,d,zeppelin,,")->SIZES;
BENCHMARK_CAPTURE(Find, Common, "FIND,1,d,inc.,,")->SIZES;
BENCHMARK_CAPTURE(Find, Symbols, "FIND,1,s,s1000,,")->SIZES;
BENCHMARK_CAPTURE(Find, Unicode, "FIND,1,d,ÉLECTRICITÉ copper,,")->SIZES;
BENCHMARK(BuildIndex)->SIZES;

} // namespace

BENCHMARK_MAIN();
