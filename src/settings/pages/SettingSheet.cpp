#include "settings/pages/SettingSheet.h"

namespace zantroq {
namespace {

constexpr int DataPage = 2;

} // namespace

CSettingSheet::CSettingSheet(ISheetFace& face, IMessageBox& box, std::function<void()> clear)
    : m_face(face),
      m_box(box),
      m_dataBox(*this, DataPage),
      m_colors(face.Form(0)),
      m_general(face.Form(1)),
      m_data(face.Form(DataPage), m_dataBox, std::move(clear)),
      m_upper(face.Form(3)),
      m_lower(face.Form(4)),
      m_pages{&m_colors, &m_general, &m_data, &m_upper, &m_lower}
{
}

BoxAnswer CSettingSheet::CPageBox::Ask(const std::string& text, const std::string& caption,
                                       BoxButtons buttons, BoxIcon icon)
{
    m_sheet.m_face.TurnTo(m_page);
    return m_sheet.m_box.Ask(text, caption, buttons, icon);
}

void CSettingSheet::Start(const sChartSettings& settings)
{
    for (ISettingPage* page : m_pages)
        page->Start(settings);
}

bool CSettingSheet::Accept()
{
    for (int page = 0; page < SheetPages; ++page) {
        const std::optional<sRefusal> refusal = Page(page).Accept();
        if (!refusal)
            continue;
        m_face.TurnTo(page);
        m_box.Ask(refusal->Text, refusal->Caption, BoxButtons::Ok, BoxIcon::Error);
        m_face.Form(page).Focus(refusal->Control);
        return false;
    }
    return true;
}

void CSettingSheet::CopyTo(sChartSettings& settings) const
{
    for (const ISettingPage* page : m_pages)
        page->CopyTo(settings);
}

} // namespace zantroq
