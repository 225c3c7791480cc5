// The process's table of requests that the feed may name, by the handle that goes out on the wire, and with
// it the end of a request's life. A window owns its request until it gives it up here; a request given up
// while its reply is still coming is freed by the worker when the reply ends. One short lock, held across
// nothing else. Any thread.
#pragma once

#include "market/ChartHistRequest.h"

#include <memory>

namespace zantroq {

// Keeps a request in the table alive once its window has given it up; until then the window's own pointer
// does.
using RequestPtr = std::shared_ptr<CChartHistRequest>;

// Enters a request under its handle, if it is not there yet.
RequestPtr EnterRequest(CChartHistRequest& request);

// The request with this handle, or null when it was never entered or has been freed.
RequestPtr FindRequest(std::int32_t handle);

// The window's last act on its request: marks it dead and lets go of it. A request that is complete, or that
// was never sent, is freed at once, or when the worker is done with the line in hand; one that still loads
// stays until its "!ENDMSG!" comes, or until the worker has stopped. Unwatch its symbol
// first.
void GiveUpRequest(std::unique_ptr<CChartHistRequest> request);

// Frees all requests that were given up: the worker has stopped, and no reply can end any more.
void FreeGivenUpRequests();

// A command that names the request is about to go out: enters it and clears Complete.
void BeginReply(CChartHistRequest& request);

// The reply has ended. A live request becomes complete: true. A dead one is emptied and leaves the table:
// false.
bool EndReply(CChartHistRequest& request);

// Takes a request out of the table that is destroyed without having been given up. For the request's own
// destructor.
void ForgetRequest(std::int32_t handle);

// Requests in the table.
int CountRequests();

} // namespace zantroq
