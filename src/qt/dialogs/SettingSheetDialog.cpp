#include "qt/dialogs/SettingSheetDialog.h"

#include "qt/dialogs/ButtonForColor.h"
#include "qt/dialogs/CandlePreview.h"
#include "qt/dialogs/PageScroll.h"
#include "settings/SettingsWriter.h"
#include "ui_ColorsPage.h"
#include "ui_DataPage.h"
#include "ui_GeneralPage.h"
#include "ui_LowerStudiesPage.h"
#include "ui_UpperStudiesPage.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace zantroq {
namespace {

// The last visible page in this run of the program, for all charts.
int LastPage = 0;

} // namespace

CSettingSheetDialog::CSettingSheetDialog(QWidget& over, const sSheetSubject& subject)
    : CFormDialog(over),
      m_subject(subject),
      m_tabs(new QTabWidget(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(CSettingSheet::Title);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_buttons);
    for (QAbstractButton* button : m_buttons->buttons())
        button->setIcon(QIcon());                              // texts without icons, as in message boxes
    m_buttons->button(QDialogButtonBox::Ok)->setDefault(true); // not the first button of a page
    MakePages();
    m_sheet = std::make_unique<CSettingSheet>(static_cast<ISheetFace&>(*this), m_subject.Box,
                                              [this] { ClearRequestSettings(m_subject.Key); });
    m_sheet->Start(m_subject.Settings);
    for (int page = 0; page < SheetPages; ++page) {
        m_tabs->setTabText(page, m_sheet->Page(page).Title());
        m_forms[static_cast<std::size_t>(page)]->Bind(m_sheet->Page(page));
    }
    FollowColors(*findChild<CCandlePreview*>());
    m_tabs->setCurrentIndex(LastPage);
    connect(m_tabs, &QTabWidget::currentChanged, this, [](int page) { LastPage = page; });
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] {
        if (m_sheet->Accept())
            End(DialogEnd::Ok);
    });
    connect(m_buttons, &QDialogButtonBox::rejected, this, [this] { End(DialogEnd::Cancel); });
    FitScreen();
}

CSettingSheetDialog::~CSettingSheetDialog() = default;

QWidget& CSettingSheetDialog::AddPage()
{
    auto* const page = new QWidget;
    m_tabs->addTab(new CPageScroll(page), "");
    return *page;
}

void CSettingSheetDialog::FitScreen()
{
    QSize room = screen()->availableGeometry().size();
    room.rheight() -= style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize(sizeHint().boundedTo(room));
}

void CSettingSheetDialog::MakePages()
{
    const std::array<QWidget*, SheetPages> pages{&AddPage(), &AddPage(), &AddPage(), &AddPage(), &AddPage()};
    Ui::ColorsPage().setupUi(pages[0]);
    Ui::GeneralPage().setupUi(pages[1]);
    Ui::DataPage().setupUi(pages[2]);
    Ui::UpperStudiesPage().setupUi(pages[3]);
    Ui::LowerStudiesPage().setupUi(pages[4]);
    for (std::size_t page = 0; page < pages.size(); ++page)
        m_forms[page] = std::make_unique<CQtForm>(*pages[page]);
}

void CSettingSheetDialog::FollowColors(CCandlePreview& preview)
{
    const Controls& controls = m_forms[0]->AllControls();
    const auto show = [&preview, &controls] {
        const auto color = [&controls](int id) {
            return qobject_cast<CButtonForColor*>(controls.at(id).Widget)->Color();
        };
        preview.SetColors({color(CColorPage::Background), color(CColorPage::Grid),
                           color(CColorPage::PriceLabel), color(CColorPage::PriceData),
                           color(CColorPage::UpCandle), color(CColorPage::DownCandle),
                           color(CColorPage::PriceBar)});
    };
    for (const auto& [id, control] : controls)
        if (auto* const button = qobject_cast<CButtonForColor*>(control.Widget))
            connect(button, &CButtonForColor::ColorChosen, this, show);
    show();
}

sSettingsEdit CSettingSheetDialog::Edit() const
{
    sSettingsEdit edit{m_subject.Settings, m_sheet->ResetScaleNow(), m_sheet->SavesRequestSettings()};
    m_sheet->CopyTo(edit.Settings);
    return edit;
}

IForm& CSettingSheetDialog::Form(int page)
{
    return *m_forms.at(static_cast<std::size_t>(page));
}

CQtForm& CSettingSheetDialog::FormOnShow()
{
    return *m_forms.at(static_cast<std::size_t>(m_tabs->currentIndex()));
}

QStringList CSettingSheetDialog::PageTitles() const
{
    QStringList titles;
    for (int page = 0; page < SheetPages; ++page)
        titles.append(m_tabs->tabText(page));
    return titles;
}

int CSettingSheetDialog::PageOnShow() const
{
    return m_tabs->currentIndex();
}

void CSettingSheetDialog::TurnTo(int page)
{
    m_tabs->setCurrentIndex(page);
}

QAbstractButton* CSettingSheetDialog::OkButton()
{
    return m_buttons->button(QDialogButtonBox::Ok);
}

QAbstractButton* CSettingSheetDialog::CancelButton()
{
    return m_buttons->button(QDialogButtonBox::Cancel);
}

} // namespace zantroq
