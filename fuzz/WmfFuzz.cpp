// SPDX-License-Identifier: GPL-3.0-or-later
// A Windows metafile: whatever it says, everything that is asked of the canvas can be drawn.
#include "Expect.h"

#include "media/WmfPicture.h"

#include <cmath>

using kestrova::WmfBox;
using kestrova::WmfContext;
using kestrova::WmfPoint;
using kestrova::fuzz::Expect;

namespace {

constexpr double kFarthest = 1e6; // pixels
constexpr int kMostCalls = 20000;

class Watch : public kestrova::WmfCanvas {
public:
    [[nodiscard]] bool GoesOn() override { return ++calls_ < kMostCalls; }

    void Areas(const std::vector<kestrova::WmfPoints>& areas, const WmfContext& context) override {
        Expect(!areas.empty(), "there is something to fill");
        for (const kestrova::WmfPoints& area : areas) {
            CheckPoints(area);
        }
        CheckContext(context);
    }
    void Line(const kestrova::WmfPoints& points, const WmfContext& context) override {
        Expect(points.size() >= 2, "a line has two ends");
        CheckPoints(points);
        CheckContext(context);
    }
    void Fill(const WmfBox& box, kestrova::WmfMix /*mix*/, const WmfContext& context) override {
        CheckBox(box);
        CheckContext(context);
    }
    void Image(const kestrova::DibImage& image, const WmfBox& part, const WmfBox& box,
               kestrova::WmfMix /*mix*/, const WmfContext& context) override {
        CheckImage(image);
        CheckBox(part);
        CheckBox(box);
        CheckContext(context);
    }
    double Text(const kestrova::WmfText& text, const WmfContext& context) override {
        CheckPoint(text.At);
        Expect(text.Steps.empty() || text.Steps.size() == text.Bytes.size(), "a step a letter");
        for (const double step : text.Steps) {
            Expect(std::isfinite(step), "a step is a number");
        }
        Expect(std::abs(context.Font.Height) < kFarthest, "letters of some size");
        CheckContext(context);
        return static_cast<double>(text.Bytes.size());
    }

private:
    // Curves and strokes reach a little beyond the points they are made of.
    static void CheckPoint(const WmfPoint& point) {
        Expect(std::abs(point.X) <= 3 * kFarthest && std::abs(point.Y) <= 3 * kFarthest,
               "a place that can be painted");
    }
    static void CheckPoints(const kestrova::WmfPoints& points) {
        for (const WmfPoint& point : points) {
            CheckPoint(point);
        }
    }
    static void CheckBox(const WmfBox& box) {
        CheckPoint({box.Left, box.Top});
        CheckPoint({box.Right, box.Bottom});
    }
    static void CheckImage(const kestrova::DibImage& image) {
        Expect(image.Width >= 1 && image.Height >= 1, "an image has a size");
        Expect(image.Pixels.size() ==
                   static_cast<std::size_t>(image.Width) * static_cast<std::size_t>(image.Height),
               "an image has its pixels");
    }
    static void CheckContext(const WmfContext& context) {
        Expect(std::isfinite(context.Scale) && context.Scale > 0, "a scale");
        if (context.Brush.Fill == kestrova::WmfFill::Pattern) {
            CheckImage(*context.Brush.Pattern);
        }
        if (context.Clip.Within) {
            CheckBox(*context.Clip.Within);
        }
    }

    int calls_ = 0;
};

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const auto picture = kestrova::OpenWmf(kestrova::fuzz::View(data, size));
    if (picture) {
        Expect(std::isfinite(picture.Value().Width) && picture.Value().Width > 0 &&
                   std::isfinite(picture.Value().Height) && picture.Value().Height > 0,
               "a picture has a size");
        Watch watch;
        kestrova::PlayWmf(picture.Value(), 640, 480, watch);
    }
    return 0;
}
