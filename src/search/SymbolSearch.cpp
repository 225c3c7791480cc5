#include "search/SymbolSearch.h"

#include "platform/parse/LeadingNumber.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace zantroq {

namespace {

constexpr int DialogWidth = 335, SmallHeight = 310, LargeHeight = 500;
constexpr std::array OptionControls{SearchLimitLabel, SearchByMarket, SearchBySecurityType, SearchFilterRows};
constexpr std::size_t EmptyFilterText = 3; // " - ", the text of an id without a row in the table

const std::vector<sFormColumn>& ResultColumns()
{
    static const std::vector<sFormColumn> columns{{"Symbol", 90}, {"Market", 75}, {"Description", 130}};
    return columns;
}

const std::vector<sFormColumn>& FilterColumns()
{
    static const std::vector<sFormColumn> columns{{"Data", 305}, {"ID", 0}};
    return columns;
}

// Tables and columns keep the CR of a line's last token; it must not be shown.
std::string Shown(std::string text)
{
    while (!text.empty() && text.back() == '\r')
        text.pop_back();
    return text;
}

} // namespace

CSymbolSearch::CSymbolSearch(IForm& form, IDialogFrame& frame, sSymbolSearchSetup setup)
    : m_form(form),
      m_frame(frame),
      m_thread(setup.Thread),
      m_lookup(setup.Lookup),
      m_markets(std::move(setup.Markets)),
      m_types(std::move(setup.Types))
{
}

void CSymbolSearch::OnInitDialog()
{
    m_request = std::make_unique<CSymbolRequest>(static_cast<ISearchNotify&>(*this), m_lookup);
    m_form.SetChecked(SearchDescriptions, true);
    m_form.SetColumns(SearchResults, ResultColumns());
    m_form.SetColumns(SearchFilterRows, FilterColumns());
    ToggleOptions();
    m_form.Focus(SearchText);
}

void CSymbolSearch::OnChanged(int id)
{
    if (id == SearchByMarket)
        FillFilter(FilterMarkets);
    else if (id == SearchBySecurityType)
        FillFilter(FilterTypes);
}

void CSymbolSearch::OnPressed(int id)
{
    switch (id) {
    case SearchButton:
        Search();
        break;
    case SearchOptions:
        ToggleOptions();
        break;
    case SearchUse:
        if (m_form.SelectedRows(SearchResults).empty())
            Search();
        else
            UseSelected();
        break;
    case SearchCancel:
        m_frame.End(DialogEnd::Cancel);
        break;
    default:
        break;
    }
}

void CSymbolSearch::OnDoubleClicked(int id, int)
{
    if (id == SearchResults && !m_form.SelectedRows(SearchResults).empty())
        UseSelected();
}

void CSymbolSearch::UseSelected()
{
    m_result = m_form.Row(SearchResults, m_form.SelectedRows(SearchResults).front()).front();
    m_frame.End(DialogEnd::Ok);
}

void CSymbolSearch::ToggleOptions()
{
    if (m_filterMode == FilterNone) {
        m_form.SetChecked(SearchByMarket, true);
        FillFilter(FilterMarkets);
    }
    const bool open = m_nextToggleOpens;
    m_nextToggleOpens = !open;
    m_form.SetText(SearchOptions, open ? "Hide Options" : "Show Options");
    for (const int id : OptionControls)
        m_form.SetVisible(id, open);
    m_form.SetSize(DialogWidth, open ? LargeHeight : SmallHeight);
}

void CSymbolSearch::FillFilter(FilterMode mode)
{
    if (m_filterMode == mode)
        return;
    m_filterMode = mode;
    CLookupSystemInfo& table = mode == FilterMarkets ? static_cast<CLookupSystemInfo&>(m_markets) : m_types;
    std::vector<FormRow> rows;
    const auto count = static_cast<std::size_t>(table.GetRowCount());
    for (int id = 0; id < static_cast<int>(LookupRows) && rows.size() < count; ++id) {
        const std::string shortName = table.GetShortName(id), longName = table.GetLongName(id);
        if ((shortName + " - " + longName).size() > EmptyFilterText)
            rows.push_back({Shown(shortName) + " - " + Shown(longName), std::to_string(id)});
    }
    m_form.SetRows(SearchFilterRows, std::move(rows));
}

std::string CSymbolSearch::SelectedFilterIds() const
{
    std::string ids;
    for (const int row : m_form.SelectedRows(SearchFilterRows))
        ids += (ids.empty() ? "" : " ") + m_form.Row(SearchFilterRows, row).at(1);
    return ids;
}

void CSymbolSearch::Search()
{
    const std::string text = m_form.Text(SearchText);
    m_form.SetRows(SearchResults, {});
    m_request->Clear();
    ++m_search;
    m_progress = SearchProgress::NotStarted;
    m_form.SetWaiting(false);
    const std::string ids = SelectedFilterIds();
    std::string kind;
    if (!ids.empty())
        kind = m_filterMode == FilterMarkets ? "e" : "t";
    if (text.empty())
        return;
    m_form.SetWaiting(true);
    m_progress = SearchProgress::Waiting;
    const std::string field = m_form.Checked(SearchSymbols) ? "s" : "d";
    if (m_request->Request(field, text, kind, ids))
        return;
    m_progress = SearchProgress::Ended;
    m_form.SetWaiting(false);
    m_form.SetRows(SearchResults, {{"Error", "", "Symbol Request Failed"}});
}

void CSymbolSearch::PostResults(int count)
{
    const auto ofThisSearch = [this, search = m_search, count] {
        if (search == m_search)
            OnResults(count);
    };
    m_thread.Post([alive = std::weak_ptr<int>(m_alive), ofThisSearch] {
        if (!alive.expired())
            ofThisSearch();
    });
}

void CSymbolSearch::OnNoAnswer()
{
    m_progress = SearchProgress::NoAnswer;
    m_form.SetWaiting(false);
}

void CSymbolSearch::OnResults(int count)
{
    std::map<std::string, std::string> names; // cache by id text: many rows share few ids
    std::vector<FormRow> rows(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        const std::string id = m_request->GetColumn(row, 1);
        auto name = names.find(id);
        if (name == names.end()) {
            // Each attempt may take five seconds, so a table that cannot be loaded is tried once.
            const bool hopeless = !names.empty() && !m_markets.Loaded();
            name = names.emplace(id, hopeless ? std::string() : MarketName(id)).first;
        }
        // Each row is inserted at the top of the list.
        rows[static_cast<std::size_t>(count - 1 - row)] = {Shown(m_request->GetColumn(row, 0)), name->second,
                                                           Shown(m_request->GetColumn(row, 2))};
    }
    m_form.SetRows(SearchResults, std::move(rows));
    m_form.SetWaiting(false);
    m_progress = SearchProgress::Ended;
}

std::string CSymbolSearch::MarketName(const std::string& id)
{
    return Shown(m_markets.GetShortName(TextToInt(id)));
}

} // namespace zantroq
