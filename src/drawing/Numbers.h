// An array of numbers that are all written before they are read. Not initialised, because zeroing a
// quarter of a million numbers takes measurable time. One owner, no lock.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace zantroq {

class CNumbers
{
public:
    CNumbers() = default;
    explicit CNumbers(std::size_t size) { Resize(size); }

    // Discards the values.
    void Resize(std::size_t size)
    {
        m_values = std::make_unique_for_overwrite<double[]>(size);
        m_size = size;
    }
    double* Data() { return m_values.get(); }
    std::span<double> Values() { return {m_values.get(), m_size}; }
    std::span<const double> Values() const { return {m_values.get(), m_size}; }

private:
    std::unique_ptr<double[]> m_values;
    std::size_t m_size = 0;
};

} // namespace zantroq
