#include "qt/widgets/ChoiceBox.h"

#include "qt/widgets/BarFont.h"

#include <QWheelEvent>

namespace zantroq {

CChoiceBox::CChoiceBox(QWidget* parent, const QStringList& items, const QString& name) : QComboBox(parent)
{
    setFont(BarFont());
    addItems(items);
    setCurrentIndex(-1);
    setAccessibleName(name);
    setToolTip(name);
    setMaxVisibleItems(static_cast<int>(items.size()));
    connect(this, &QComboBox::activated, this, [this](int) { OnChosen(); });
}

// Each notch of the wheel would start a request.
void CChoiceBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

QStringList DataTypeItems()
{
    return {"Tick", "Minute", "Daily", "Weekly", "Monthly"};
}

QStringList IntervalItems()
{
    return {"1-Minute",  "2-Minute",  "3-Minute",  "4-Minute", "5-Minute", "10-Minute",
            "15-Minute", "30-Minute", "45-Minute", "1-Hour",   "2-Hour"};
}

} // namespace zantroq
