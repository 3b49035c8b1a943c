// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/LayoutEditor.h"
#include "print/ui/PageItem.h"
#include "print/ui/SelectionMarker.h"

#include <QGraphicsScene>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace kestrova {

// `Picture2`, the page surface: a scene of one unit to the twip with the page's objects on it, or
// with the page as it will be printed.
class PageScene : public QGraphicsScene {
public:
    PageScene(const LayoutEditor& editor, const PaperMeasure& measure, QObject* parent);
    ~PageScene() override;

    // Shows the page, the selection and the text being edited as they are now.
    void Update();

    // Shows the page as `draw` draws it, or, without one, its objects.
    void ShowPrinted(std::function<void(DrawingSurface&)> draw,
                     PrintColour colours = PrintColour::Colour);
    [[nodiscard]] bool IsPrinted() const { return printed_ != nullptr; }

    // Lets what is being dragged follow the mouse.
    void MoveDragged();

    // The object under the mouse, which gets a fine frame; nothing for none.
    void Hover(const std::optional<LayoutRef>& ref);

    // The frame that the user draws around what is to be selected; a null one for none.
    void SetFrame(const QRectF& frame);

    [[nodiscard]] SelectionMarker& Marker() { return *marker_; }

    // The paper, in twips, around the page surface.
    [[nodiscard]] QRectF Paper() const;

private:
    class PrintedItem;
    struct Order {
        bool operator()(const LayoutRef& a, const LayoutRef& b) const {
            return a.Kind != b.Kind ? a.Kind < b.Kind : a.Index < b.Index;
        }
    };

    void UpdateItems();
    void UpdateMarker();

    const LayoutEditor& editor_;
    const PaperMeasure& measure_;
    std::map<LayoutRef, std::unique_ptr<PageItem>, Order> items_;
    std::vector<LayoutRef> moved_; // by the mouse
    std::unique_ptr<BorderItem> border_;
    std::unique_ptr<PrintedItem> printed_;
    std::unique_ptr<SelectionMarker> marker_;
    std::optional<LayoutRef> hovered_;
};

} // namespace kestrova
