#include "feed/protocol/FindAnswer.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/TextWriter.h"
#include "platform/parse/LeadingNumber.h"

#include <algorithm>
#include <optional>
#include <string>

namespace zantroq::feed {
namespace {

using TQuery = CSymbolQuery;

// One step of the search takes some ten microseconds.
constexpr std::size_t RowsPerStep = 1024;

class CFindAnswer : public IFeedReply
{
public:
    CFindAnswer(std::shared_ptr<const CSymbolIndex> index, TQuery query, std::string prefix)
        : m_index(std::move(index)), m_query(std::move(query)), m_prefix(std::move(prefix))
    {
    }

    WorkProgress Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice) override
    {
        while (block.Size() < limit) {
            if (m_written < m_found.size())
                WriteRow(block, m_index->Row(m_found[m_written++]));
            else if (m_next < m_index->Size())
                SearchOn();
            else {
                block.Append(m_prefix + "!ENDMSG!,\r\n");
                return WorkProgress::Ended;
            }
            if (slice.IsOver())
                break;
        }
        return WorkProgress::More;
    }

private:
    void SearchOn()
    {
        m_found.clear();
        m_written = 0;
        m_index->Find(m_query, m_next, m_next + RowsPerStep, m_found);
        m_next += RowsPerStep;
    }

    void WriteRow(CTextBlock& block, const CSymbolIndex::sROW& row) const
    {
        constexpr std::size_t IdsAndMarks = 2 * 20 + 5;
        char* at = block.Reserve(m_prefix.size() + row.Symbol.size() + row.Description.size() + IdsAndMarks);
        at = WriteText(WriteText(at, m_prefix), row.Symbol);
        *at++ = ',';
        at = WriteInteger(at, row.MarketId);
        *at++ = ',';
        at = WriteInteger(at, row.SecurityTypeId);
        *at++ = ',';
        at = WriteText(at, row.Description);
        block.Commit(WriteText(at, "\r\n"));
    }

    const std::shared_ptr<const CSymbolIndex> m_index;
    const TQuery m_query;
    const std::string m_prefix;       // identifier and comma
    std::vector<std::size_t> m_found; // number of rows found in the last step that are written
    std::size_t m_written = 0;        // of those found in the last step
    std::size_t m_next = 0;           // row where the next step begins
};

// Ignores ids above 255, which no table has. Returns nothing if the text is not a list of whole numbers.
std::optional<TQuery::TIds> ReadIds(std::string_view text)
{
    TQuery::TIds ids;
    for (;;) {
        text = TrimBlanks(text);
        if (text.empty())
            return ids;
        const std::string_view number = text.substr(0, text.find(' '));
        std::uint64_t id = 0;
        if (!PlainInteger(number, id))
            return std::nullopt;
        if (id < ids.size())
            ids.set(id);
        text.remove_prefix(number.size());
    }
}

// The text from the first field to the last, with blanks for the commas between them.
std::string SearchText(std::string_view first, std::string_view last)
{
    const std::string_view whole(first.data(),
                                 static_cast<std::size_t>(last.data() + last.size() - first.data()));
    std::string text(TrimBlanks(whole));
    std::replace(text.begin(), text.end(), ',', ' ');
    return std::string(TrimBlanks(text));
}

} // namespace

std::unique_ptr<IFeedReply> AnswerFind(std::shared_ptr<const CSymbolIndex> index,
                                       const std::vector<std::string_view>& fields)
{
    const std::size_t count = fields.size();
    if (count < 6 || fields[1].empty())
        return nullptr;
    const std::string prefix = std::string(fields[1]) + ',';
    const auto refuse = [&](const char* sentence) {
        return std::make_unique<CTextReply>(prefix + "E," + sentence + "\r\n");
    };
    const std::string_view field = fields[2], kind = fields[count - 2];
    if (field != "s" && field != "d")
        return refuse("Unknown search field; use s or d");
    if (!kind.empty() && kind != "e" && kind != "t")
        return refuse("Unknown filter kind; use e or t or leave it empty");
    const auto ids = ReadIds(fields[count - 1]);
    if (!ids)
        return refuse("Filter ids are whole numbers separated by blanks");
    const std::string text = SearchText(fields[3], fields[count - 3]);
    if (text.empty())
        return refuse("Empty search text");
    const auto filter = kind.empty()  ? TQuery::Filter::None
                        : kind == "e" ? TQuery::Filter::Markets
                                      : TQuery::Filter::SecurityTypes;
    TQuery query(field == "s" ? TQuery::Field::Symbols : TQuery::Field::Descriptions, text, filter, *ids);
    return std::make_unique<CFindAnswer>(std::move(index), std::move(query), prefix);
}

} // namespace zantroq::feed
