#include "qt/widgets/ChartScrollBar.h"

#include <QSignalBlocker>

#include <algorithm>

namespace zantroq {

CChartScrollBar::CChartScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent)
{
    setTracking(false); // the value changes when the thumb is released
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName("Time scroll bar");
    hide();
    connect(this, &QScrollBar::actionTriggered, this, &CChartScrollBar::OnAction);
    connect(this, &QScrollBar::sliderMoved, this,
            [this](int position) { OnScroll(ScrollCode::ThumbTrack, position); });
    connect(this, &QScrollBar::sliderReleased, this, &CChartScrollBar::OnReleased);
}

void CChartScrollBar::SetRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    SetPosition(m_position);
}

void CChartScrollBar::SetPage(int page)
{
    m_page = page;
    SetPosition(m_position);
}

void CChartScrollBar::SetPosition(int position)
{
    m_position = std::clamp(position, 0, std::max(0, Limit()));
    Show();
}

void CChartScrollBar::Show()
{
    const QSignalBlocker quiet(this);
    const int held = sliderPosition();
    QScrollBar::setRange(0, std::max(0, Limit()));
    setPageStep(std::max(1, m_page));
    setValue(m_position);
    // A dragged thumb keeps its position even if the view follows new points.
    setSliderPosition(isSliderDown() ? held : m_position);
}

void CChartScrollBar::SetVisible(bool visible)
{
    m_visible = visible;
    QScrollBar::setVisible(visible);
}

void CChartScrollBar::OnAction(int action)
{
    setSliderPosition(m_position); // the window decides the new position
    switch (action) {
    case SliderSingleStepAdd:
        OnScroll(ScrollCode::LineRight, 0);
        break;
    case SliderSingleStepSub:
        OnScroll(ScrollCode::LineLeft, 0);
        break;
    case SliderPageStepAdd:
        OnScroll(ScrollCode::PageRight, 0);
        break;
    case SliderPageStepSub:
        OnScroll(ScrollCode::PageLeft, 0);
        break;
    case SliderToMinimum:
        OnScroll(ScrollCode::LeftEnd, 0);
        break;
    case SliderToMaximum:
        OnScroll(ScrollCode::RightEnd, 0);
        break;
    default:
        break;
    }
}

void CChartScrollBar::OnReleased()
{
    OnScroll(ScrollCode::ThumbPosition, sliderPosition());
    OnScroll(ScrollCode::EndScroll, 0);
}

} // namespace zantroq
