// The copy of a pane for paper, so that the pane on screen does not change. Chart window's thread.
#pragma once

#include "platform/TemporaryFile.h"
#include "printing/PrintLayout.h"
#include "scene/Chart2D.h"

#include <memory>
#include <string>

namespace zantroq {

// Copies a pane through a temporary pane file in `folder`, whose name begins with "CHT". If the file cannot
// be written or read, the copy is an empty pane of the client size. The backgrounds of the copy are white,
// all other colors are unchanged. Its left and right margins and the left and width of its box are fixed at
// their current sizes. No view is attached to it, and it handles no events.
std::unique_ptr<CChart2D> MakePanePrintCopy(const CChart2D& pane, const sPaneSize& client,
                                            const std::string& folder = TemporaryFolder());

} // namespace zantroq
