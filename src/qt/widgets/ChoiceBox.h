// The type box and the interval box: a list of fixed texts. Reports only choices of the user, even of the
// current item. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QComboBox>

#include <functional>

namespace zantroq {

class CChoiceBox : public QComboBox, public IChoiceBox
{
public:
    CChoiceBox(QWidget* parent, const QStringList& items, const QString& name);

    std::function<void()> OnChosen;

    int Selection() const override { return currentIndex(); }
    void Select(int item) override { setCurrentIndex(item); }
    void SetEnabled(bool enabled) override { setEnabled(enabled); }
    bool Enabled() const override { return isEnabledTo(parentWidget()); }

protected:
    void wheelEvent(QWheelEvent* event) override;
};

QStringList DataTypeItems();
QStringList IntervalItems();

} // namespace zantroq
