// Reading and writing a file in one piece. The answers are empty, or the reason why it could not be done.
#pragma once

#include <string>

namespace zantroq {

// "-" is standard input. At most 64 MB, which is far more than any settings need.
std::string ReadWholeFile(const std::string& path, std::string& text);

// Whoever looks sees the file as it was or the new one whole: it is written beside and put in place at the
// end. A link is followed; a pipe or device is written to as it is.
std::string WriteWholeFile(const std::string& path, const std::string& text);

} // namespace zantroq
