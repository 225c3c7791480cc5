// The texts in a pane. Plain values that notify their scene of every change. Chart window's thread.
#pragma once

#include "scene/PaneLooks.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zantroq {

enum AnchorSide : int
{
    AnchorAboveRight = 0x11,
    AnchorAboveLeft = 0x12,
    AnchorBelowRight = 0x21,
    AnchorBelowLeft = 0x22
};
enum AttachmentMethod : int
{
    AttachToPixel = 0,
    AttachToPaneTopLeft = 1,
    AttachToData = 2
};

// A text in the pane.
class CPaneLabel : public CPaneNode
{
public:
    explicit CPaneLabel(CChart2D* chart) : CPaneNode(chart), m_interior(chart, *this) {}
    void SetBoxAttachment(int kind) { m_boxAttachment = kind; }
    void SetBoxEdge(int kind) { m_boxEdge = kind; }
    int BoxAttachment() const { return m_boxAttachment; }
    int BoxEdge() const { return m_boxEdge; }
    CPaneInterior& Interior() { return m_interior; }
    const CPaneInterior& Interior() const { return m_interior; }
    void SetText(std::string text) { AssignOwn(m_text, std::move(text)); } // lines separated by newline
    const std::string& Text() const { return m_text; }
    void SetPixelAnchor(int x, int y)
    {
        AssignOwn(m_pixelX, x);
        AssignOwn(m_pixelY, y);
    }
    int PixelX() const { return m_pixelX; }
    int PixelY() const { return m_pixelY; }
    void SetDataAnchor(double x, double y)
    {
        AssignOwn(m_dataX, x);
        AssignOwn(m_dataY, y);
    }
    double DataX() const { return m_dataX; }
    double DataY() const { return m_dataY; }
    void SetShown(bool shown) { AssignOwn(m_shown, shown); }
    bool Shown() const { return m_shown; }
    void SetRepaintSuspended(bool suspended);
    bool RepaintSuspended() const { return m_suspended; }
    void SetAttachment(int method) { AssignOwn(m_attachment, method); }
    int Attachment() const { return m_attachment; }
    void SetAnchorSide(int side) { AssignOwn(m_anchorSide, side); }
    int Side() const { return m_anchorSide; }
    void SetBorder(int kind) { AssignOwn(m_border, kind); } // 1: a 1-pixel border
    int Border() const { return m_border; }

private:
    class CLabelInterior : public CPaneInterior // a change of its colors counts as one of the label
    {
    public:
        CLabelInterior(CChart2D* chart, CPaneLabel& label) : CPaneInterior(chart), m_label(label) {}

    private:
        void Changed() override { m_label.TouchOwn(); }
        CPaneLabel& m_label;
    };

    CLabelInterior m_interior;
    std::string m_text;
    // While repainting is suspended, changes notify the scene only once, when the suspension ends.
    template<class T> void AssignOwn(T& member, std::type_identity_t<T> value)
    {
        if (IsSame<T>(member, value))
            return;
        member = std::move(value);
        TouchOwn();
    }
    void TouchOwn();

    bool m_suspended = false, m_waiting = false;
    int m_boxAttachment = 0, m_boxEdge = 4, m_pixelX = 0, m_pixelY = 0, m_attachment = AttachToPixel,
        m_anchorSide = AnchorBelowRight, m_border = 0;
    double m_dataX = 0, m_dataY = 0;
    bool m_shown = false;
};

class CPaneLabels : public CPaneNode
{
public:
    using CPaneNode::CPaneNode;
    int Count() const { return static_cast<int>(m_labels.size()); }
    CPaneLabel& Item(int number); // from 1; std::invalid_argument otherwise
    const CPaneLabel& Item(int number) const;
    CPaneLabel& Add();
    void Remove(int number); // later labels move down by one; std::invalid_argument out of range
    void RemoveAll();

private:
    std::vector<std::unique_ptr<CPaneLabel>> m_labels;
};

} // namespace zantroq
