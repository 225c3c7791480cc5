// Reads and writes a whole file. Each function returns an empty text, or the reason of the failure. Any
// thread.
#pragma once

#include <string>

namespace zantroq {

// "-" is standard input. Reads at most 64 MB, far more than any settings need.
std::string ReadWholeFile(const std::string& path, std::string& text);

// Writes a temporary file and renames it, so that other programs see either the old file or the complete new
// one. A link is followed; a pipe or a device is written to directly.
std::string WriteWholeFile(const std::string& path, const std::string& text);

} // namespace zantroq
