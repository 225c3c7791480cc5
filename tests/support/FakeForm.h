// A form without a window: controls as plain values, and the actions of a user. A control is created when it
// is first named: enabled, visible and empty. AddRadioGroup defines the group of radio buttons.
#pragma once

#include "platform/Form.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace zantroq::test {

struct sFakeControl
{
    std::string Text;
    std::vector<std::string> Items;
    int Index = -1;
    bool Checked = false, Enabled = true, Visible = true;
    ColorValue Color = 0;
    std::vector<sFormColumn> Columns;
    std::vector<FormRow> Rows;
    std::vector<int> Selected;
    int Low = 0, High = 0; // of a spin
    ColorValue SampleColor = 0;
    int SampleWidth = 0; // of a line sample
};

class CFakeForm : public IForm
{
public:
    void AddRadioGroup(std::vector<int> ids) { m_groups.push_back(std::move(ids)); }
    void Bind(IFormEvents& events) { m_events = &events; }
    sFakeControl& operator[](int id) { return m_controls[id]; }

    // Actions of a user. Each must be possible: the control must be enabled and visible.
    bool CanUse(int id) { return m_controls[id].Enabled && m_controls[id].Visible; }
    void Type(int id, const std::string& text) { m_controls[id].Text = text, m_events->OnChanged(id); }
    void Choose(int id, int index) { m_controls[id].Index = index, m_events->OnChanged(id); }
    void Check(int id, bool checked = true) { SetChecked(id, checked), m_events->OnChanged(id); }
    void ChooseColor(int id, ColorValue color) { m_controls[id].Color = color, m_events->OnChanged(id); }
    void Press(int id) { m_events->OnPressed(id); }
    void Select(int id, std::vector<int> rows)
    {
        m_controls[id].Selected = std::move(rows);
        m_events->OnSelectionChanged(id);
    }
    void DoubleClick(int id, int row) { Select(id, {row}), m_events->OnDoubleClicked(id, row); }
    void Drop(int from, int row, int to, int before) { m_events->OnDropped(from, row, to, before); }

    std::string Text(int id) const override
    {
        const sFakeControl& control = At(id);
        const bool chosen = control.Index >= 0 && control.Index < static_cast<int>(control.Items.size());
        return chosen ? control.Items[static_cast<std::size_t>(control.Index)] : control.Text;
    }
    void SetText(int id, const std::string& text) override { m_controls[id].Text = text; }
    void SetItems(int id, const std::vector<std::string>& items) override
    {
        m_controls[id].Items = items;
        m_controls[id].Index = -1;
    }
    int Index(int id) const override { return At(id).Index; }
    void SetIndex(int id, int index) override { m_controls[id].Index = index; }
    bool Checked(int id) const override { return At(id).Checked; }
    void SetChecked(int id, bool checked) override
    {
        for (const std::vector<int>& group : m_groups)
            if (checked && std::ranges::find(group, id) != group.end())
                for (const int other : group)
                    m_controls[other].Checked = false;
        m_controls[id].Checked = checked;
    }
    ColorValue Color(int id) const override { return At(id).Color; }
    void SetColor(int id, ColorValue color) override { m_controls[id].Color = color; }
    void SetColumns(int id, const std::vector<sFormColumn>& columns) override
    {
        m_controls[id].Columns = columns;
    }
    void SetRows(int id, std::vector<FormRow> rows) override
    {
        m_controls[id].Rows = std::move(rows);
        m_controls[id].Selected.clear();
    }
    void InsertRow(int id, int before, FormRow row) override
    {
        sFakeControl& list = m_controls[id];
        list.Rows.insert(list.Rows.begin() + before, std::move(row));
        for (int& selected : list.Selected)
            selected += selected >= before ? 1 : 0;
    }
    int RowCount(int id) const override { return static_cast<int>(At(id).Rows.size()); }
    const FormRow& Row(int id, int row) const override
    {
        return At(id).Rows.at(static_cast<std::size_t>(row));
    }
    std::vector<int> SelectedRows(int id) const override { return At(id).Selected; }
    void SelectRows(int id, const std::vector<int>& rows) override { m_controls[id].Selected = rows; }
    bool Enabled(int id) const override { return At(id).Enabled; }
    void SetEnabled(int id, bool enabled) override { m_controls[id].Enabled = enabled; }
    bool Visible(int id) const override { return At(id).Visible; }
    void SetVisible(int id, bool visible) override { m_controls[id].Visible = visible; }
    void SetRange(int id, int low, int high) override
    {
        m_controls[id].Low = low, m_controls[id].High = high;
    }
    void SetLineSample(int id, ColorValue color, int width) override
    {
        m_controls[id].SampleColor = color;
        m_controls[id].SampleWidth = width;
    }
    void Focus(int id) override { Focused = id; }
    void SetTitle(const std::string& title) override { Title = title; }
    void SetSize(int width, int height) override { Width = width, Height = height; }
    void SetWaiting(bool waiting) override { Waiting = waiting; }

    int Focused = 0, Width = 0, Height = 0;
    std::string Title;
    bool Waiting = false;

private:
    const sFakeControl& At(int id) const { return m_controls[id]; }

    mutable std::map<int, sFakeControl> m_controls;
    std::vector<std::vector<int>> m_groups;
    IFormEvents* m_events = nullptr;
};

} // namespace zantroq::test
