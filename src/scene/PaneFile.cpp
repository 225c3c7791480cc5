#include "scene/PaneFile.h"

#include <exception>
#include <fstream>
#include <vector>

namespace zantroq {

bool SavePaneFile(const CChart2D& chart, const std::string& path)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << PaneToText(chart) << '\n';
    file.close();
    return !file.fail();
}

bool LoadPaneFile(const std::string& path, CChart2D& chart)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    try {
        std::string text;
        std::vector<char> piece(1 << 20);
        while (file.read(piece.data(), static_cast<std::streamsize>(piece.size())) || file.gcount() > 0)
            text.append(piece.data(), static_cast<std::size_t>(file.gcount()));
        if (file.bad())
            return false;
        PaneFromText(text, chart);
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

} // namespace zantroq
