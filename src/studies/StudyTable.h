// The ten studies as a table. A study's class makes its curves, header and readout; its row says how an
// export names its columns and how its pane is made. A new study is a class, a row here and its settings.
#pragma once

#include "drawing/BaseChart.h"

#include <memory>
#include <span>

namespace zantroq {

// A curve of a study pane as a column of an export.
struct sStudyColumn
{
    const char* Name;
    int Group, Series;
};

struct sStudyRow
{
    StudyKind Kind;
    std::unique_ptr<CStudyChart> (*Make)();
    std::span<const sStudyColumn> Columns; // levels are left out, and the volumes, which are a column already
};

const sStudyRow* FindStudy(int kind); // null for an unknown kind

} // namespace zantroq
