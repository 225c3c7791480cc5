#include "qt/dialogs/FormDialogDriver.h"

#include "qt/dialogs/RowList.h"

#include <QAbstractButton>

namespace zantroq {
namespace {

std::string Named(int id)
{
    return "control " + std::to_string(id);
}

std::string Click(QAbstractButton* button, const char* name)
{
    if (button == nullptr)
        return "the dialog has no button " + std::string(name);
    if (!button->isEnabled())
        return "the button " + std::string(name) + " is disabled";
    button->click();
    return "";
}

} // namespace

sDialogState CFormDialogDriver::Describe() const
{
    sDialogState state;
    state.Title = m_dialog.windowTitle().toStdString();
    const QStringList pages = m_dialog.PageTitles();
    for (const QString& page : pages)
        state.Pages.push_back(page.toStdString());
    if (!pages.isEmpty())
        state.Page = pages.at(m_dialog.PageOnShow()).toStdString();
    state.Width = m_dialog.width();
    state.Height = m_dialog.height();
    const CQtForm& form = m_dialog.FormOnShow();
    for (const auto& [id, control] : form.AllControls())
        state.Controls[id] = DescribeControl(control, form.Root());
    return state;
}

std::string CFormDialogDriver::TurnToPage(const std::string& title)
{
    const QStringList pages = m_dialog.PageTitles();
    const auto page = pages.indexOf(QString::fromStdString(title));
    if (page >= 0) {
        m_dialog.TurnTo(static_cast<int>(page));
        return "";
    }
    return pages.isEmpty()
               ? "the dialog \"" + m_dialog.windowTitle().toStdString() + "\" has no pages"
               : "there is no page \"" + title + "\"; the pages are " + pages.join(", ").toStdString();
}

const sControl* CFormDialogDriver::Usable(int id, std::string& why)
{
    CQtForm& form = m_dialog.FormOnShow();
    const auto found = form.AllControls().find(id);
    if (found == form.AllControls().end())
        why = Named(id) + " is not on the page or dialog on show";
    else if (!found->second.Widget->isVisibleTo(&form.Root()))
        why = Named(id) + " is hidden";
    else if (!found->second.Widget->isEnabled())
        why = Named(id) + " is disabled";
    return why.empty() ? &found->second : nullptr;
}

std::string CFormDialogDriver::Set(int id, const std::string& value)
{
    std::string why;
    const sControl* const control = Usable(id, why);
    if (control == nullptr)
        return why;
    why = SetControl(*control, value);
    return why.empty() ? "" : Named(id) + " " + why;
}

std::string CFormDialogDriver::Press(int id)
{
    std::string why;
    const sControl* const control = Usable(id, why);
    if (control == nullptr)
        return why;
    // A color button would open the desktop's dialog, which a script cannot use.
    if (control->Kind != ControlKind::Button)
        return Named(id) + " is not a button; give it a value with dialog set";
    qobject_cast<QAbstractButton*>(control->Widget)->click();
    return "";
}

std::string CFormDialogDriver::DoubleClick(int id, int row)
{
    std::string why;
    const sControl* const control = Usable(id, why);
    if (control == nullptr)
        return why;
    if (control->Kind != ControlKind::List)
        return Named(id) + " is not a list";
    auto& list = *qobject_cast<CRowList*>(control->Widget);
    const int count = list.Model().rowCount();
    if (row < 0 || row >= count)
        return Named(id) + " has " + std::to_string(count) + " rows, from 0; there is no row " +
               std::to_string(row);
    list.SelectRows({row});
    emit list.RowPressed();
    emit list.doubleClicked(list.Model().index(row, 0));
    return "";
}

std::string CFormDialogDriver::Ok()
{
    return Click(m_dialog.OkButton(), "OK");
}

std::string CFormDialogDriver::Cancel()
{
    return Click(m_dialog.CancelButton(), "Cancel");
}

} // namespace zantroq
