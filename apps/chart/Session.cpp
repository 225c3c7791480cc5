#include "Session.h"

#include "conveniences/SymbolText.h"
#include "qt/conveniences/ChartConveniences.h"
#include "qt/output/ChartPicture.h"
#include "qt/widgets/ChartView.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <functional>

namespace zantroq {
namespace {

// Runs the event loop until `done`, until the time is over, or until a signal asks for the end.
bool Pump(int milliseconds, const std::function<bool()>& done)
{
    QElapsedTimer clock;
    clock.start();
    // Checks often, so that the next step sees what the window drew last.
    QTimer wake;
    wake.start(5);
    while (!done()) {
        if (clock.elapsed() >= milliseconds || EndAsked())
            return false;
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

bool IsSimulatedSymbol(const QString& symbol)
{
    return symbol.startsWith("SIM.", Qt::CaseInsensitive);
}

} // namespace

CSession::CSession(const sCommandLine& line) : m_line(line)
{
    QObject::connect(&m_end, &CEndSignals::Asked, qApp, [this] { OnEndAsked(); });
}

CSession::~CSession()
{
    m_foreign.reset();
    m_window.reset();
}

int CSession::Run()
{
    if (!m_line.Replay.empty())
        return RunReplay(); // reads its script before it starts anything
    if (m_line.Into && !FindForeignWindow())
        return ExitUsage;
    if (!StartFeed())
        return ExitNoAnswer;
    MakeWindow();
    return m_line.Snapshots.empty() ? RunWindow() : RunSnapshot();
}

bool CSession::StartFeed()
{
    if (!m_line.EmbeddedFeed)
        return true;
    m_feed = std::make_unique<CEmbeddedFeed>(m_line);
    ListenToFeed();
    std::string error;
    if (m_feed->Start(error))
        return true;
    Complain("--feed embedded: " + error);
    return false;
}

void CSession::ListenToFeed()
{
    QObject::connect(
        m_feed.get(), &CEmbeddedFeed::Notice, qApp, [this](const QString& sentence) { OnNotice(sentence); },
        Qt::QueuedConnection);
}

// A chart of a type that a recording has is better than none; nothing is stored, since nobody chose it.
void CSession::TakeFinestType(const std::string& symbol)
{
    CChartDlg& chart = m_window->Chart().Window();
    const int usual = chart.Settings().Request.DataType;
    const int type = m_feed->TypeFor(symbol, usual).value_or(usual);
    if (type != usual)
        chart.ShowDataType(type);
}

// The user's answer to a feed that is not there.
void CSession::UseRecordedMarket()
{
    auto feed = std::make_unique<CEmbeddedFeed>(m_line);
    std::string error;
    if (!feed->Start(error)) {
        Complain("--feed embedded: " + error);
        return;
    }
    m_feed = std::move(feed);
    ListenToFeed();
    if (const std::string symbol = m_window->Chart().Window().CurrentSymbol(); !symbol.empty())
        TakeFinestType(symbol);
    m_window->Chart().Layer().OfferRecordedMarket(nullptr);
    m_window->Chart().UseFeed(m_feed->PortKey());
}

void CSession::MakeWindow()
{
    sChartCtrlSetup setup;
    if (m_feed != nullptr)
        setup.FeedKey = m_feed->PortKey();
    const bool person = m_line.Snapshots.empty() && m_line.Replay.empty();
    if (!person)
        setup.Box = &m_boxes;
    setup.Popups = person;
    m_window = std::make_unique<CHostWindow>(setup);
    m_window->Chart().SetConveniences(m_line.Conveniences);
    if (person && m_line.Conveniences) {
        m_window->Control().setProperty("ReconnectByItself", true);
        if (m_feed == nullptr)
            m_window->Chart().Layer().OfferRecordedMarket([this] { UseRecordedMarket(); });
    }
    // What the embedded feed simulates it says itself.
    if (m_line.Conveniences)
        m_window->Chart().Layer().OnSimulated = [this](const QString& symbol) {
            if (m_feed == nullptr && !IsSimulatedSymbol(symbol)) // of those the window says more already
                OnNotice(symbol + ": simulated live trades, not a genuine market");
        };
    ApplyOptions();
    QObject::connect(m_window.get(), &QWidget::windowTitleChanged, qApp, [this] { WatchSymbol(); });
    if (m_line.NeedsDisplay())
        ShowWindow();
    if (m_feed != nullptr && m_line.Conveniences && !m_line.DataType && !m_line.Symbol.empty())
        TakeFinestType(TrimmedSymbol(m_line.Symbol));
    if (!m_line.Symbol.empty())
        m_window->Control().SetStockSymbol(QString::fromStdString(m_line.Symbol));
}

bool CSession::FindForeignWindow()
{
    QString wrong;
    m_foreign = CForeignWindow::Find(*m_line.Into, wrong);
    if (m_foreign != nullptr)
        return true;
    Complain("--into " + std::to_string(*m_line.Into) + ": " + wrong.toStdString());
    return false;
}

void CSession::ShowWindow()
{
    if (m_foreign == nullptr)
        return m_window->show();
    m_foreign->Gone = [] { QApplication::exit(ExitDone); };
    m_foreign->Take(*m_window);
}

void CSession::ApplyOptions()
{
    m_window->SetClientSize(m_line.ClientSize());
    CChartDlg& chart = m_window->Chart().Window();
    if (m_line.DataType) {
        chart.Services().Type.Select(*m_line.DataType);
        chart.OnDataTypeChanged(0);
    }
    if (m_line.IntervalIndex) {
        chart.Services().Interval.Select(*m_line.IntervalIndex);
        chart.OnIntervalChanged();
    }
}

// Prints each sentence once on standard error, and shows it in the window while its symbol is displayed.
void CSession::OnNotice(const QString& sentence)
{
    Complain(sentence.toStdString());
    const auto colon = sentence.indexOf(": ");
    if (colon > 0 && sentence.contains("simulated"))
        m_notices[sentence.left(colon)] = sentence;
    if (m_window != nullptr)
        WatchSymbol();
}

void CSession::WatchSymbol()
{
    const QString symbol = QString::fromStdString(m_window->Chart().Window().Services().Symbol.Text());
    QString notice;
    if (IsSimulatedSymbol(symbol)) {
        notice = symbol + ": simulated market, not genuine prices";
        if (m_feed == nullptr && m_said.insert(symbol).second)
            Complain(notice.toStdString()); // an embedded feed reports it itself
    } else if (const auto found = m_notices.find(symbol); found != m_notices.end()) {
        notice = found->second;
    }
    m_window->ShowNotice(notice);
}

// An open dialog may refuse quit; exit also leaves the dialog's loop.
void CSession::OnEndAsked()
{
    if (m_window != nullptr)
        m_window->close();
    QApplication::exit(ExitDone);
}

int CSession::RunWindow()
{
    // exit would lose a signal that arrived before the loop runs.
    if (EndAsked())
        return ExitDone;
    const CChartService service(m_window->Control());
    return QApplication::exec();
}

int CSession::RunSnapshot()
{
    const auto endedEarly = [this] {
        if (EndAsked())
            Complain("--snapshot " + m_line.Snapshots.front() +
                     ": a signal ended the program before every picture was written; run it again");
        return EndAsked();
    };
    const std::string wrong = WaitComplete(m_line.TimeoutMs);
    if (endedEarly())
        return ExitNoAnswer;
    if (!wrong.empty()) {
        Complain(wrong);
        return ExitNoAnswer;
    }
    if (m_line.SettleMs > 0)
        Wait(m_line.SettleMs);
    int exitCode = ExitDone;
    for (const std::string& file : m_line.Snapshots) {
        if (endedEarly())
            return ExitNoAnswer;
        const std::string unwritten = Snapshot(file);
        if (unwritten.empty())
            continue;
        Complain("--snapshot " + unwritten);
        exitCode = ExitNotWritten; // the other files are written nevertheless
    }
    return exitCode;
}

int CSession::RunReplay()
{
    const QString path = QString::fromStdString(m_line.Replay);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Complain("--replay " + m_line.Replay + ": cannot be read (" +
                 file.errorString().toLower().toStdString() + "); name a file with a step a line");
        return ExitUsage;
    }
    const sReplayScript script = ParseReplayScript(file.readAll().toStdString());
    if (!script.Error.empty()) {
        Complain("--replay " + m_line.Replay + ": " + script.Error);
        return ExitUsage;
    }
    if (!StartFeed())
        return ExitNoAnswer;
    MakeWindow();
    const sReplayResult result = zantroq::RunReplay(script, m_window->Chart().Window(), m_boxes, *this);
    if (result.ExitCode != ExitDone)
        Warn(result.Message);
    return result.ExitCode;
}

std::string CSession::NoReply(int milliseconds) const
{
    const CChartDlg& chart = m_window->Chart().Window();
    const std::string time = QString::number(milliseconds / 1000.0).toStdString() + " s";
    const std::string& symbol = chart.CurrentSymbol();
    if (chart.Loading() == 0)
        return "no chart was asked for, and " + time + " brought none; let symbol and draw steps come before";
    const std::string more = m_line.Replay.empty() ? "--timeout" : "the step";
    return symbol + ": the feed gave no complete reply in time (" + time + "); " +
           (m_feed != nullptr ? m_feed->Advice(symbol, chart.Settings().Request.DataType, more)
                              : "start zantroq-feed, try --feed embedded, or give " + more + " more");
}

std::string CSession::WaitComplete(int milliseconds)
{
    const CChartDlg& chart = m_window->Chart().Window();
    const bool done = Pump(milliseconds, [&chart] { return chart.CompleteAndDrawn(); });
    QApplication::sendPostedEvents(); // delivers notices of the feed sent before the reply
    return done ? "" : NoReply(milliseconds);
}

std::string CSession::WaitSearch(int milliseconds)
{
    const CChartDlg& chart = m_window->Chart().Window();
    SearchProgress progress = SearchProgress::NotStarted;
    const auto isOver = [&] {
        const IDialogDriver* const dialog = chart.OpenDialog();
        progress = dialog != nullptr ? dialog->Search() : SearchProgress::NoAnswer;
        return dialog == nullptr || progress == SearchProgress::Ended || progress == SearchProgress::NoAnswer;
    };
    const bool over = Pump(milliseconds, isOver);
    if (chart.OpenDialog() == nullptr)
        return "no dialog is open; open the symbol search by command 774";
    if (over && progress == SearchProgress::NoAnswer)
        return "the feed ended the search without an answer; check that it is running";
    const std::string time = QString::number(milliseconds / 1000.0).toStdString() + " s";
    if (!over && progress == SearchProgress::NotStarted)
        return "no search was begun, and " + time + " brought none; let dialog press 234 come before";
    return over ? "" : "the feed gave no answer in time (" + time + "); give the step more";
}

void CSession::Wait(int milliseconds)
{
    Pump(milliseconds, [] { return false; });
}

void CSession::Resize(int width, int height)
{
    m_window->SetClientSize({width, height});
}

void CSession::Warn(const std::string& sentence)
{
    Complain("--replay " + m_line.Replay + ": " + sentence);
}

std::string CSession::Print(const std::string& file)
{
    return m_window->Chart().PrintToFile(QString::fromStdString(file)).toStdString();
}

std::string CSession::Snapshot(const std::string& file)
{
    return m_window->Chart().SavePicture(QString::fromStdString(file)).toStdString();
}

} // namespace zantroq
