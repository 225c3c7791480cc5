// Sizes whose leading zeros are only counted, compared with a plain vector.
#include "market/SizeArray.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace zantroq;

namespace {

std::vector<std::int32_t> Contents(const CSizeArray& array)
{
    std::vector<std::int32_t> contents;
    for (int i = 0; i < array.Count(); ++i)
        contents.push_back(array[i]);
    return contents;
}

} // namespace

TEST(SizeArray, RefusesAnIndexOutsideIt)
{
    CSizeArray array;
    EXPECT_THROW(array[0], std::invalid_argument);
    array.PrepareAdd();
    array.AddZeros(1);
    for (const int index : {-1, 1}) {
        EXPECT_THROW(array[index], std::invalid_argument);
        EXPECT_THROW(array.SetAt(index, 0), std::invalid_argument);
        EXPECT_THROW(array.SetAt(index, 5), std::invalid_argument);
        EXPECT_THROW(array.RemoveAt(index), std::invalid_argument);
        EXPECT_THROW(array.Check(index), std::invalid_argument);
    }
    EXPECT_EQ(Contents(array), (std::vector<std::int32_t>{0}));
}

RC_GTEST_PROP(SizeArray, AnyOperationsGiveWhatAPlainVectorGives, ())
{
    CSizeArray array;
    array.SetGrowStep(*rc::gen::inRange(0, 20));
    std::vector<std::int32_t> plain;
    const int operations = *rc::gen::inRange(0, 100);
    for (int i = 0; i < operations; ++i) {
        const std::int32_t size = *rc::gen::element(0, 0, 0, 1, -7, 2147483647);
        const int count = static_cast<int>(plain.size());
        const int at = count > 0 ? *rc::gen::inRange(0, count) : 0;
        switch (*rc::gen::inRange(0, 6)) {
        case 0:
            array.PrepareAdd();
            array.AddPrepared(size);
            plain.push_back(size);
            break;
        case 1: {
            array.PrepareAdd();
            const int zeros = array.Capacity() - array.Count();
            RC_ASSERT(zeros > 0);
            array.AddZeros(zeros);
            plain.resize(plain.size() + static_cast<std::size_t>(zeros));
            break;
        }
        case 2: {
            // The room remains, whatever is written in between.
            array.PrepareAdd();
            if (count > 0) {
                array.SetAt(at, size);
                plain[static_cast<std::size_t>(at)] = size;
            }
            array.AddPrepared(9);
            plain.push_back(9);
            break;
        }
        case 3:
            if (count > 0) {
                array.SetAt(at, size);
                plain[static_cast<std::size_t>(at)] = size;
            }
            break;
        case 4:
            if (count > 0) {
                array.RemoveAt(at);
                plain.erase(plain.begin() + at);
            }
            break;
        default:
            if (*rc::gen::inRange(0, 10) == 0) {
                array.Clear();
                plain.clear();
            }
        }
        RC_ASSERT(array.Count() == static_cast<int>(plain.size()));
    }
    RC_ASSERT(Contents(array) == plain);
}
