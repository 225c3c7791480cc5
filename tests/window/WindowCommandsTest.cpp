// The table of commands.
#include "window/WindowCommands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace zantroq;

TEST(WindowCommands, AllCommandsAreTheDocumentedNumbersInAscendingOrder)
{
    const std::array<int, 22> documented{774,   775,   776,   777,   778,   779,   32777, 32779,
                                         32780, 32782, 32783, 32784, 32785, 32786, 32787, 32788,
                                         32789, 32790, 32791, 32792, 32793, 32794};
    EXPECT_EQ(AllCommands, documented);
}

TEST(WindowCommands, EveryToolbarButtonHasANameAndAnIconOfItsOwn)
{
    std::set<std::string> names, icons;
    for (const sToolbarCommand& row : ToolbarCommands) {
        EXPECT_NE(std::string(row.Name), "") << row.Command;
        EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
        EXPECT_TRUE(icons.insert(row.Icon).second) << row.Icon;
    }
}

TEST(WindowCommands, NoKeyRunsTwoCommands)
{
    std::set<char> keys;
    for (const sToolbarCommand& row : ToolbarCommands)
        for (const char key : std::string(row.CtrlKeys))
            EXPECT_TRUE(keys.insert(key).second) << key;
}
