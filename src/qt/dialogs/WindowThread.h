// Hands a worker's results to the thread that this object was made on.
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
