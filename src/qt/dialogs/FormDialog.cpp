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
    // If the chart is drawn without a window, the dialog is not visible but needs its size.
    ensurePolished();
    if (!testAttribute(Qt::WA_Resized)) // its rules have set no size
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
