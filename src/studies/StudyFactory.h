// Creates the pane of a study kind. Stateless; all windows may share it. Any thread.
#pragma once

#include "drawing/BaseChart.h"

namespace zantroq {

class CStudyFactory : public IStudyFactory
{
public:
    // Creates a pane with only its kind set. The caller owns it. Null for an unknown kind.
    CStudyChart* Create(int kind) override;
};

} // namespace zantroq
