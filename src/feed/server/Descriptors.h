// Watches how many descriptors the process may still open.
#pragma once

namespace zantroq::feed {

// Returns true while so few descriptors are free that those left must be kept for files that the feed has to
// open: 16, or an eighth of the process's limit if that is less. Any thread.
bool IsShortOfDescriptors();

} // namespace zantroq::feed
