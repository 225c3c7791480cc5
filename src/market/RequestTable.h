// The process's table of requests that the feed may name, by handle, and the end of a request's life. A
// window owns its request until it gives it up here. If the reply is still arriving then, the worker frees
// the request when the reply ends. The table has its own lock, which is never held while another lock is
// taken. Any thread.
#pragma once

#include "market/ChartHistRequest.h"

#include <memory>

namespace zantroq {

// A shared pointer to a request. It keeps a request alive after the window has given it up; before that, the
// window owns the request.
using RequestPtr = std::shared_ptr<CChartHistRequest>;

// Adds a request under its handle, unless it is already in the table.
RequestPtr EnterRequest(CChartHistRequest& request);

// The request with this handle; null if it was never added or has been freed.
RequestPtr FindRequest(std::int32_t handle);

// Marks the request dead and gives up the window's ownership. A request that is complete or was never sent is
// freed at once, or as soon as the worker has finished its current line. One that is still loading is freed
// at its "!ENDMSG!", or when the worker has stopped. Unwatch its symbol first.
void GiveUpRequest(std::unique_ptr<CChartHistRequest> request);

// Frees all requests that were given up. Call after the worker has stopped, when no reply can end any more.
void FreeGivenUpRequests();

// Adds the request and clears Complete. Call before sending a command that names it.
void BeginReply(CChartHistRequest& request);

// Ends a reply. A live request becomes complete; returns true. A dead one is emptied and removed from the
// table; returns false.
bool EndReply(CChartHistRequest& request);

// Removes a request that is destroyed without having been given up. Only for the request's destructor.
void ForgetRequest(std::int32_t handle);

// Number of requests in the table.
int CountRequests();

} // namespace zantroq
