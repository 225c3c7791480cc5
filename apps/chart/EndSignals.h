// The signals that end the program: SIGTERM, SIGINT, and SIGHUP unless it was ignored at the start, as nohup
// does. They end it as closing its window does.
#pragma once

#include <QSocketNotifier>

#include <memory>

namespace zantroq {

// From here on the signals set a flag in place of killing the process. Call once, before any thread starts.
// Where no pipe can be made the signals go on killing the process.
void CatchEndSignals();

// Whether one of the signals has come. Any thread.
bool EndAsked();

// Wakes the event loop of its thread when a signal comes, and after its construction if one came before.
// At most one at a time.
class CEndSignals : public QObject
{
    Q_OBJECT
public:
    CEndSignals();

signals:
    void Asked(); // once

private:
    std::unique_ptr<QSocketNotifier> m_notifier; // none where the signals are not caught
};

} // namespace zantroq
