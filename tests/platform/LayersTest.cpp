// Which folder of src/ may include which. Reports each include that is not allowed, with file and line.
#include "LayerTable.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

using zantroq::test::MayInclude;
namespace fs = std::filesystem;

bool ToolkitAllowed(const std::string& folder)
{
    return folder == "qt" || folder == "control" || folder == "resources";
}

bool IsToolkitHeader(const std::string& header)
{
    static const std::regex toolkit("Q[A-Z][A-Za-z]*(/.*)?|Qt[A-Z][A-Za-z]*/.*|q[a-z]+\\.h");
    return std::regex_match(header, toolkit);
}

// What is wrong with an include of a file in `folder`; empty if nothing is.
std::string Complaint(const std::string& folder, const std::string& header, bool quoted)
{
    if (!ToolkitAllowed(folder) && IsToolkitHeader(header))
        return "the toolkit is for qt/ alone";
    const std::string target = header.substr(0, header.find('/'));
    if (target == header || !MayInclude().count(target))
        return quoted && header.find("..") != std::string::npos ? "name headers from src/" : "";
    const auto& allowed = MayInclude().at(folder);
    if (target == folder || std::find(allowed.begin(), allowed.end(), target) != allowed.end())
        return "";
    return folder + "/ may not include " + target + "/";
}

// "file:line: include: complaint" for each include of the text that breaks the table.
std::vector<std::string> Complaints(const std::string& folder, const std::string& file, std::istream& text)
{
    static const std::regex include("\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"].*");
    std::vector<std::string> found;
    std::string line;
    for (int number = 1; std::getline(text, line); ++number) {
        std::smatch match;
        if (!std::regex_match(line, match, include))
            continue;
        const std::string complaint = Complaint(folder, match[2], match[1] == "\"");
        if (!complaint.empty())
            found.push_back(file + ":" + std::to_string(number) + ": " + match[2].str() + ": " + complaint);
    }
    return found;
}

bool IsSource(const fs::path& path)
{
    return path.extension() == ".h" || path.extension() == ".cpp";
}

} // namespace

TEST(layers, IncludesPointDownwards)
{
    const fs::path root = fs::path(ZANTROQ_SOURCE_DIR) / "src";
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file() || !IsSource(entry.path()))
            continue;
        const fs::path name = fs::relative(entry.path(), root);
        const std::string folder = name.begin()->string();
        ASSERT_TRUE(MayInclude().count(folder))
            << "src/" << folder << "/ has no line in the table of this test";
        std::ifstream text(entry.path());
        for (const std::string& complaint : Complaints(folder, "src/" + name.generic_string(), text))
            ADD_FAILURE() << complaint;
        ++files;
    }
    EXPECT_GT(files, 20);
}

TEST(layers, AnIncludeThatPointsUpwardsIsNamed)
{
    std::istringstream text(
        "#pragma once\n#include \"drawing/Chart2D.h\"\n#include \"platform/Lock.h\"\n#include <QWidget>\n");
    const std::vector<std::string> expected{
        "src/market/X.h:2: drawing/Chart2D.h: market/ may not include drawing/",
        "src/market/X.h:4: QWidget: the toolkit is for qt/ alone"};
    EXPECT_EQ(Complaints("market", "src/market/X.h", text), expected);
}
