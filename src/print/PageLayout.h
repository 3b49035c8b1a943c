// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "platform/DrawingSurface.h"
#include "platform/Printer.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace kestrova {

// Positions and sizes are in twips from the top left corner of the page surface, which is the area
// that the printer can draw on. Colours are red + 256 x green + 65536 x blue.

// An object on the page. Pictures use the first five fields and their picture; texts all others.
struct LayoutItem {
    bool Enabled = true; // false: deleted. It keeps its place, but is not shown or printed
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;
    std::int32_t ForeColor = 0;
    std::string FontName;
    double FontSize = 0; // points
    bool FontBold = false;
    bool FontItalic = false;
    std::string Caption; // lines are parted by CR LF

    PagePicturePtr Picture; // none: nothing is painted. Not part of the layout file

    // Width and height are the composer's, which may fit them anew; false once the user has sized
    // the object. Not part of the layout file.
    bool Fitted = false;

    bool operator==(const LayoutItem&) const = default;

    [[nodiscard]] FontChoice Font() const {
        return {FontName, static_cast<float>(FontSize), FontBold, FontItalic};
    }
};

// The kinds of objects, by the names of the page's controls.
enum class LayoutKind {
    Image1,    // the background: its box is also what the month is laid out in
    Image2,    // the page's picture
    ImgUser,   // pictures that the user has added, from 1
    LabCurMth, // the header
    LabDays,   // the names of the days, 0-6
    LabDates,  // the cells of the dates, 0-30
    LabEvent,  // the messages of the diary, from 1
    LabUser,   // texts that the user has added, from 1
};

[[nodiscard]] constexpr bool IsText(LayoutKind kind) {
    return kind != LayoutKind::Image1 && kind != LayoutKind::Image2 && kind != LayoutKind::ImgUser;
}

// One object of the page.
struct LayoutRef {
    LayoutKind Kind = LayoutKind::Image1;
    int Index = 0; // as the kind counts; 0 for a single one

    bool operator==(const LayoutRef&) const = default;
};

inline constexpr int kMaxLabels = 400;     // of each family of texts
inline constexpr int kMaxImagePaths = 100; // further pictures have no path that is kept

inline constexpr int kMaxBorderLines = 4;
inline constexpr int kGridStep = 150; // twips for each entry of the menu "Spacing", 0-4

// The whole state of a page, as it is saved, undone and drawn. It is a value: a copy shares nothing
// but the pictures, which never change.
struct PageLayout {
    std::string BackgroundPath; // file that Image1's picture was last loaded from
    std::string PicturePath;    // and Image2's
    std::array<std::string, kMaxImagePaths + 1> ImagePaths; // of ImgUser(1) to ImgUser(100)

    LayoutItem Image1;
    LayoutItem Image2;
    LayoutItem LabCurMth;
    std::array<LayoutItem, kDaysOfWeek> LabDays;
    std::array<LayoutItem, kMaxDays> LabDates;
    // Element i of these is the object of index i + 1. What is deleted stays in its place.
    std::vector<LayoutItem> ImgUser;
    std::vector<LayoutItem> LabEvent;
    std::vector<LayoutItem> LabUser;

    int BorderLines = 1; // 0-4
    std::int32_t BorderColor = 0;
    LineStyle BorderDrawStyle = LineStyle::Solid;
    int BorderWidth = 1;
    int GridSpacing = 0; // 0, 150, 300, 450 or 600 twips between the cells
    bool GridOn = false;

    PageSize Surface; // of the page surface

    bool operator==(const PageLayout&) const = default;

    // The object, or nothing when there is none of this index (a deleted one is still there).
    [[nodiscard]] LayoutItem* Find(const LayoutRef& ref);
    [[nodiscard]] const LayoutItem* Find(const LayoutRef& ref) const;

    // Takes away all messages, the user's texts or the user's pictures.
    void ResetEvent();
    void ResetUser();
    void ResetImage();
};

// Calls visit(LayoutRef) for every object there is, deleted ones too, from the one that lies lowest
// on the page to the one on top.
template<typename Visit> void EachItem(const PageLayout& page, Visit visit) {
    const auto family = [&](LayoutKind kind, int first, std::size_t count) {
        for (int i = 0; i < static_cast<int>(count); ++i) {
            visit(LayoutRef{kind, first + i});
        }
    };
    visit(LayoutRef{LayoutKind::Image1, 0});
    visit(LayoutRef{LayoutKind::Image2, 0});
    family(LayoutKind::ImgUser, 1, page.ImgUser.size());
    visit(LayoutRef{LayoutKind::LabCurMth, 0});
    family(LayoutKind::LabDays, 0, page.LabDays.size());
    family(LayoutKind::LabDates, 0, page.LabDates.size());
    family(LayoutKind::LabEvent, 1, page.LabEvent.size());
    family(LayoutKind::LabUser, 1, page.LabUser.size());
}

// Reads pictures for the page.
class PagePictures {
public:
    virtual ~PagePictures() = default;

    // The picture, no larger than paper needs it. NotFound, Busy, Damaged, TooLarge or Failed.
    [[nodiscard]] virtual Result<PagePicturePtr> Load(const std::string& path) = 0;
};

} // namespace kestrova
