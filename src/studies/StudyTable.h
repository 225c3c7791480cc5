// The table of the ten studies. The class of a study computes its curves, header and readout; its row creates
// its pane and names its columns in an export. A new study needs a class, a row here and its settings.
// Constant data, any thread.
#pragma once

#include "drawing/BaseChart.h"

#include <memory>
#include <span>

namespace zantroq {

// A column of an export: a curve of a study pane.
struct sStudyColumn
{
    const char* Name;
    int Group, Series;
};

struct sStudyRow
{
    StudyKind Kind;
    std::unique_ptr<CStudyChart> (*Make)();
    std::span<const sStudyColumn> Columns; // without levels, and without volumes, which every export has
};

const sStudyRow* FindStudy(int kind); // null for an unknown kind

} // namespace zantroq
