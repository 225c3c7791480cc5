// The rules of the symbol search dialog, without widgets: the effects of its buttons, lists and radio
// buttons. Window's thread.
#pragma once

#include "platform/DialogDriver.h"
#include "platform/Form.h"
#include "platform/WindowThread.h"
#include "search/LookupSystemInfo.h"
#include "search/SymbolRequest.h"

#include <memory>
#include <string>

namespace zantroq {

// Control numbers of the dialog.
enum SearchControl : int
{
    SearchUse = 1,
    SearchCancel = 2,
    SearchButton = 234,
    SearchText = 235,
    SearchFilterRows = 245,
    SearchBySecurityType = 246,
    SearchByMarket = 247,
    SearchOptions = 248,
    SearchSymbols = 249,
    SearchResults = 250,
    SearchDescriptions = 251,
    SearchByLabel = 252,
    SearchLimitLabel = 253
};

// The services that the dialog uses. References must outlive the dialog's rules; the setups of the tables are
// moved into them.
struct sSymbolSearchSetup
{
    sLookupSetup Markets, Types;
    ISymbolLookupMaker& Lookup;
    IWindowThread& Thread;
};

class CSymbolSearch : public IFormEvents, private ISearchNotify
{
public:
    CSymbolSearch(IForm& form, IDialogFrame& frame, sSymbolSearchSetup setup);

    // Fills the dialog at its start. Fetches the markets, which waits for the feed.
    void OnInitDialog();

    // The chosen symbol, after the dialog has ended with OK.
    const std::string& Result() const { return m_result; }
    SearchProgress Progress() const { return m_progress; }

    void OnChanged(int id) override;
    void OnPressed(int id) override;
    void OnDoubleClicked(int id, int row) override;

private:
    enum FilterMode
    {
        FilterNone,
        FilterMarkets,
        FilterTypes
    };

    void ToggleOptions();
    void FillFilter(FilterMode mode);
    void Search();
    std::string SelectedFilterIds() const;
    void UseSelected();
    void PostResults(int count) override;
    void OnNoAnswer() override;
    void OnResults(int count); // message 0x401
    std::string MarketName(const std::string& id);

    IForm& m_form;
    IDialogFrame& m_frame;
    IWindowThread& m_thread;
    ISymbolLookupMaker& m_lookup;
    CListedMarkets m_markets;
    CSecurityTypes m_types;
    FilterMode m_filterMode = FilterNone;
    bool m_nextToggleOpens = false;
    std::string m_result;
    SearchProgress m_progress = SearchProgress::NotStarted;
    int m_search = 0; // number of the current search; results of an earlier search are ignored
    std::shared_ptr<int> m_alive = std::make_shared<int>();
    std::unique_ptr<CSymbolRequest> m_request; // null until the dialog starts; destroyed first
};

} // namespace zantroq
