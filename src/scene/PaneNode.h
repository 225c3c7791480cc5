// Base of all objects of a pane's tree: knows its scene and notifies it of changes. Chart window's thread.
#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace zantroq {

class CChart2D;

// Whether assigning b to a would change nothing. Numbers are compared bit by bit: a not-a-number equals
// itself, and 0 and -0 differ.
template<class T> bool IsSame(const T& a, const T& b)
{
    if constexpr (std::is_same_v<T, double>)
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    else
        return a == b;
}

class CPaneNode
{
public:
    explicit CPaneNode(CChart2D* chart) : m_chart(chart) {}

protected:
    void Touch();
    void TouchData(); // a change of points alone
    // Sets a member and notifies the scene, unless the member has that value already.
    template<class T> void Assign(T& member, std::type_identity_t<T> value)
    {
        if (IsSame<T>(member, value))
            return;
        member = std::move(value);
        Touch();
    }
    CChart2D* m_chart;
};

} // namespace zantroq
