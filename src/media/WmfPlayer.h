// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ByteFields.h"
#include "media/WmfPicture.h"

#include <cstddef>
#include <variant>
#include <vector>

namespace kestrova {

inline constexpr unsigned kSetWindowOrg = 0x020B;
inline constexpr unsigned kSetWindowExt = 0x020C;

// Obeys the orders of one metafile. How many orders, points, pixels and objects there may be is
// bounded, whatever the file says.
class WmfPlayer {
public:
    WmfPlayer(const WmfPicture& picture, double width, double height, WmfCanvas& canvas);

    int Play();

private:
    // What an order may be saved with and come back to.
    struct State {
        WmfContext Context;
        WmfPoint Origin; // of the window, in units of the drawing
        WmfPoint Extent;
        WmfPoint Here;           // the current position
        bool MovesAlong = false; // text begins and ends at the current position
    };
    struct Ignored {}; // palettes, regions, patterns of a device long gone
    using Object = std::variant<std::monostate, WmfPen, WmfBrush, WmfFont, Ignored>;
    using Handler = void (WmfPlayer::*)(ByteFields& fields);
    struct Entry {
        unsigned Function;
        Handler Obey;
    };
    enum class Edge { Open, Chord, Pie };

    static Handler HandlerOf(unsigned function);

    // WmfPlayer.cpp: the context
    void SetWindowOrg(ByteFields& fields);
    void SetWindowExt(ByteFields& fields);
    void OffsetWindowOrg(ByteFields& fields);
    void ScaleWindowExt(ByteFields& fields);
    void SaveDc(ByteFields& fields);
    void RestoreDc(ByteFields& fields);
    void SetBkColour(ByteFields& fields);
    void SetBkMode(ByteFields& fields);
    void SetRop2(ByteFields& fields);
    void SetPolyFillMode(ByteFields& fields);
    void SetTextColour(ByteFields& fields);
    void SetTextAlign(ByteFields& fields);
    void IntersectClip(ByteFields& fields);
    void ExcludeClip(ByteFields& fields);
    void OffsetClip(ByteFields& fields);
    void SelectClip(ByteFields& fields);
    void MoveTo(ByteFields& fields);

    // WmfObjects.cpp: pens, brushes, fonts
    void CreatePen(ByteFields& fields);
    void CreateBrush(ByteFields& fields);
    void CreateDibBrush(ByteFields& fields);
    void CreateFont(ByteFields& fields);
    void CreateIgnored(ByteFields& fields);
    void SelectObject(ByteFields& fields);
    void DeleteObject(ByteFields& fields);
    void Keep(const ByteFields& fields, Object object);

    // WmfDrawing.cpp: everything that leaves a trace
    void LineTo(ByteFields& fields);
    void Polyline(ByteFields& fields);
    void Polygon(ByteFields& fields);
    void PolyPolygon(ByteFields& fields);
    void Rectangle(ByteFields& fields);
    void RoundRect(ByteFields& fields);
    void Ellipse(ByteFields& fields);
    void Arc(ByteFields& fields) { DrawArc(fields, Edge::Open); }
    void Chord(ByteFields& fields) { DrawArc(fields, Edge::Chord); }
    void Pie(ByteFields& fields) { DrawArc(fields, Edge::Pie); }
    void DrawArc(ByteFields& fields, Edge edge);
    void SetPixel(ByteFields& fields);
    void PatBlt(ByteFields& fields);
    // Whether the part of an image that is copied has a size of its own, to be stretched.
    enum class PartSize { AsPlaced, OfItsOwn };
    void DibBlit(ByteFields& fields, PartSize partSize);
    void DibBitBlt(ByteFields& fields);
    void DibStretchBlt(ByteFields& fields);
    void StretchDib(ByteFields& fields);
    void SetDibToDevice(ByteFields& fields);
    void TextOut(ByteFields& fields);
    void ExtTextOut(ByteFields& fields);
    void DrawText(WmfText text, const WmfPoint& where);
    void Blit(ByteFields& fields, const WmfBox& part, const WmfBox& box, std::uint32_t operation,
              DibColours colours);
    void FillOnly(const WmfBox& box, std::uint32_t operation);

    [[nodiscard]] WmfPoint Placed(const WmfPoint& point) const;
    [[nodiscard]] WmfBox Placed(const WmfBox& box) const;
    WmfBox BoxBackwards(ByteFields& fields);
    WmfPoint PointBackwards(ByteFields& fields);
    WmfPoints Points(ByteFields& fields, int count);
    std::optional<DibImage> Dib(ByteFields& fields, DibColours colours);
    WmfContext& Context() { return state_.Context; }
    void Rescale();
    void Refuse() { refused_ = true; }

    WmfFile file_;
    double width_;
    double height_;
    WmfCanvas& canvas_;
    State state_;
    std::vector<State> saved_;
    std::vector<Object> objects_;
    std::size_t firstFree_ = 0; // no place before this one is free
    std::size_t pointsLeft_;
    std::size_t pixelsLeft_;
    bool bare_ = false;    // the order at hand has no bitmap with it
    bool refused_ = false; // the order at hand asks for what cannot be
};

} // namespace kestrova
