// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/SelectionMarker.h"

#include "ui/Look.h"
#include "ui/Names.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr double kLeastSide = 8; // pixels of a handle, however small the page is shown
constexpr double kReach = 4;     // pixels around a handle in which it can be caught
constexpr double kFrameRoom = 4;

QColor AccentOf(const QWidget* view) {
    return look::Accent(view != nullptr ? view->palette() : QPalette());
}

// A handle's square made larger, away from the box that it is a handle of.
QRectF Grown(const QRectF& square, const HandleSides& sides, double side) {
    const auto start = [&](int towards, double from) {
        const double more = side - square.width();
        return towards < 0 ? from - more : (towards > 0 ? from : from - more / 2);
    };
    return {start(sides.Across, square.x()), start(sides.Down, square.y()), side, side};
}

QRectF RectOf(const PageBox& box) {
    return QRect(box.Left, box.Top, box.Width, box.Height);
}

} // namespace

// One of the small squares. It is painted in pixels of the screen, its sides exactly on them.
class SelectionMarker::Handle : public QGraphicsObject {
public:
    explicit Handle(std::size_t index) : sides_(kHandleSides[index]) {
        setObjectName(ArrayName("Sp", static_cast<int>(index)));
        setAcceptedMouseButtons(Qt::NoButton);
        setVisible(false);
    }

    void Place(const PageBox& place) {
        prepareGeometryChange();
        place_ = RectOf(place);
    }

    // In the units of which `scale` of the screen's pixels make one.
    [[nodiscard]] QRectF Square(double scale) const {
        return Grown(place_, sides_, std::max(place_.width(), kLeastSide / scale));
    }

    [[nodiscard]] QRectF boundingRect() const override {
        constexpr double kLargest = 1300; // on a page that is shown very small
        return Grown(place_, sides_, kLargest);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
               QWidget* view) override {
        const QTransform& toPixels = painter->transform();
        const double ratio = painter->device()->devicePixelRatioF();
        const auto whole = [ratio](double pixels) { return std::round(pixels * ratio) / ratio; };
        const QRectF shown = toPixels.mapRect(Square(toPixels.m11()));
        const QRectF square(whole(shown.x()), whole(shown.y()), whole(shown.width()),
                            whole(shown.height()));
        painter->save();
        painter->resetTransform();
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->fillRect(square, Qt::white);
        painter->fillRect(square.adjusted(1, 1, -1, -1), AccentOf(view));
        painter->restore();
    }

private:
    HandleSides sides_;
    QRectF place_;
};

// Frames of one or two pixels' width, at every zoom.
class SelectionMarker::Frames : public QGraphicsItem {
public:
    Frames(double strength, double width, double fill)
        : strength_(strength), width_(width), fill_(fill) {
        setAcceptedMouseButtons(Qt::NoButton);
    }

    void Surround(std::vector<QRectF> boxes) {
        if (boxes == boxes_) {
            return;
        }
        prepareGeometryChange();
        boxes_ = std::move(boxes);
        QRectF all;
        for (const QRectF& box : boxes_) {
            all |= box.adjusted(-1, -1, 1, 1);
        }
        around_ = all;
        update();
    }
    [[nodiscard]] bool IsEmpty() const { return boxes_.empty(); }

    [[nodiscard]] QRectF boundingRect() const override {
        constexpr double kTwipsPerPixel = 15;
        constexpr double kRoom = kFrameRoom * kTwipsPerPixel * 4;
        return boxes_.empty() ? QRectF() : around_.adjusted(-kRoom, -kRoom, kRoom, kRoom);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
               QWidget* view) override {
        const QColor accent = AccentOf(view);
        QPen pen(look::Faded(accent, strength_), width_);
        pen.setCosmetic(true);
        pen.setJoinStyle(Qt::MiterJoin);
        painter->setPen(pen);
        painter->setBrush(fill_ > 0 ? QBrush(look::Faded(accent, fill_)) : QBrush(Qt::NoBrush));
        painter->setRenderHint(QPainter::Antialiasing, false);
        for (const QRectF& box : boxes_) {
            painter->drawRect(box);
        }
    }

private:
    double strength_;
    double width_;
    double fill_;
    std::vector<QRectF> boxes_;
    QRectF around_;
};

SelectionMarker::SelectionMarker(QGraphicsScene& scene)
    : selected_(std::make_unique<Frames>(1, 1, 0)), hovered_(std::make_unique<Frames>(0.6, 1, 0)),
      drawn_(std::make_unique<Frames>(0.9, 1, 0.12)) {
    for (Frames* const frames : {hovered_.get(), selected_.get(), drawn_.get()}) {
        scene.addItem(frames);
    }
    for (std::size_t i = 0; i < kHandles; ++i) {
        Sp[i] = std::make_unique<Handle>(i);
        Sp[i]->setParent(&scene); // to be found by its name
        scene.addItem(Sp[i].get());
    }
}

SelectionMarker::~SelectionMarker() = default;

void SelectionMarker::SetLevel(double level) {
    hovered_->setZValue(level);
    selected_->setZValue(level + 1);
    drawn_->setZValue(level + 2);
    for (const auto& handle : Sp) {
        handle->setZValue(level + 3);
    }
}

void SelectionMarker::Surround(const std::vector<PageBox>& boxes) {
    std::vector<QRectF> frames;
    frames.reserve(boxes.size());
    for (const PageBox& box : boxes) {
        frames.push_back(RectOf(box));
    }
    selected_->Surround(std::move(frames));
    const bool one = boxes.size() == 1;
    const auto places = HandleBoxes(one ? boxes.front() : PageBox{});
    around_ = one ? RectOf(boxes.front()) : QRectF();
    for (std::size_t i = 0; i < kHandles; ++i) {
        Sp[i]->Place(places[i]);
        Sp[i]->setVisible(one);
    }
}

void SelectionMarker::SetOffset(const QPointF& offset) {
    selected_->setPos(offset);
    for (const auto& handle : Sp) {
        handle->setPos(offset);
    }
}

void SelectionMarker::Hover(const QRectF& box) {
    hovered_->Surround(box.isNull() ? std::vector<QRectF>() : std::vector{box});
}

void SelectionMarker::Draw(const QRectF& frame) {
    drawn_->Surround(frame.isNull() ? std::vector<QRectF>() : std::vector{frame});
}

std::optional<std::size_t> SelectionMarker::HandleAt(const QPointF& twips, double scale) const {
    // From the last, the corner at the lower right, which small objects are sized by. What is on
    // the object itself is for the object.
    const double reach = kReach / scale;
    for (std::size_t i = kHandles; i-- > 0;) {
        const bool caught =
            Sp[i]->isVisible() && !around_.contains(twips) &&
            Sp[i]->Square(scale).adjusted(-reach, -reach, reach, reach).contains(twips);
        if (caught) {
            return i;
        }
    }
    return std::nullopt;
}

} // namespace kestrova
