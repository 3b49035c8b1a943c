// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutFile.h"

#include "print/FreeObjects.h"
#include "print/LayoutValues.h"
#include "text/Lines.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace kestrova {

namespace {

constexpr std::string_view kEndOfPictures = "End of Pictures";
constexpr std::string_view kEndOfLabels = "End of Labels";

class Writer {
public:
    void Number(std::int64_t value) {
        out_ += std::to_string(value);
        out_ += kLineEnd;
    }

    void Flag(bool value) { Number(value ? -1 : 0); }

    void Text(std::string_view text) {
        out_ += '"';
        bool opening = true;
        for (const char c : text) {
            if (c == '"') {
                out_ += opening ? "\xE2\x80\x9C" : "\xE2\x80\x9D";
                opening = !opening;
            } else {
                out_ += c;
            }
        }
        out_ += '"';
        out_ += kLineEnd;
    }

    void Box(const LayoutItem& item) {
        const int left = std::clamp(item.Left, -kFarthestTwip, kFarthestTwip);
        const int top = std::clamp(item.Top, -kFarthestTwip, kFarthestTwip);
        Flag(item.Enabled);
        Number(left);
        Number(top);
        Number(std::clamp(item.Width, 0, std::min(kFarthestTwip, kFarthestTwip - left)));
        Number(std::clamp(item.Height, 0, std::min(kFarthestTwip, kFarthestTwip - top)));
    }

    void Full(const LayoutItem& item) {
        Box(item);
        Flag(item.Visible);
        Number(item.ForeColor);
        Text(item.FontName);
        // A half goes to the even number, as the rounding in force everywhere has it.
        Number(std::max<std::int64_t>(1, std::llrint(item.FontSize)));
        Flag(item.FontBold);
        Flag(item.FontItalic);
        Text(item.Caption);
    }

    void Labels(const std::vector<LayoutItem>& family) {
        for (const LayoutItem& item : family) {
            if (item.Enabled) {
                Text("Label");
                Full(item);
            }
        }
    }

    [[nodiscard]] std::string Take() { return std::move(out_); }

private:
    std::string out_;
};

// Stands for every picture.
class AnyPicture : public PagePicture {
public:
    [[nodiscard]] int Width() const override { return 1; }
    [[nodiscard]] int Height() const override { return 1; }
};

class AnyPictures : public PagePictures {
public:
    [[nodiscard]] Result<PagePicturePtr> Load(const std::string& /*path*/) override {
        return PagePicturePtr(std::make_shared<AnyPicture>());
    }
};

class Reader {
public:
    Reader(std::string_view bytes, PageLayout& page, PagePictures& pictures)
        : values_(bytes), page_(page), pictures_(pictures) {}

    LayoutReading Read() {
        const bool whole = Fixed(page_.BackgroundPath, page_.Image1) &&
                           Fixed(page_.PicturePath, page_.Image2) && UserPictures() &&
                           FixedTexts() && Labels() && Settings();
        if (whole) {
            return {tooMany_ ? Status(*tooMany_) : Done{}, true};
        }
        return {unloaded_.value_or(Error{ErrorCode::Damaged, values_.Line()}), false};
    }

private:
    bool Fixed(std::string& path, LayoutItem& item) {
        if (!values_.Text(path)) {
            return false;
        }
        if (!path.empty()) {
            if (const auto picture = pictures_.Load(path)) {
                item.Picture = picture.Value();
            }
        }
        return values_.Box(item);
    }

    bool UserPictures() {
        std::string path;
        while (values_.Text(path)) {
            if (path == kEndOfPictures) {
                return true;
            }
            LayoutItem leftOut;
            LayoutItem* item = &leftOut;
            if (page_.ImgUser.size() < kMaxImagePaths) {
                item = AddUserPicture(path);
            } else {
                TooMany();
            }
            if (item == nullptr || !values_.Box(*item)) {
                return false;
            }
        }
        return false;
    }

    // Nothing when the picture cannot be loaded; it has its place on the page all the same, as
    // when it is added by hand.
    LayoutItem* AddUserPicture(const std::string& path) {
        const auto picture = pictures_.Load(path);
        const LayoutRef ref = AddPicture(page_, path, picture ? picture.Value() : nullptr);
        if (!picture) {
            unloaded_ = Error{picture.Failure().Code, values_.Line() + ": " + path};
            return nullptr;
        }
        return page_.Find(ref);
    }

    bool FixedTexts() {
        const auto full = [this](LayoutItem& item) { return values_.Full(item); };
        return full(page_.LabCurMth) &&
               std::all_of(page_.LabDays.begin(), page_.LabDays.end(), full) &&
               std::all_of(page_.LabDates.begin(), page_.LabDates.end(), full);
    }

    bool Labels() {
        std::string mark;
        while (values_.Text(mark)) {
            if (mark == kEndOfLabels) {
                return true;
            }
            const bool room = page_.LabUser.size() < kMaxLabels;
            if (!room) {
                TooMany();
            }
            LayoutItem label;
            if (!values_.Full(label)) {
                return false; // half a text is none
            }
            if (room) {
                page_.LabUser.push_back(std::move(label));
            }
        }
        return false;
    }

    bool Settings() {
        return values_.Flag(page_.GridOn) && values_.Number(page_.BorderLines, 0, kMaxBorderLines);
    }

    // The rest is read all the same; where the first was left out is what is told.
    void TooMany() {
        if (!tooMany_) {
            tooMany_ = Error{ErrorCode::TooLarge, values_.Line()};
        }
    }

    LayoutValues values_;
    PageLayout& page_;
    PagePictures& pictures_;
    std::optional<Error> unloaded_; // one of the user's pictures
    std::optional<Error> tooMany_;
};

} // namespace

std::string WriteLayout(const PageLayout& page) {
    Writer writer;
    writer.Text(page.BackgroundPath);
    writer.Box(page.Image1);
    writer.Text(page.PicturePath);
    writer.Box(page.Image2);
    const std::size_t pictures = std::min<std::size_t>(page.ImgUser.size(), kMaxImagePaths);
    for (std::size_t i = 0; i < pictures; ++i) {
        if (page.ImgUser[i].Enabled) {
            writer.Text(page.ImagePaths[i + 1]);
            writer.Box(page.ImgUser[i]);
        }
    }
    writer.Text(kEndOfPictures);
    writer.Full(page.LabCurMth);
    std::for_each(page.LabDays.begin(), page.LabDays.end(),
                  [&](const LayoutItem& name) { writer.Full(name); });
    std::for_each(page.LabDates.begin(), page.LabDates.end(),
                  [&](const LayoutItem& cell) { writer.Full(cell); });
    writer.Labels(page.LabEvent);
    writer.Labels(page.LabUser);
    writer.Text(kEndOfLabels);
    writer.Flag(page.GridOn);
    writer.Number(page.BorderLines);
    return writer.Take();
}

LayoutReading ReadLayout(std::string_view bytes, PageLayout& page, PagePictures& pictures) {
    return Reader(bytes, page, pictures).Read();
}

bool IsReadable(std::string_view bytes) {
    PageLayout page;
    AnyPictures pictures;
    if (bytes.size() > kLayoutFileLimit) {
        return false;
    }
    const LayoutReading reading = ReadLayout(bytes, page, pictures);
    return reading.ToTheEnd && reading.Trouble;
}

} // namespace kestrova
