#include "control/StoredProperties.h"

#include <gtest/gtest.h>

namespace zantroq::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

} // namespace

TEST(StoredProperties, AreTheVersionAndThenTheStockProperties)
{
    EXPECT_EQ(WriteProperties({1, 1, false}), (Bytes{0, 0, 1, 0, 1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(WriteProperties({0, 1, true}), (Bytes{0, 0, 1, 0, 0, 0, 1, 0, 1, 0}));
}

TEST(StoredProperties, ReadBackAsTheyWereWritten)
{
    for (const int appearance : {0, 1})
        for (const int borderStyle : {0, 1})
            for (const bool enabled : {false, true}) {
                const sStoredProperties written{appearance, borderStyle, enabled};
                sStoredProperties read{1 - appearance, 1 - borderStyle, !enabled};
                EXPECT_TRUE(ReadProperties(WriteProperties(written), read));
                EXPECT_EQ(read, written);
            }
}

TEST(StoredProperties, BytesThatAreNotTheirsChangeNothing)
{
    const sStoredProperties kept{1, 1, false};
    const std::vector<Bytes> wrong{
        {},
        {0, 0, 1, 0, 0, 0, 1, 0, 1},       // one byte missing
        {0, 0, 1, 0, 0, 0, 1, 0, 1, 0, 0}, // one byte too many
        {1, 0, 1, 0, 0, 0, 1, 0, 1, 0},    // another version
        {0, 0, 2, 0, 0, 0, 1, 0, 1, 0},    // a later one
        {0, 0, 1, 0, 2, 0, 1, 0, 1, 0},    // Appearance
        {0, 0, 1, 0, 0, 0, 0, 1, 1, 0},    // BorderStyle
        {0, 0, 1, 0, 0, 0, 1, 0, 2, 0},    // Enabled
    };
    for (const Bytes& bytes : wrong) {
        sStoredProperties read = kept;
        EXPECT_FALSE(ReadProperties(bytes, read)) << testing::PrintToString(bytes);
        EXPECT_EQ(read, kept);
    }
}

} // namespace zantroq::test
