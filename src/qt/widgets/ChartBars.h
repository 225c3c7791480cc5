// The bar above the panes, in three bands: the symbol box, the toolbar, and the type and interval boxes. They
// are in one row if the width allows it, otherwise in two. Chart window's thread.
#pragma once

#include "qt/widgets/ChoiceBox.h"
#include "qt/widgets/CommandBar.h"
#include "qt/widgets/SymbolBox.h"

#include <QWidget>

namespace zantroq {

class CChartBars : public QWidget
{
public:
    explicit CChartBars(QWidget* parent);

    CSymbolBox& Symbol() { return *m_symbol; }
    CCommandBar& Commands() { return *m_commands; }
    CChoiceBox& Type() { return *m_type; }
    CChoiceBox& Interval() { return *m_interval; }

    // Places the bands in a bar of this width and returns its height.
    int LayOut(int width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PlaceSettingBand(int left, int top, int width);

    CSymbolBox* m_symbol;
    CCommandBar* m_commands;
    CChoiceBox* m_type;
    CChoiceBox* m_interval;
};

} // namespace zantroq
