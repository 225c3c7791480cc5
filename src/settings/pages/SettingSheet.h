// The settings sheet without widgets: five pages in order, an OK that closes the sheet only if every page
// accepts, and the results. Chart window's thread.
#pragma once

#include "settings/pages/ColorPage.h"
#include "settings/pages/DataSettingPage.h"
#include "settings/pages/GeneralPage.h"
#include "settings/pages/LowerStudiesSettingPage.h"
#include "settings/pages/UpperStudiesSettingPage.h"

#include <functional>

namespace zantroq {

inline constexpr int SheetPages = 5;

// The forms of the pages, in order, and the sheet's window functions.
class ISheetFace
{
public:
    virtual ~ISheetFace() = default;
    virtual IForm& Form(int page) = 0; // 0 to 4
    virtual void TurnTo(int page) = 0;
};

class CSettingSheet
{
public:
    static constexpr const char* Title = "Settings";

    // `face` and `box` must outlive the sheet. `clear` deletes the stored request settings.
    CSettingSheet(ISheetFace& face, IMessageBox& box, std::function<void()> clear);
    CSettingSheet(const CSettingSheet&) = delete;
    CSettingSheet& operator=(const CSettingSheet&) = delete;

    // Copies the chart's settings into the pages.
    void Start(const sChartSettings& settings);
    ISettingPage& Page(int page) { return *m_pages.at(static_cast<std::size_t>(page)); }

    // Handles OK. Returns false if a page refused: its message has been shown, and the page is visible with
    // the keyboard focus in the field that the message refers to.
    bool Accept();

    // Copies the settings of the pages of an accepted sheet into the record.
    void CopyTo(sChartSettings& settings) const;
    bool ResetScaleNow() const { return m_general.ResetScaleNow(); }
    bool SavesRequestSettings() const { return m_data.SavesAsDefault(); }

private:
    // Shows the data page before a message of that page.
    class CPageBox : public IMessageBox
    {
    public:
        CPageBox(CSettingSheet& sheet, int page) : m_sheet(sheet), m_page(page) {}
        BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                      BoxIcon icon) override;

    private:
        CSettingSheet& m_sheet;
        int m_page;
    };

    ISheetFace& m_face;
    IMessageBox& m_box;
    CPageBox m_dataBox;
    CColorPage m_colors;
    CSettingPage m_general;
    CDataSettingPage m_data;
    CUpperStudiesSettingPage m_upper;
    CLowerStudiesSettingPage m_lower;
    std::array<ISettingPage*, SheetPages> m_pages;
};

} // namespace zantroq
