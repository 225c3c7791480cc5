#include "feed/protocol/LiveQuote.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/MarketCatalog.h"
#include "feed/markets/TextWriter.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

// More than any client needs; a longer line might exceed the buffer of its reader.
constexpr std::size_t MostFields = 88;
constexpr std::string_view MarketCenter = "1";
constexpr std::string_view PlainConditions = "01";

void AppendSummaryContents(const sLIVE_QUOTE& quote, std::string& text)
{
    if (quote.Open)
        text += 'C';
    else if (quote.Last)
        text += quote.Basis;
    if (quote.Bid)
        text += 'b';
    if (quote.Ask)
        text += 'a';
    if (quote.Open)
        text += "ohl";
    if (quote.PreviousClose)
        text += 'c';
    text += 'v';
}

void AppendField(Level1Field field, char type, std::string_view symbol, const sLIVE_QUOTE& quote,
                 std::string& text)
{
    char number[32];
    const auto price = [&](std::optional<sPRICE> value) {
        // Simulated prices have the symbol's decimals; recorded prices are printed as recorded.
        if (value)
            text.append(number, WritePrice(number, *value));
    };
    const auto integer = [&](auto value) { text.append(number, WriteInteger(number, value)); };
    switch (field) {
    case Level1Type: // the type is written before the fields
        break;
    case Level1Symbol:
        text += symbol;
        break;
    case Level1TotalVolume:
        integer(quote.TotalVolume);
        break;
    case Level1Size:
        integer(quote.Size);
        break;
    case Level1High:
        price(quote.High);
        break;
    case Level1Low:
        price(quote.Low);
        break;
    case Level1Bid:
        price(quote.Bid);
        break;
    case Level1Ask:
        price(quote.Ask);
        break;
    case Level1BidSize:
        integer(quote.BidSize);
        break;
    case Level1AskSize:
        integer(quote.AskSize);
        break;
    case Level1Time:
        text.append(number, WriteMilliseconds(number, TimeOfDay(quote.Time)));
        break;
    case Level1OpenInterest:
        integer(quote.OpenInterest);
        break;
    case Level1Open:
        price(quote.Open);
        break;
    case Level1Close:
        price(quote.PreviousClose);
        break;
    case Level1Date:
        text.append(number, WriteMonthDayYear(number, DayOf(quote.Time)));
        break;
    case Level1Last:
        price(quote.Last);
        break;
    case Level1DisplayCode:
        integer(quote.DisplayCode);
        break;
    case Level1TickId:
        integer(quote.TickId);
        break;
    case Level1TradeMarket:
    case Level1BidMarket:
    case Level1AskMarket:
        text += MarketCenter;
        break;
    case Level1Contents:
        if (type == 'P')
            AppendSummaryContents(quote, text);
        else
            text += quote.Contents;
        break;
    case Level1Conditions:
        text += PlainConditions;
        break;
    }
}

} // namespace

void sLIVE_QUOTE::TakeRegularPrice(sPRICE price)
{
    if (!Open)
        Open = High = Low = price;
    if (IsBelow(*High, price))
        High = price;
    if (IsBelow(price, *Low))
        Low = price;
}

TFieldSelection AllQuoteFields()
{
    TFieldSelection selection;
    for (int field = Level1Symbol; field <= Level1Conditions; ++field)
        selection.push_back(static_cast<Level1Field>(field));
    return selection;
}

bool ReadFieldSelection(std::string_view names, TFieldSelection& selection)
{
    std::vector<std::string_view> fields;
    SplitAtCommas(names, fields);
    TFieldSelection read;
    for (const auto name : fields) {
        const auto known = std::find(Level1FieldNames.begin() + Level1Symbol, Level1FieldNames.end(), name);
        if (known != Level1FieldNames.end() && read.size() < MostFields)
            read.push_back(static_cast<Level1Field>(known - Level1FieldNames.begin()));
    }
    if (read.empty())
        return false;
    if (read.front() != Level1Symbol) {
        std::erase(read, Level1Symbol);
        read.insert(read.begin(), Level1Symbol);
    }
    selection = read;
    return true;
}

std::string FieldNamesText(const TFieldSelection& selection)
{
    std::string text;
    for (const Level1Field field : selection) {
        text += ',';
        text += Level1FieldNames[static_cast<std::size_t>(field)];
    }
    return text;
}

void AppendQuoteLine(char type, std::string_view symbol, const sLIVE_QUOTE& quote,
                     const TFieldSelection& selection, std::string& text)
{
    text += type;
    for (const Level1Field field : selection) {
        text += ',';
        AppendField(field, type, symbol, quote, text);
    }
    text += ",\r\n";
}

void AppendFundamentalLine(std::string_view symbol, const sLIVE_QUOTE& quote, const sLISTED_SYMBOL* listed,
                           std::string& text)
{
    text += "F,";
    text += symbol;
    text += ',';
    text += listed ? std::to_string(listed->MarketId) + ',' + std::to_string(listed->SecurityTypeId) + ',' +
                         listed->Description
                   : std::string(",,");
    constexpr int described = 4;
    text.append(FundamentalFormat - described, ',');
    text += std::to_string(quote.DisplayCode);
    text += ',';
    text += std::to_string(quote.Decimals);
    text += ",\r\n";
}

} // namespace zantroq::feed
