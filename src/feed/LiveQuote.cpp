#include "feed/LiveQuote.h"

#include "feed/CsvLine.h"
#include "feed/MarketCatalog.h"
#include "feed/TextWriter.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

constexpr int DisplayCodeField = 39;
constexpr std::string_view MarketCenter = "1";
constexpr std::string_view PlainConditions = "01";

void AppendField(QuoteField field, std::string_view symbol, const sLIVE_QUOTE& quote, std::string& text)
{
    char number[32];
    const auto price = [&](sPRICE value) {
        // Live prices are invented or rounded to the symbol's decimals; recorded ones stand as written.
        text.append(number, WritePrice(number, value));
    };
    const auto integer = [&](auto value) { text.append(number, WriteInteger(number, value)); };
    switch (field) {
    case QuoteField::Symbol:
        text += symbol;
        break;
    case QuoteField::TotalVolume:
        integer(quote.TotalVolume);
        break;
    case QuoteField::TradeSize:
        integer(quote.Size);
        break;
    case QuoteField::High:
        price(quote.High);
        break;
    case QuoteField::Low:
        price(quote.Low);
        break;
    case QuoteField::Bid:
        price(quote.Bid);
        break;
    case QuoteField::Ask:
        price(quote.Ask);
        break;
    case QuoteField::BidSize:
        integer(quote.BidSize);
        break;
    case QuoteField::AskSize:
        integer(quote.AskSize);
        break;
    case QuoteField::TradeTime:
        text.append(number, WriteMilliseconds(number, TimeOfDay(quote.Time)));
        break;
    case QuoteField::OpenInterest:
        integer(quote.OpenInterest);
        break;
    case QuoteField::Open:
        price(quote.Open);
        break;
    case QuoteField::Close:
        price(quote.PreviousClose);
        break;
    case QuoteField::TradeDate:
        text.append(number, WriteMonthDayYear(number, DayOf(quote.Time)));
        break;
    case QuoteField::Trade:
        price(quote.Last);
        break;
    case QuoteField::DisplayCode:
        integer(quote.DisplayCode);
        break;
    case QuoteField::TickId:
        integer(quote.TickId);
        break;
    case QuoteField::TradeMarket:
    case QuoteField::BidMarket:
    case QuoteField::AskMarket:
        text += MarketCenter;
        break;
    case QuoteField::Contents:
        text += quote.Contents;
        break;
    case QuoteField::Conditions:
        text += PlainConditions;
        break;
    }
}

} // namespace

TFieldSelection AllQuoteFields()
{
    TFieldSelection selection;
    for (std::size_t i = 0; i < QuoteFieldNames.size(); ++i)
        selection.push_back(static_cast<QuoteField>(i));
    return selection;
}

bool ReadFieldSelection(std::string_view names, TFieldSelection& selection)
{
    std::vector<std::string_view> fields;
    SplitAtCommas(names, fields);
    TFieldSelection read;
    for (const auto name : fields) {
        const auto known = std::find(QuoteFieldNames.begin(), QuoteFieldNames.end(), name);
        if (known != QuoteFieldNames.end() && read.size() < 4 * QuoteFieldNames.size())
            read.push_back(static_cast<QuoteField>(known - QuoteFieldNames.begin()));
    }
    if (read.empty())
        return false;
    if (read.front() != QuoteField::Symbol) {
        std::erase(read, QuoteField::Symbol);
        read.insert(read.begin(), QuoteField::Symbol);
    }
    selection = read;
    return true;
}

std::string FieldNamesText(const TFieldSelection& selection)
{
    std::string text;
    for (const QuoteField field : selection) {
        text += ',';
        text += QuoteFieldNames[static_cast<std::size_t>(field)];
    }
    return text;
}

void AppendQuoteLine(char type, std::string_view symbol, const sLIVE_QUOTE& quote,
                     const TFieldSelection& selection, std::string& text)
{
    text += type;
    for (const QuoteField field : selection) {
        text += ',';
        AppendField(field, symbol, quote, text);
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
    text.append(DisplayCodeField - described, ',');
    text += std::to_string(quote.DisplayCode);
    text += ',';
    text += std::to_string(quote.Decimals);
    text += ",\r\n";
}

} // namespace zantroq::feed
