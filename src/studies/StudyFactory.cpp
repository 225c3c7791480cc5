#include "studies/StudyFactory.h"

#include "studies/StudyTable.h"

namespace zantroq {

CStudyChart* CStudyFactory::Create(int kind)
{
    const sStudyRow* const row = FindStudy(kind);
    if (row == nullptr)
        return nullptr;
    std::unique_ptr<CStudyChart> study = row->Make();
    study->kind = kind;
    return study.release();
}

} // namespace zantroq
