// SPDX-License-Identifier: GPL-3.0-or-later
// What a frame takes while an object of the print layout is dragged over a full page.
#include "BoundedWork.h"
#include "NoDialogs.h"

#include "platform/posix/PosixFileStore.h"
#include "platform/qt/PageImage.h"
#include "print/ui/Preview.h"

#include <QApplication>
#include <QMouseEvent>

#include <cmath>

namespace kestrova::bench {

namespace {

constexpr double kFrame = 1.0 / 60;
constexpr QSize kPhotograph(4000, 3000);

void MakeApplication() {
    if (qApp == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int count = 1;
        static char name[] = "kestrova_bench";
        static char* arguments[] = {name, nullptr};
        new QApplication(count, arguments); // for as long as the program runs
    }
}

// Counts how often a widget is painted.
class PaintCount : public QObject {
public:
    int Paints = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        Paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class Photographs : public PagePictures {
public:
    [[nodiscard]] Result<PagePicturePtr> Load(const std::string& /*path*/) override {
        QImage image(kPhotograph, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                row[x] = qRgb(x & 0xFF, y & 0xFF, (x + y) & 0xFF);
            }
        }
        return PagePicturePtr(std::make_shared<PageImage>(image));
    }
};

class NoPaper : public Printer {
public:
    Status Check() override { return Done{}; }
    [[nodiscard]] std::unique_ptr<PrintJob> Begin(const PrinterSetup& /*setup*/,
                                                  const std::string& /*title*/) override {
        return nullptr;
    }
};

// A window with a page of 400 texts, a photograph and a background.
class FullPage {
public:
    FullPage() {
        SetDefault(settings_);
        dates_.BaseYear = dates_.PageYear = 2026;
        dates_.PageMonth = 4;
        monthPictures_.MonthPicture[4] = "photograph";
        window_.OpenMonth();
        PageLayout& page = desk_.Page();
        const LayoutItem box = page.Image1;
        constexpr int kColumns = 8;
        constexpr int kRows = kMaxLabels / kColumns;
        for (int i = 0; i < kMaxLabels; ++i) {
            static_cast<void>(desk_.AddText());
            LayoutItem& label = page.LabUser.back();
            label.Caption = "A text of the user's";
            label.Left = box.Left + i % kColumns * (box.Width / kColumns);
            label.Top = box.Top + i / kColumns * (box.Height / kRows);
        }
        window_.resize(1600, 1200);
        QApplication::processEvents();
        view_ = window_.findChild<PageView*>(QStringLiteral("Picture1"));
        view_->SetZoom(1);
        view_->viewport()->installEventFilter(&paints_);
        QApplication::processEvents();
    }

    // Takes hold of what lies there, in twips of the page.
    void Press(int x, int y) {
        view_->centerOn(x, y);
        QApplication::processEvents();
        at_ = view_->mapFromScene(x, y);
        Send(QEvent::MouseButtonPress, at_, Qt::LeftButton);
    }

    // Moves it to the next place of a circle and paints. False when nothing was painted.
    bool Move() {
        constexpr double kRadius = 200;
        constexpr double kStep = 0.05;
        angle_ += kStep;
        const QPointF away(std::sin(angle_) * kRadius, std::cos(angle_) * kRadius);
        Send(QEvent::MouseMove, at_ + away.toPoint(), Qt::NoButton);
        const int before = paints_.Paints;
        QApplication::processEvents();
        return paints_.Paints > before;
    }

    // Whether what was taken hold of is away from where it lay.
    [[nodiscard]] bool IsAway() const {
        const auto* const handle = window_.findChild<QGraphicsObject*>(QStringLiteral("Sp(0)"));
        return handle->isVisible() && !handle->pos().isNull();
    }

    [[nodiscard]] const PageLayout& Page() const { return desk_.Page(); }

private:
    void Send(QEvent::Type type, const QPoint& where, Qt::MouseButton button) {
        QMouseEvent event(type, where, view_->viewport()->mapToGlobal(where), button,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view_->viewport(), &event);
    }

    PosixFileStore files_;
    NoPaper paper_;
    Photographs pictures_;
    PaperMeasure measure_;
    Selection dates_;
    StringTable texts_ = MsgDefaults();
    AppSettings settings_;
    PictureTable monthPictures_;
    DiaryTable table_;
    PrintDesk desk_{{files_, [this]() -> Printer& { return paper_; }, pictures_, measure_, dates_,
                     texts_, settings_, monthPictures_,
                     [this]() -> const DiaryTable& { return table_; },
                     [] { return std::array<std::string, kDaysOfWeek>(); }}};
    NoDialogs boxes_;
    std::string folder_;
    Preview window_{
        {desk_, texts_, settings_, boxes_, folder_, measure_},
        {[](const std::string&) -> Status { return Done{}; }, [] { return true; }, [] {}}};
    PaintCount paints_;
    PageView* view_ = nullptr;
    QPoint at_;
    double angle_ = 0;
};

void Drag(benchmark::State& state, LayoutRef ref) {
    MakeApplication();
    FullPage full;
    const LayoutItem& item = *full.Page().Find(ref);
    // A picture is caught where no text lies on it.
    full.Press(IsText(ref.Kind) ? item.Left + 10 : item.Left + item.Width - 20, item.Top + 10);
    for ([[maybe_unused]] auto _ : state) {
        if (!full.Move()) {
            state.SkipWithError("nothing was painted");
            return;
        }
    }
    if (!full.IsAway()) {
        state.SkipWithError("nothing was dragged");
    }
}

const AtMost kText = AtMost::Seconds(kFrame, "drag a text among 400, a frame", [](auto& state) {
    Drag(state, {LayoutKind::LabUser, 200});
});
const AtMost kPicture =
    AtMost::Seconds(kFrame, "drag the photograph below them, a frame", [](auto& state) {
        Drag(state, {LayoutKind::Image2, 0});
    });

} // namespace

} // namespace kestrova::bench
