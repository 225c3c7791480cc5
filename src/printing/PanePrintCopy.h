// What is printed of a pane: a copy of all it shows, recolored for paper, so that the pane on screen stays
// as it is. Chart window's thread.
#pragma once

#include "platform/TemporaryFile.h"
#include "printing/PrintLayout.h"
#include "scene/Chart2D.h"

#include <memory>
#include <string>

namespace zantroq {

// The copy goes through a pane file in the folder, its name beginning with "CHT", which is gone on return. A
// file that cannot be written or read leaves an empty pane of the client size. The copy's backgrounds are
// white, everything else keeps its colors; its left and right margins and its box's left and width are fixed
// at what they are; no view hears of it and it reacts to nobody.
std::unique_ptr<CChart2D> MakePanePrintCopy(const CChart2D& pane, const sPaneSize& client,
                                            const std::string& folder = TemporaryFolder());

} // namespace zantroq
