// Pictures of small panes, one for each drawing rule, compared with those in tests/golden.
#include "qt/GoldenPicture.h"
#include "qt/paint/PanePainter.h"
#include "support/PaneScenes.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

const QString Family = "DejaVu Sans";

void Compare(const std::string& name, const CChart2D& pane, int scale)
{
    QImage painted = PanePicture(pane, scale, Family);
    painted.setDevicePixelRatio(1);
    test::CompareWithGolden(painted, QString::fromStdString(name) + (scale == 1 ? ".png" : "@2x.png"));
}

TEST(PaneGolden, PanesLookAsKept)
{
    for (const auto& [name, pane] : test::GoldenPanes()) {
        Compare(name, *pane, 1);
        Compare(name, *pane, 2);
    }
}

} // namespace
} // namespace zantroq
