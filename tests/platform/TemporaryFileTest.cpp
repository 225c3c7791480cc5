#include "platform/TemporaryFile.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace zantroq {
namespace {

TEST(TemporaryFile, BeginsWithItsPrefixAndIsGoneWithTheObject)
{
    std::string path;
    {
        const CTemporaryFile file("CHT");
        path = file.Path();
        EXPECT_EQ(std::filesystem::path(path).filename().string().substr(0, 3), "CHT");
        EXPECT_EQ(std::filesystem::path(path).parent_path(),
                  std::filesystem::path(TemporaryFolder() + "/").parent_path());
        EXPECT_TRUE(std::filesystem::exists(path));
        EXPECT_EQ(std::filesystem::status(path).permissions() & std::filesystem::perms::others_read,
                  std::filesystem::perms::none);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TemporaryFile, TwoAreNeverTheSame)
{
    const CTemporaryFile one("CHT"), other("CHT");
    EXPECT_NE(one.Path(), other.Path());
}

TEST(TemporaryFile, RemovingTwiceIsHarmless)
{
    CTemporaryFile file("CHT");
    file.Remove();
    EXPECT_EQ(file.Path(), "");
    file.Remove();
}

TEST(TemporaryFile, HasNoPathInAFolderThatIsNotThere)
{
    EXPECT_EQ(CTemporaryFile("CHT", "/no-such-folder").Path(), "");
}

} // namespace
} // namespace zantroq
