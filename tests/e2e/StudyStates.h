// Compares the study panes of a state file with the plain definition, bit for bit: the numbers of a state can
// be read back exactly.
#pragma once

#include "studies/PlainStudy.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <bit>
#include <cmath>
#include <string>
#include <vector>

namespace zantroq::test {

using nlohmann::json;

inline double NumberOf(const json& value)
{
    if (value.is_null())
        return plain::Hole;
    if (value.is_number())
        return value.get<double>();
    const std::string text = value;
    return text == "nan" ? std::nan("") : text == "inf" ? INFINITY : -INFINITY;
}

inline bool SameBits(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

inline void ExpectLine(const json& shown, const std::vector<double>& expected)
{
    ASSERT_EQ(shown.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_TRUE(SameBits(NumberOf(shown.at(i)), expected[i]))
            << "point " << i + 1 << ": " << shown.at(i) << ", expected " << expected[i];
}

inline void ExpectPane(const json& pane, const plain::sPane& twin)
{
    const json& main = pane.at("groups").at(0).at("series");
    ASSERT_EQ(main.size(), twin.lines.size());
    ExpectLine(main.at(0).at("x"), twin.x);
    for (std::size_t i = 0; i < twin.lines.size(); ++i) {
        SCOPED_TRACE("series " + std::to_string(i + 1));
        ExpectLine(main.at(i).at("y"), twin.lines[i]);
    }
    if (!twin.second.empty()) {
        SCOPED_TRACE("second group");
        ExpectLine(pane.at("groups").at(1).at("series").at(0).at("y"), twin.second);
    }
    const json& axis = pane.at("axes").at("y");
    EXPECT_TRUE(SameBits(axis.at("viewLow"), twin.yViewLow)) << axis.at("viewLow");
    EXPECT_TRUE(SameBits(axis.at("viewHigh"), twin.yViewHigh)) << axis.at("viewHigh");
    const json& labels = axis.at("tickLabels");
    ASSERT_EQ(labels.size(), twin.labels.size());
    for (std::size_t i = 0; i < twin.labels.size(); ++i)
        EXPECT_EQ(labels.at(i).at(1), twin.labels[i].second);
}

// The range of a state, for the plain definition.
inline plain::sView ViewOf(const json& state)
{
    const json& range = state.at("range");
    return {range.at("first"), range.at("shown"), range.at("ptsIndex"), false};
}

// Script steps that display these studies below the price pane.
inline std::string StackSteps(const std::vector<int>& kinds)
{
    std::string steps = "set \"Number of displayed study charts\" " + std::to_string(kinds.size()) + "\n";
    for (std::size_t i = 0; i < kinds.size(); ++i)
        steps += "set \"Type of study chart " + std::to_string(i) + "\" " + std::to_string(kinds[i]) + "\n";
    return steps;
}

} // namespace zantroq::test
