// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeMeasure.h"
#include "platform/Printer.h"

#include <string>
#include <vector>

namespace kestrova {

// What was drawn by one call.
struct Drawn {
    enum class What { Text, Line, Picture };

    What Kind = What::Text;
    int Page = 0; // of a print job, from 1
    int X = 0;    // of a line: where it begins
    int Y = 0;
    int X2 = 0; // of a line: where it ends; of a picture: width and height
    int Y2 = 0;
    FontChoice Font;
    std::int32_t Colour = 0;
    std::string Text;
    LineStyle Style = LineStyle::Solid;
    int PenWidth = 0;
    const PagePicture* Picture = nullptr;
};

// Something to draw on that remembers what was drawn, in its order.
template<typename Port> class Recording : public FixedLetters<Port> {
public:
    PageSize Size{11606, 16538}; // of the area: A4
    std::vector<Drawn> All;
    int Pages = 0;

    [[nodiscard]] int PageWidth() const override { return Size.Width; }
    [[nodiscard]] int PageHeight() const override { return Size.Height; }

    void DrawText(int x, int y, const FontChoice& font, std::int32_t colour,
                  std::string_view text) override {
        Drawn& drawn = Begin(Drawn::What::Text, x, y);
        drawn.Font = font;
        drawn.Colour = colour;
        drawn.Text = std::string(text);
    }
    void DrawLine(int x1, int y1, int x2, int y2, const Pen& pen) override {
        Drawn& drawn = Begin(Drawn::What::Line, x1, y1);
        drawn.X2 = x2;
        drawn.Y2 = y2;
        drawn.Colour = pen.Colour;
        drawn.Style = pen.Style;
        drawn.PenWidth = pen.Width;
    }
    void DrawPicture(int left, int top, int width, int height,
                     const PagePicture& picture) override {
        Drawn& drawn = Begin(Drawn::What::Picture, left, top);
        drawn.X2 = width;
        drawn.Y2 = height;
        drawn.Picture = &picture;
    }

    [[nodiscard]] std::vector<Drawn> Only(Drawn::What kind) const {
        std::vector<Drawn> some;
        for (const Drawn& drawn : All) {
            if (drawn.Kind == kind) {
                some.push_back(drawn);
            }
        }
        return some;
    }
    [[nodiscard]] std::vector<Drawn> Texts() const { return Only(Drawn::What::Text); }

private:
    Drawn& Begin(Drawn::What kind, int x, int y) {
        Drawn& drawn = All.emplace_back();
        drawn.Kind = kind;
        drawn.Page = Pages;
        drawn.X = x;
        drawn.Y = y;
        return drawn;
    }
};

using FakeSurface = Recording<DrawingSurface>;

// A document that goes nowhere.
class FakeJob : public Recording<PrintJob> {
public:
    Status Outcome = Done{};
    bool Finished = false;

    void NewPage() override { ++Pages; }
    [[nodiscard]] int PageNumber() const override { return Pages; }
    Status Finish() override {
        Finished = true;
        return Outcome;
    }
};

} // namespace kestrova
