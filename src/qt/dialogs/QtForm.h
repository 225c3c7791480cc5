// Implements IForm with the widgets of a form, usually from a .ui file. The constructor finds them by their
// numbers (DialogControls.h); widgets must not be added or removed later. Chart window's thread.
#pragma once

#include "platform/Form.h"
#include "qt/dialogs/DialogControls.h"

#include <QObject>

namespace zantroq {

class CRowList;

class CQtForm : public QObject, public IForm
{
public:
    // `root` contains the controls; it may be the dialog itself.
    explicit CQtForm(QWidget& root);

    // Sends the user's actions to the rules from now on; the rules must outlive the form.
    void Bind(IFormEvents& events);

    QWidget& Root() { return m_root; }
    const QWidget& Root() const { return m_root; }
    const Controls& AllControls() const { return m_controls; }

    std::string Text(int id) const override;
    void SetText(int id, const std::string& text) override;
    void SetItems(int id, const std::vector<std::string>& items) override;
    int Index(int id) const override;
    void SetIndex(int id, int index) override;
    bool Checked(int id) const override;
    void SetChecked(int id, bool checked) override;
    ColorValue Color(int id) const override;
    void SetColor(int id, ColorValue color) override;
    void SetColumns(int id, const std::vector<sFormColumn>& columns) override;
    void SetRows(int id, std::vector<FormRow> rows) override;
    void InsertRow(int id, int before, FormRow row) override;
    int RowCount(int id) const override;
    const FormRow& Row(int id, int row) const override;
    std::vector<int> SelectedRows(int id) const override;
    void SelectRows(int id, const std::vector<int>& rows) override;
    bool Enabled(int id) const override;
    void SetEnabled(int id, bool enabled) override;
    bool Visible(int id) const override;
    void SetVisible(int id, bool visible) override;
    void SetRange(int id, int low, int high) override;
    void SetLineSample(int id, ColorValue color, int width) override;
    void Focus(int id) override;
    void SetTitle(const std::string& title) override;
    void SetSize(int width, int height) override;
    void SetWaiting(bool waiting) override;

private:
    const sControl& At(int id) const;
    template<class Widget> Widget& As(int id) const;
    void BindControl(int id, const sControl& control);
    void BindList(int id, CRowList& list);
    int NumberOf(const QWidget* widget) const;
    void Changed(int id);

    QWidget& m_root;
    const Controls m_controls;
    IFormEvents* m_events = nullptr;
    int m_quiet = 0; // above 0 while the rules set a control
};

} // namespace zantroq
