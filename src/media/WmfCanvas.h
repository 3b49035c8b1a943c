// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/DibImage.h"
#include "media/WmfFile.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// Colours are 0xFFRRGGBB. All places and lengths below are in pixels of the canvas, y downwards.

struct WmfPoint {
    double X = 0;
    double Y = 0;
};
using WmfPoints = std::vector<WmfPoint>;

enum class WmfLine { Solid, Dash, Dot, DashDot, DashDotDot, None };
enum class WmfCap { Round, Square, Flat };
enum class WmfJoin { Round, Bevel, Miter };

struct WmfPen {
    WmfLine Line = WmfLine::Solid;
    double Width = 0; // in units of the drawing; the thinnest line that can be seen when less
    std::uint32_t Colour = 0xFF000000U;
    WmfCap Cap = WmfCap::Round;
    WmfJoin Join = WmfJoin::Round;
};

enum class WmfFill { Solid, None, Hatch, Pattern };
enum class WmfHatch {
    Horizontal,
    Vertical,
    ForwardDiagonal,
    BackwardDiagonal,
    Cross,
    DiagonalCross
};

struct WmfBrush {
    WmfFill Fill = WmfFill::Solid;
    std::uint32_t Colour = 0xFFFFFFFFU;
    WmfHatch Hatch = WmfHatch::Horizontal;
    // Shared, for a pattern is in use as long as it is selected anywhere, also when the brush has
    // been deleted, and may be too large for a copy with every context that is saved.
    std::shared_ptr<const DibImage> Pattern;
};

struct WmfFont {
    double Height = 0; // in units of the drawing; less than 0: of the letters without their leading
    int Angle = 0;     // tenths of a degree, against the clock
    int Weight = 400;
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    int Charset = 0;
    std::string Face; // in the bytes of the file
};

// How what is drawn is put together with what is there, as the 16 functions of two bits: bit
// 2 * drawn + there of the number is the outcome.
enum class WmfMix : std::uint8_t {
    Clear = 0,
    Invert = 5,
    Xor = 6,
    And = 8,
    Keep = 10,
    Copy = 12,
    Or = 14,
    Set = 15
};

// Where drawing leaves traces.
struct WmfClip {
    std::optional<WmfBox> Within;
    std::vector<WmfBox> Without;

    bool operator==(const WmfClip&) const = default;
};

enum class WmfRule { Alternate, Winding };
enum class WmfGround { Transparent, Opaque };
enum class WmfAcross { Left, Centre, Right };
enum class WmfDown { Top, Baseline, Bottom };

// What drawing is done with.
struct WmfContext {
    WmfPen Pen;
    WmfBrush Brush;
    WmfFont Font;
    std::uint32_t TextColour = 0xFF000000U;
    std::uint32_t GroundColour = 0xFFFFFFFFU; // behind letters and in the gaps of a hatch
    WmfGround Ground = WmfGround::Opaque;
    WmfMix Mix = WmfMix::Copy;
    WmfRule Rule = WmfRule::Alternate;
    WmfAcross Across = WmfAcross::Left;
    WmfDown Down = WmfDown::Top;
    WmfClip Clip;
    double Scale = 1; // pixels in a unit of the drawing
};

struct WmfText {
    std::string_view Bytes; // in the charset of the font
    WmfPoint At;
    std::vector<double> Steps;   // from each letter to the next; empty: as the font has it
    std::optional<WmfBox> Box;   // to be filled with the ground's colour
    std::optional<WmfBox> Frame; // outside of which no letter is seen
};

// Paper and hand of whoever plays a metafile.
class WmfCanvas {
public:
    virtual ~WmfCanvas() = default;

    // Asked before every order: whether there is still time.
    [[nodiscard]] virtual bool GoesOn() = 0;

    // Areas that belong together: filled by the brush, with the pen along their edges.
    virtual void Areas(const std::vector<WmfPoints>& areas, const WmfContext& context) = 0;
    virtual void Line(const WmfPoints& points, const WmfContext& context) = 0;
    // A box filled by the brush.
    virtual void Fill(const WmfBox& box, WmfMix mix, const WmfContext& context) = 0;
    // A part of an image, in its pixels, drawn into a box, mirrored when the box is the wrong way
    // round.
    virtual void Image(const DibImage& image, const WmfBox& part, const WmfBox& box, WmfMix mix,
                       const WmfContext& context) = 0;
    // Returns how far the text reaches.
    virtual double Text(const WmfText& text, const WmfContext& context) = 0;
};

} // namespace kestrova
