// A run of the program with a chart: in a window, for a picture, or for a script. Window's thread.
#pragma once

#include "ChartService.h"
#include "CommandLine.h"
#include "EmbeddedFeed.h"
#include "EndSignals.h"
#include "HostWindow.h"
#include "control/ForeignWindow.h"
#include "replay/ReplayRunner.h"

#include <map>
#include <memory>
#include <set>

namespace zantroq {

class CSession : private IReplayHost
{
public:
    explicit CSession(const sCommandLine& line);
    ~CSession() override;

    int Run(); // the program's exit code

private:
    int RunWindow();
    int RunSnapshot();
    int RunReplay();
    bool StartFeed();
    void MakeWindow();
    bool FindForeignWindow();
    void ShowWindow();
    void TakeFinestType(const std::string& symbol);
    void UseRecordedMarket();
    void ListenToFeed();
    void ApplyOptions(); // data type, interval and size; before the symbol
    void OnNotice(const QString& sentence);
    void OnEndAsked();
    void WatchSymbol();
    std::string NoReply(int milliseconds) const; // the reason, and what to do

    std::string WaitComplete(int milliseconds) override;
    std::string WaitSearch(int milliseconds) override;
    void Wait(int milliseconds) override;
    void Resize(int width, int height) override;
    std::string Print(const std::string& file) override;
    void Warn(const std::string& sentence) override;
    std::string Snapshot(const std::string& file) override;
    bool IsEnding() const override { return EndAsked(); }

    const sCommandLine m_line;
    CEndSignals m_end;
    std::unique_ptr<CEmbeddedFeed> m_feed; // outlives the window
    CReplayMessageBox m_boxes;
    std::unique_ptr<CHostWindow> m_window;
    std::unique_ptr<CForeignWindow> m_foreign; // contains the window; may be null
    std::map<QString, QString> m_notices;      // notices of simulated data, by symbol
    std::set<QString> m_said;
};

} // namespace zantroq
