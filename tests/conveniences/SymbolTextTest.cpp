#include "conveniences/SymbolText.h"

#include <gtest/gtest.h>

namespace zantroq::test {

TEST(SymbolText, BlanksBeforeAndAfterASymbolAreCutOff)
{
    EXPECT_EQ(TrimmedSymbol(" GOOG "), "GOOG");
    EXPECT_EQ(TrimmedSymbol("\tGOOG\r\n"), "GOOG");
    EXPECT_EQ(TrimmedSymbol("GOOG"), "GOOG");
}

TEST(SymbolText, BlanksInsideASymbolAreItsOwn)
{
    EXPECT_EQ(TrimmedSymbol("  BRK B "), "BRK B");
}

TEST(SymbolText, BlanksAloneAreNoSymbol)
{
    EXPECT_EQ(TrimmedSymbol(" \t "), "");
    EXPECT_EQ(TrimmedSymbol(""), "");
}

} // namespace zantroq::test
