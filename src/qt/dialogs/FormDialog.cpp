#include "qt/dialogs/FormDialog.h"

#include <QAbstractButton>

namespace zantroq {

CFormDialog::CFormDialog(QWidget& over) : QDialog(over.window())
{
    connect(this, &QDialog::finished, this, [this](int result) {
        m_open = false;
        deleteLater();
        OnClosed(result == QDialog::Accepted ? DialogEnd::Ok : DialogEnd::Cancel);
    });
}

void CFormDialog::Open()
{
    m_open = true;
    if (parentWidget()->isVisible())
        return open();
    // Where the chart is drawn without a window nobody sees the dialog, but it has its size all the same.
    ensurePolished();
    if (!testAttribute(Qt::WA_Resized)) // with no size set by its rules
        adjustSize();
}

void CFormDialog::End(DialogEnd end)
{
    done(end == DialogEnd::Ok ? QDialog::Accepted : QDialog::Rejected);
}

QAbstractButton* CFormDialog::Button(int id)
{
    const Controls& controls = FormOnShow().AllControls();
    const auto found = controls.find(id);
    return found == controls.end() ? nullptr : qobject_cast<QAbstractButton*>(found->second.Widget);
}

QAbstractButton* CFormDialog::OkButton()
{
    return Button(1);
}

QAbstractButton* CFormDialog::CancelButton()
{
    return Button(2);
}

} // namespace zantroq
