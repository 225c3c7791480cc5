// The process's table of requests that the feed may name, by the handle that goes out on the wire, and with
// it the end of a request's life. A window creates its request here and gives it up here; a request given up
// while its reply is still coming is freed by the worker when the reply ends. One short lock, held across
// nothing else. Any thread.
#pragma once

#include "market/ChartHistRequest.h"

#include <memory>

namespace zantroq {

using RequestPtr = std::shared_ptr<CChartHistRequest>;

// A new request, entered under its handle.
RequestPtr CreateRequest();

// The request with this handle, or null when it was never entered or has been freed.
RequestPtr FindRequest(std::int32_t handle);

// The window's last act on its request, on the window's thread: marks it dead and lets go of it. A request
// that is complete, or that was never sent, is freed at once; one that still loads stays in the table until
// its "!ENDMSG!" comes, which may be never. Unwatch its symbol first.
void GiveUpRequest(RequestPtr& request);

// A command that names the request is about to go out: clears Complete.
void BeginReply(CChartHistRequest& request);

// The reply has ended. A live request becomes complete: true. A dead one is emptied and leaves the table:
// false.
bool EndReply(CChartHistRequest& request);

// Requests in the table.
int CountRequests();

} // namespace zantroq
