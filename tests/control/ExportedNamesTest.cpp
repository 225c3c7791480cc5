// The exact list of the library's exports: a missing name breaks existing hosts, and an additional one would
// have to be supported for ever.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <string>

namespace {

using Names = std::set<std::string>;

std::string OutputOf(const std::string& command)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> buffer{};
    while (pipe != nullptr) {
        const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get());
        if (count == 0)
            break;
        text.append(buffer.data(), count);
    }
    return text;
}

Names LinesOf(const std::string& text)
{
    Names lines;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        if (end > from)
            lines.insert(text.substr(from, end - from));
        from = end + 1;
    }
    return lines;
}

// The names "_ZN...": the last word of each line, without its version.
Names ExportedNames()
{
    Names names;
    for (const std::string& line :
         LinesOf(OutputOf(std::string(ZANTROQ_NM) + " -D --defined-only -P '" ZANTROQ_CHART_LIBRARY "'"))) {
        const std::string name = line.substr(0, line.find_first_of(" @"));
        if (name != "ZANTROQ_CHART_1")
            names.insert(name);
    }
    return names;
}

} // namespace

TEST(ExportedNames, AreThoseOfTheListAndNoOthers)
{
    std::ifstream file(ZANTROQ_EXPORTED_NAMES);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(ExportedNames(), LinesOf(text));
}

TEST(ExportedNames, CarryTheirVersionAndTheLibraryItsSoname)
{
    const std::string all =
        OutputOf(std::string(ZANTROQ_NM) + " -D --defined-only '" ZANTROQ_CHART_LIBRARY "'");
    EXPECT_NE(all.find("_ZN7zantroq10CChartCtrlC1EP7QWidget@@ZANTROQ_CHART_1"), std::string::npos) << all;
    EXPECT_STREQ(ZANTROQ_CHART_SONAME, "libzantroq-chart.so.1");
}
