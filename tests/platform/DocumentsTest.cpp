// Documents that name files of the tree name files that exist, and lists that claim to be complete are.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>
#include <string>

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
