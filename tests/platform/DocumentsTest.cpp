// File names in documents must exist, and complete lists must be complete.
#include "LayerTable.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path Root = ZANTROQ_SOURCE_DIR;

std::string TextOf(const fs::path& file)
{
    std::ifstream stream(Root / file);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

// The words in backticks that `pattern` matches.
std::set<std::string> Named(const std::string& text, const char* pattern)
{
    std::set<std::string> names;
    const std::regex quoted(std::string("`(") + pattern + ")`");
    for (std::sregex_iterator match(text.begin(), text.end(), quoted), end; match != end; ++match)
        names.insert((*match)[1].str());
    return names;
}

class CPaths : public testing::TestWithParam<const char*>
{
};

TEST_P(CPaths, NamedInADocumentExist)
{
    const std::set<std::string> paths =
        Named(TextOf(GetParam()), "(?:src|apps|tests|docs|bench|fuzz|packaging|\\.ci)/[A-Za-z0-9_./-]*");
    EXPECT_GE(paths.size(), 4u);
    for (const std::string& path : paths)
        EXPECT_TRUE(fs::exists(Root / path)) << path;
}

INSTANTIATE_TEST_SUITE_P(Documents, CPaths,
                         testing::Values("docs/architecture.md", "docs/window.md", "CONTRIBUTING.md"));

TEST(Documents, TheWindowPageListsEveryHeaderOfItsFolder)
{
    const std::set<std::string> named = Named(TextOf("docs/window.md"), "[A-Za-z0-9]+");
    for (const fs::directory_entry& file : fs::directory_iterator(Root / "src/window")) {
        if (file.path().extension() == ".h") {
            EXPECT_TRUE(named.count(file.path().stem().string())) << file.path().filename();
        }
    }
}

// The files that the numbered items of a text name, in order.
std::vector<std::string> StepFiles(const std::string& text)
{
    static const std::regex item("^([0-9]+\\.|   ) ?.*"), file("`(src/[A-Za-z0-9_./-]+\\.(?:h|cpp))`");
    std::vector<std::string> files;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!std::regex_match(line, item))
            continue;
        for (std::sregex_iterator match(line.begin(), line.end(), file), end; match != end; ++match)
            files.push_back((*match)[1].str());
    }
    return files;
}

std::string FolderOf(const std::string& file)
{
    return file.substr(4, file.find('/', 4) - 4);
}

// "from -> to" for each step that leads to a folder which the one before may not include.
std::vector<std::string> Climbs(const std::vector<std::string>& files)
{
    std::vector<std::string> climbs;
    for (std::size_t i = 1; i < files.size(); ++i) {
        const std::string from = FolderOf(files[i - 1]), to = FolderOf(files[i]);
        const std::vector<std::string>& below = zantroq::test::MayInclude().at(from);
        if (from != to && std::find(below.begin(), below.end(), to) == below.end())
            climbs.push_back(files[i - 1] + " -> " + files[i]);
    }
    return climbs;
}

// The part of a text between two others.
std::string Between(const std::string& text, const std::string& from, const std::string& to)
{
    const std::size_t begin = text.find(from);
    const std::size_t end = text.find(to, begin == std::string::npos ? 0 : begin);
    EXPECT_NE(begin, std::string::npos) << from;
    EXPECT_NE(end, std::string::npos) << to;
    return begin == std::string::npos || end == std::string::npos ? "" : text.substr(begin, end - begin);
}

TEST(Documents, NoStepOfATickOrAClickOnTheWindowsThreadClimbs)
{
    const std::string text = TextOf("docs/architecture.md");
    for (const auto& [from, to] :
         {std::pair("The window's thread, on its next timer tick:", "The batch ends"),
          std::pair("The batch ends", "## One click"), std::pair("## One click", "## Where is it?")}) {
        const std::vector<std::string> files = StepFiles(Between(text, from, to));
        EXPECT_GE(files.size(), 5u) << from;
        for (const std::string& climb : Climbs(files))
            ADD_FAILURE() << climb;
    }
}

TEST(Documents, AStepThatClimbsIsNamed)
{
    const std::vector<std::string> files = StepFiles("1. `src/window/A.cpp` calls\n"
                                                     "   `src/drawing/B.cpp`.\n"
                                                     "2. `src/window/C.cpp` is called back.\n"
                                                     "Text about `src/qt/D.cpp`.\n");
    EXPECT_EQ(files.size(), 3u);
    EXPECT_EQ(Climbs(files), std::vector<std::string>{"src/drawing/B.cpp -> src/window/C.cpp"});
}

TEST(Documents, TheReadmeLinksEveryPage)
{
    const std::string readme = TextOf("README.md");
    for (const fs::directory_entry& file : fs::directory_iterator(Root / "docs")) {
        if (file.path().extension() == ".md") {
            EXPECT_NE(readme.find("docs/" + file.path().filename().string()), std::string::npos)
                << file.path().filename();
        }
    }
    EXPECT_NE(readme.find("CONTRIBUTING.md"), std::string::npos);
}

} // namespace
