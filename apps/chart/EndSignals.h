// The signals that end the program like closing its window: SIGTERM, SIGINT, and SIGHUP unless it was ignored
// at the start, as with nohup.
#pragma once

#include <QSocketNotifier>

#include <memory>

namespace zantroq {

// From now on the signals set a flag instead of killing the process. Call once, before any thread starts. If
// no pipe can be created, the signals still kill the process.
void CatchEndSignals();

// True if one of the signals has arrived. Any thread.
bool EndAsked();

// Wakes the event loop of its thread when a signal arrives, or at once if one arrived before its
// construction. At most one object at a time.
class CEndSignals : public QObject
{
    Q_OBJECT
public:
    CEndSignals();

signals:
    void Asked(); // once

private:
    std::unique_ptr<QSocketNotifier> m_notifier; // null if the signals are not caught
};

} // namespace zantroq
