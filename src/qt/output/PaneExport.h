// A pane onto paper and into files.
#pragma once

#include "scene/Chart2D.h"

#include <QString>

class QPainter;

namespace zantroq {

// The page of a print job, or any other painter, as CChart2D::DrawToDevice wants it. The painter is not
// owned. The family is the panes' text, empty for the usual one.
class CPrintPage : public IPrintDevice
{
public:
    explicit CPrintPage(QPainter& painter, const QString& family = {}) : m_painter(painter), m_family(family)
    {
    }
    bool PaintPane(const CChart2D& pane, int left, int top, int width, int height) override;

private:
    QPainter& m_painter;
    QString m_family;
};

// Writes a picture of the pane by the ending of the path: .png (at the ratio), .svg in pixels, .pdf or .json;
// the same pane gives the same bytes, and a file that is there is replaced whole. False, with a sentence in
// error, when the ending is another one or the file cannot be written.
bool SavePanePicture(const CChart2D& pane, const QString& path, double devicePixelRatio, QString& error);

} // namespace zantroq
