// Makes the pane of a study kind. Stateless; may be shared by all windows.
#pragma once

#include "drawing/BaseChart.h"

namespace zantroq {

class CStudyFactory : public IStudyFactory
{
public:
    // With its kind set and nothing else; the caller owns it. Null for an unknown kind.
    CStudyChart* Create(int kind) override;
};

} // namespace zantroq
