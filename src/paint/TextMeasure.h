// What placing and rasterising text needs to know of a font. The face implements both over its fonts; tests
// use a font of fixed widths.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zantroq {

// Sizes of one line of text in device pixels.
class ITextMeasure
{
public:
    virtual ~ITextMeasure() = default;
    // Width of the line box. Not const: an implementation may cache.
    virtual int Advance(std::string_view text) = 0;
    // From the top of the line box to the base line.
    virtual int Ascent() const = 0;
    // Height of the line box, descents included.
    virtual int LineHeight() const = 0;
};

// The coverage of one line of text. (Left, Top) is the mask's corner relative to the top left corner of the
// line box.
struct sTextMask
{
    int Advance = 0; // width of the line box in device pixels
    int Left = 0, Top = 0, Width = 0, Height = 0;
    std::vector<std::uint8_t> Coverage; // row by row, 0 to 255
};

class ITextMasks : public ITextMeasure
{
public:
    // Valid until the next call.
    virtual const sTextMask& Mask(std::string_view text) = 0;
};

} // namespace zantroq
