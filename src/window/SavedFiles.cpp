#include "window/SavedFiles.h"

namespace zantroq {

std::optional<SavedFileKind> SavedFileKindOf(std::string_view ending)
{
    for (const sSavedFileRow& file : SavedFiles)
        if (file.Ending == ending)
            return file.Kind;
    return std::nullopt;
}

std::string EndingList(std::span<const sSavedFileRow> files)
{
    std::string list;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (i > 0)
            list += i + 1 < files.size() ? ", " : " or ";
        list += "." + std::string(files[i].Ending);
    }
    return list;
}

} // namespace zantroq
