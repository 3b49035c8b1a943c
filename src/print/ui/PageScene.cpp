// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PageScene.h"

#include "platform/qt/PainterSurface.h"

#include <utility>

namespace kestrova {

namespace {

// From below to the top; between border and page lie the objects, kind upon kind.
enum Level { kBorder = -1, kPrinted = 10'000, kMarker };
constexpr int kLevelsOfKind = 1000;

constexpr int kDesk = 300; // twips of the desk that are seen around the paper

int LevelOf(const LayoutRef& ref) {
    return static_cast<int>(ref.Kind) * kLevelsOfKind + ref.Index;
}

QRectF RectOf(const PageBox& box) {
    return {static_cast<qreal>(box.Left), static_cast<qreal>(box.Top),
            static_cast<qreal>(box.Width), static_cast<qreal>(box.Height)};
}

} // namespace

// The page as it is printed, of one piece.
class PageScene::PrintedItem : public QGraphicsItem {
public:
    PrintedItem(const PaperMeasure& measure, const PageSize& surface, PrintColour colours,
                std::function<void(DrawingSurface&)> draw)
        : measure_(measure), surface_(surface), colours_(colours), draw_(std::move(draw)) {
        setAcceptedMouseButtons(Qt::NoButton);
    }

    [[nodiscard]] QRectF boundingRect() const override {
        return {0, 0, static_cast<qreal>(surface_.Width), static_cast<qreal>(surface_.Height)};
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
               QWidget* /*widget*/) override {
        painter->setClipRect(boundingRect()); // what lies beyond is not printed
        PainterSurface surface(*painter, measure_, surface_, colours_);
        draw_(surface);
    }

private:
    const PaperMeasure& measure_;
    PageSize surface_;
    PrintColour colours_;
    std::function<void(DrawingSurface&)> draw_;
};

PageScene::PageScene(const LayoutEditor& editor, const PaperMeasure& measure, QObject* parent)
    : QGraphicsScene(parent), editor_(editor), measure_(measure),
      border_(std::make_unique<BorderItem>(measure)),
      marker_(std::make_unique<SelectionMarker>(*this)) {
    setObjectName(QStringLiteral("Picture2"));
    setItemIndexMethod(NoIndex);
    border_->setZValue(kBorder);
    addItem(border_.get());
    marker_->SetLevel(kMarker);
}

PageScene::~PageScene() = default;

QRectF PageScene::Paper() const {
    const PageSize& surface = editor_.Page().Surface;
    return QRectF(0, 0, surface.Width, surface.Height)
        .adjusted(-kPaperEdge, -kPaperEdge, kPaperEdge, kPaperEdge);
}

void PageScene::Update() {
    const QRectF whole = Paper().adjusted(-kDesk, -kDesk, kDesk, kDesk);
    if (whole != sceneRect()) {
        setSceneRect(whole);
        invalidate(whole, BackgroundLayer);
    }
    UpdateItems();
    border_->Update(editor_.Page());
    border_->setVisible(!IsPrinted());
    UpdateMarker();
}

void PageScene::UpdateItems() {
    const PageLayout& page = editor_.Page();
    std::erase_if(items_, [&page](const auto& item) { return page.Find(item.first) == nullptr; });
    EachItem(page, [&](const LayoutRef& ref) {
        const bool edited = editor_.Edited() == ref; // the editing box lies in its place
        const bool visible = !IsPrinted() && !edited && editor_.IsShown(ref);
        auto& item = items_[ref];
        if (!item && visible) {
            item = std::make_unique<PageItem>(ref, measure_);
            item->setZValue(LevelOf(ref));
            addItem(item.get());
        }
        if (item) {
            item->Update(*page.Find(ref), page.GridOn, page.Surface);
            item->setVisible(visible);
        }
    });
    MoveDragged();
}

void PageScene::MoveDragged() {
    const LayoutEditor::Offset offset = editor_.DragOffset();
    const QPointF dragged(offset.Across, offset.Down);
    for (const LayoutRef& ref : moved_) {
        if (const auto found = items_.find(ref); found != items_.end() && found->second) {
            found->second->setPos(0, 0);
        }
    }
    moved_.clear();
    if (editor_.IsDragging()) {
        moved_ = editor_.Selection();
        for (const LayoutRef& ref : moved_) {
            items_.at(ref)->setPos(dragged);
        }
    }
    marker_->SetOffset(dragged);
}

void PageScene::UpdateMarker() {
    std::vector<PageBox> frames;
    if (!IsPrinted() && !editor_.Edited()) {
        for (const LayoutRef& ref : editor_.Selection()) {
            frames.push_back(BoxOf(*editor_.Page().Find(ref)));
        }
    }
    marker_->Surround(frames);
    Hover(hovered_);
}

void PageScene::Hover(const std::optional<LayoutRef>& ref) {
    hovered_ = ref;
    const LayoutItem* const item = ref ? editor_.Page().Find(*ref) : nullptr;
    const bool shows = item != nullptr && !IsPrinted() && !editor_.IsDragging() &&
                       !editor_.Edited() && editor_.IsShown(*ref) && !editor_.IsSelected(*ref);
    marker_->Hover(shows ? RectOf(BoxOf(*item)) : QRectF());
}

void PageScene::SetFrame(const QRectF& frame) {
    marker_->Draw(frame);
}

void PageScene::ShowPrinted(std::function<void(DrawingSurface&)> draw, PrintColour colours) {
    printed_.reset();
    if (draw) {
        printed_ = std::make_unique<PrintedItem>(measure_, editor_.Page().Surface, colours,
                                                 std::move(draw));
        printed_->setZValue(kPrinted);
        addItem(printed_.get());
    }
    Update();
}

} // namespace kestrova
