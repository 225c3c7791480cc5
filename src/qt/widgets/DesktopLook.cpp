#include "qt/widgets/DesktopLook.h"

namespace zantroq {

QPalette DarkPalette()
{
    const QColor text(0xe4, 0xe6, 0xe9), resting(0x7f, 0x86, 0x8f);
    // Frames and shades of widgets are derived from these two colors.
    QPalette palette(QColor(0x3a, 0x3f, 0x46), QColor(0x2a, 0x2d, 0x32));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, resting);
    }
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, resting);
    palette.setColor(QPalette::Base, QColor(0x1e, 0x21, 0x25));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x28, 0x2d));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3f, 0x46));
    palette.setColor(QPalette::Link, QColor(0x5a, 0xa9, 0xf0));
    palette.setColor(QPalette::LinkVisited, QColor(0xb7, 0x9c, 0xf0));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x7f, 0xd6));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4a, 0x50, 0x58));
    return palette;
}

} // namespace zantroq
