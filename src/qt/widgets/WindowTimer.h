// The chart window's timers by number, in the toolkit's event loop. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QObject>

#include <functional>
#include <map>

namespace zantroq {

class CWindowTimer : public QObject, public IWindowTimer
{
public:
    std::function<void(int id)> OnTick;

    void Start(int id, int milliseconds) override;
    void Stop(int id) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    std::map<int, int> m_running; // the toolkit's number of each running timer
};

} // namespace zantroq
