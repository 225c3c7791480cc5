// Waits until files and the names in a folder have reached the disk, so that they survive a loss of power.
#pragma once

#include <string>

namespace zantroq {

// Both return false and set errno if the file or folder cannot be opened or synced. Neither blocks on a pipe or
// a device; only plain files and folders are synced. Any thread.
bool SyncFile(const std::string& path);   // the contents of the file
bool SyncFolder(const std::string& path); // the names in the folder; the current folder if `path` is empty

} // namespace zantroq
