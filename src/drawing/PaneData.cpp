#include "drawing/PaneObjects.h"

#include <algorithm>
#include <numeric>

namespace zantroq {

void CPaneData::SetSeriesCount(int count)
{
    const auto n = static_cast<std::size_t>(std::max(count, 0));
    m_y.resize(n, std::vector<double>(m_x.size(), HoleValue()));
    m_firstPoint.resize(n, 1);
    m_drawnTo.resize(n, 0);
    Touch();
}

int CPaneData::PointCount(int series) const { return Has(series) ? static_cast<int>(m_x.size()) : 0; }

void CPaneData::SetPointCount(int series, int count)
{
    if (!Has(series))
        return;
    const auto n = static_cast<std::size_t>(std::max(count, 0));
    const std::size_t had = m_x.size();
    m_x.resize(n);
    if (n > had)
        std::iota(m_x.begin() + static_cast<std::ptrdiff_t>(had), m_x.end(), static_cast<double>(had + 1));
    for (auto& y : m_y)
        y.resize(n, HoleValue());
    Touch();
}

void CPaneData::SetFirstPoint(int series, int point)
{
    if (Has(series))
        m_firstPoint[static_cast<std::size_t>(series - 1)] = point;
}

int CPaneData::FirstPoint(int series) const { return Has(series) ? m_firstPoint[static_cast<std::size_t>(series - 1)] : 0; }

int CPaneData::DrawnTo(int series) const { return Has(series) ? m_drawnTo[static_cast<std::size_t>(series - 1)] : 0; }

void CPaneData::SetDrawnTo(int series, int point)
{
    if (!Has(series))
        return;
    m_drawnTo[static_cast<std::size_t>(series - 1)] = point;
    Touch();
}

bool CPaneData::AdvanceDrawn(int series, int count)
{
    if (!Has(series) || count < 0 || DrawnTo(series) + count > PointCount(series))
        return false;
    m_drawnTo[static_cast<std::size_t>(series - 1)] += count;
    Touch();
    return true;
}

double CPaneData::PointX(int series, int point) const { return Has(series, point) ? m_x[static_cast<std::size_t>(point - 1)] : 0.0; }

void CPaneData::SetPointX(int series, int point, double x)
{
    if (!Has(series, point))
        return;
    m_x[static_cast<std::size_t>(point - 1)] = x;
    Touch();
}

double CPaneData::PointY(int series, int point) const
{
    return Has(series, point) ? m_y[static_cast<std::size_t>(series - 1)][static_cast<std::size_t>(point - 1)] : HoleValue();
}

void CPaneData::SetPointY(int series, int point, double y)
{
    if (!Has(series, point))
        return;
    m_y[static_cast<std::size_t>(series - 1)][static_cast<std::size_t>(point - 1)] = y;
    Touch();
}

bool CPaneData::ShiftPoints(int series, int count, int firstSource)
{
    if (!Has(series) || count < 0 || firstSource < 1 || firstSource - 1 + count > PointCount(series))
        return false;
    auto& y = m_y[static_cast<std::size_t>(series - 1)];
    std::copy_n(y.begin() + (firstSource - 1), count, y.begin());
    if (series == 1)
        std::copy_n(m_x.begin() + (firstSource - 1), count, m_x.begin());
    Touch();
    return true;
}

bool CPaneData::SetXVector(int series, std::span<const double> x)
{
    if (!Has(series) || x.size() < m_x.size())
        return false;
    std::copy_n(x.begin(), m_x.size(), m_x.begin());
    Touch();
    return true;
}

bool CPaneData::SetXVector(int series, std::span<const int> x)
{
    if (!Has(series) || x.size() < m_x.size())
        return false;
    std::copy_n(x.begin(), m_x.size(), m_x.begin());
    Touch();
    return true;
}

bool CPaneData::SetYVector(int series, std::span<const double> y)
{
    if (!Has(series) || y.size() < m_x.size())
        return false;
    std::copy_n(y.begin(), m_x.size(), m_y[static_cast<std::size_t>(series - 1)].begin());
    Touch();
    return true;
}

bool CPaneData::GetXVector(int series, std::vector<double>& x) const
{
    if (!Has(series))
        return false;
    x = m_x;
    return true;
}

std::span<const double> CPaneData::Y(int series) const
{
    if (!Has(series))
        return {};
    return m_y[static_cast<std::size_t>(series - 1)];
}

} // namespace zantroq
