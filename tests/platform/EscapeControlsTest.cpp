#include "platform/EscapeControls.h"

#include <gtest/gtest.h>

namespace zantroq {

TEST(EscapeControls, ControlCharactersAreShownAsEscapes)
{
    EXPECT_EQ(EscapeControls("a\nb\tc\rd"), "a\\nb\\tc\\rd");
    EXPECT_EQ(EscapeControls("\x1b[31m\x7f"), "\\x1b[31m\\x7f");
    EXPECT_EQ(EscapeControls(std::string_view("\0", 1)), "\\x00");
    EXPECT_EQ(EscapeControls("\xc2\x9b"
                             "31m"),
              "\\u009b31m");
}

TEST(EscapeControls, OtherTextsAreUnchanged)
{
    for (const char* text : {"", "GOOG", "C:\\dir", "\xc3\xa9", "\xc2\xa0", "\xc2", "\xff", "100 %"})
        EXPECT_EQ(EscapeControls(text), text);
}

} // namespace zantroq
