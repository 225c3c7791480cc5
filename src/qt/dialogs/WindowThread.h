// Runs a worker's results on the thread that created this object. Post may be called on any thread.
#pragma once

#include "platform/WindowThread.h"

#include <QObject>

namespace zantroq {

class CWindowThread : public QObject, public IWindowThread
{
public:
    void Post(std::function<void()> work) override
    {
        QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
    }
};

} // namespace zantroq
