#include "qt/widgets/ChartBars.h"

#include "qt/widgets/BarFont.h"

#include <QPainter>

#include <algorithm>

namespace zantroq {
namespace {

constexpr int RowHeight = 29, RowGap = 3; // height of a row and the gap that each row adds
constexpr int BandGap = 6, BoxTop = 3, BoxHeight = 24;
constexpr int SymbolWidth = 180, LeastSymbolWidth = 120; // 120 dialog units
constexpr int SettingWidth = 250, LeastSettingWidth = 200;

} // namespace

CChartBars::CChartBars(QWidget* parent) : QWidget(parent)
{
    m_symbol = new CSymbolBox(this);
    m_commands = new CCommandBar(this);
    m_type = new CChoiceBox(this, DataTypeItems(), "Data type");
    m_interval = new CChoiceBox(this, IntervalItems(), "Interval");
    setAccessibleName("Tool bars");
}

int CChartBars::LayOut(int width)
{
    const int toolbar = CCommandBar::ToolbarWidth();
    const int leastOneRow = LeastSymbolWidth + toolbar + LeastSettingWidth + 4 * BandGap;
    const bool oneRow = width >= leastOneRow;
    const int rows = oneRow ? 1 : 2;
    const int inner = width - 2 * BandGap;
    int left = BandGap;
    if (oneRow) {
        const int forBoxes = inner - toolbar - 2 * BandGap;
        const int setting = std::clamp(forBoxes - SymbolWidth, LeastSettingWidth, SettingWidth);
        const int symbol = std::min(SymbolWidth, forBoxes - setting);
        m_symbol->setGeometry(left, BoxTop, symbol, BoxHeight);
        left += symbol + BandGap;
        m_commands->setGeometry(left, 0, toolbar, RowHeight);
        PlaceSettingBand(left + toolbar + BandGap, BoxTop, setting);
    } else {
        const int symbol = std::clamp((inner - BandGap) / 2, 40, SymbolWidth);
        m_symbol->setGeometry(left, BoxTop, symbol, BoxHeight);
        PlaceSettingBand(left + symbol + BandGap, BoxTop,
                         std::clamp(inner - symbol - BandGap, 40, SettingWidth));
        m_commands->setGeometry(left, RowHeight + RowGap, toolbar, RowHeight);
    }
    return rows * (RowHeight + RowGap);
}

void CChartBars::PlaceSettingBand(int left, int top, int width)
{
    const int half = (width - BandGap) / 2;
    m_type->setGeometry(left, top, half, BoxHeight);
    m_interval->setGeometry(left + width - half, top, half, BoxHeight);
}

void CChartBars::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.fillRect(0, height() - 1, width(), 1, BarLineColor(palette()));
}

} // namespace zantroq
