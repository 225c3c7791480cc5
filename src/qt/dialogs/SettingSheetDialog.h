// The window of the settings sheet: five pages from .ui files, with the rules of settings/pages. Chart
// window's thread.
#pragma once

#include "qt/dialogs/FormDialog.h"
#include "settings/pages/SettingSheet.h"
#include "window/WindowDialogs.h"

#include <array>
#include <memory>

class QDialogButtonBox;
class QTabWidget;

namespace zantroq {

class CCandlePreview;

class CSettingSheetDialog : public CFormDialog, private ISheetFace
{
public:
    CSettingSheetDialog(QWidget& over, const sSheetSubject& subject);
    ~CSettingSheetDialog() override;

    // After OK: the chart's settings with the changes of the pages.
    sSettingsEdit Edit() const;

    CQtForm& FormOnShow() override;
    QStringList PageTitles() const override;
    int PageOnShow() const override;
    void TurnTo(int page) override;
    QAbstractButton* OkButton() override;
    QAbstractButton* CancelButton() override;

private:
    IForm& Form(int page) override;
    QWidget& AddPage();
    void MakePages();
    // As large as its pages ask for, and no larger than the screen: pages that do not fit scroll.
    void FitScreen();
    void FollowColors(CCandlePreview& preview);

    const sSheetSubject m_subject;
    QTabWidget* m_tabs;
    QDialogButtonBox* m_buttons;
    std::array<std::unique_ptr<CQtForm>, SheetPages> m_forms;
    std::unique_ptr<CSettingSheet> m_sheet;
};

} // namespace zantroq
