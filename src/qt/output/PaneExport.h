// A pane on paper and in files. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"

#include <QString>

class QPainter;

namespace zantroq {

// The page of a print job, or any other painter, as a device for CChart2D::DrawToDevice. The painter is not
// owned. `family` is the font of the panes' texts; empty for the default.
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

// Writes a picture of the pane of the kind given by its ending: .png (with `devicePixelRatio`), .svg in
// pixels, .pdf or .json. The same pane gives the same bytes, and an existing file is replaced only when the
// new one is complete. Returns false and sets `error` to a sentence if the ending is unknown or the file
// cannot be written.
bool SavePanePicture(const CChart2D& pane, const QString& path, double devicePixelRatio, QString& error);

} // namespace zantroq
