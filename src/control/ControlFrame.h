// The frame of a control, given by its properties Appearance and BorderStyle. Plain data.
#pragma once

namespace zantroq {

enum : int
{
    AppearanceFlat = 0,
    AppearanceSunken = 1,
    BorderNone = 0,
    BorderSingle = 1
};

struct sControlFrame
{
    static constexpr int SunkenWidth = 2, SingleWidth = 1; // pixels

    int Appearance = AppearanceFlat;
    int BorderStyle = BorderNone;

    static bool IsAppearance(int value) { return value == AppearanceFlat || value == AppearanceSunken; }
    static bool IsBorderStyle(int value) { return value == BorderNone || value == BorderSingle; }

    int EdgeWidth() const { return Appearance == AppearanceSunken ? SunkenWidth : 0; }
    int BorderWidth() const { return BorderStyle == BorderSingle ? SingleWidth : 0; }
    // Width of the frame on each side of the control, in pixels.
    int Width() const { return EdgeWidth() + BorderWidth(); }
};

} // namespace zantroq
