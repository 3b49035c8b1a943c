// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PuzzleView.h"

#include "puzzle/ui/PuzzlePicture.h"
#include "ui/ElidedLabel.h"
#include "ui/Look.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QResizeEvent>
#include <QScreen>

namespace kestrova {

namespace {

constexpr int kSharpenPause = 150; // milliseconds after the last resize

// The pointer of a program that is busy, for as long as this lives.
class BusyPointer {
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
};

// The pixels of the largest screen that the window could be moved to.
QSize MostPixels() {
    QSize most;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        most = most.expandedTo(screen->size() * screen->devicePixelRatio());
    }
    return most;
}

QString ClockText(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    const auto two = [](qint64 value) {
        return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
    };
    const qint64 hours = seconds / 3600;
    const QString minutes = hours > 0
                                ? QString::number(hours) + QLatin1Char(':') + two(seconds / 60 % 60)
                                : QString::number(seconds / 60);
    return minutes + QLatin1Char(':') + two(seconds % 60);
}

} // namespace

PuzzleView::PuzzleView(PieceFiles& files, const PuzzleRandom& random, QWidget* parent)
    : QGraphicsView(parent), files_(files), random_(random) {
    setObjectName(QStringLiteral("Puzzle"));
    setScene(&table_);
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(true); // what it lies over is not to be seen beside the line of moves
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setRenderHint(QPainter::SmoothPixmapTransform);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    BuildStatusLine();
    sharpen_.setSingleShot(true);
    finish_.setSingleShot(true);
    connect(&second_, &QTimer::timeout, this, [this] { ShowTime(); });
    connect(&sharpen_, &QTimer::timeout, this, [this] { table_.SetDraft(false); });
    connect(&finish_, &QTimer::timeout, this, [this] { GameFinish(); });
    hide();
}

// The table goes before the view does, which must not look at it any more.
PuzzleView::~PuzzleView() {
    setScene(nullptr);
}

void PuzzleView::BuildStatusLine() {
    statusLine_ = new QWidget(this);
    // The line belongs to the window and not to the table.
    statusLine_->setBackgroundRole(QPalette::Window);
    statusLine_->setForegroundRole(QPalette::WindowText);
    auto* const line = new QHBoxLayout(statusLine_);
    line->setContentsMargins(look::kSpacing / 2, look::kSpacing / 2, look::kSpacing / 2, 0);
    line->setSpacing(2 * look::kSpacing);
    LabMoves = new QLabel(statusLine_);
    LabMoves->setObjectName(QStringLiteral("LabMoves"));
    LabMoves->setTextFormat(Qt::PlainText);
    line->addWidget(LabMoves);
    LabKeys = new ElidedLabel(statusLine_);
    LabKeys->setObjectName(QStringLiteral("LabKeys"));
    LabKeys->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->addWidget(LabKeys, 1);
}

void PuzzleView::SetTexts(const PuzzleTexts& texts) {
    texts_ = texts;
    setAccessibleName(texts.Name);
    ShowStatus();
}

void PuzzleView::SetShape(PuzzleShape shape) {
    shape_ = shape;
    GameResize();
}

Result<PuzzleView::Pieces> PuzzleView::GameIni(const QImage& picture, int side) {
    if (!IsPuzzleSide(side)) {
        return Error{ErrorCode::Failed, "no such puzzle"};
    }
    Pieces pieces;
    pieces.Whole = PuzzlePicture(picture, MostPixels(), palette().color(QPalette::Window));
    const auto bitmap = BitmapOf(pieces.Whole);
    if (!bitmap) {
        return bitmap.Failure();
    }
    const auto plan = files_.SplitUp(bitmap.Value(), side);
    if (!plan) {
        return plan.Failure();
    }
    pieces.Plan = plan.Value();
    for (int k = 1; k <= side * side; ++k) {
        const auto bytes = files_.TakePiece(k);
        auto piece = bytes ? PictureOf(bytes.Value()) : Result<QImage>(bytes.Failure());
        if (!piece) {
            files_.RemoveLeftovers();
            return piece.Failure();
        }
        pieces.Pictures.push_back(std::move(piece.Value()));
    }
    return pieces;
}

Status PuzzleView::Start(const QImage& picture, int side, PuzzleKind kind) {
    const BusyPointer busy;
    ResetPiece();
    auto pieces = GameIni(picture, side);
    if (!pieces) {
        hide();
        return pieces.Failure();
    }
    kind_ = kind;
    plan_ = pieces.Value().Plan;
    board_.emplace(side);
    if (kind == PuzzleKind::JigSaw) {
        board_->Shuffle(random_);
    } else {
        board_->MixPieces(random_);
    }
    table_.Deal(std::move(pieces.Value().Whole), std::move(pieces.Value().Pictures));
    if (kind == PuzzleKind::MovingPiece) {
        table_.SetLook(1, PieceLook::Gap);
    }
    cursor_ = 1;
    showCursor_ = false;
    time_.start();
    second_.start(1000);
    GameResize();
    ShowStatus();
    show();
    setFocus();
    return Done{};
}

void PuzzleView::Quit() {
    if (IsRunning()) {
        GameFinish();
    }
}

void PuzzleView::ResetPiece() {
    second_.stop();
    sharpen_.stop();
    finish_.stop();
    hand_.reset();
    board_.reset();
    table_.ResetPiece();
    viewport()->unsetCursor();
}

void PuzzleView::GameFinish() {
    ResetPiece();
    hide();
    // The caller may delete the view, and the function with it.
    if (const auto finished = Finished) {
        finished();
    }
}

void PuzzleView::GameResize() {
    PlaceStatusLine();
    setSceneRect(QRectF(QPointF(), QSizeF(viewport()->size())));
    if (!IsRunning()) {
        return;
    }
    PutBack();
    layout_ = PieceLayout(plan_, QSizeF(viewport()->size()), shape_, devicePixelRatioF());
    table_.Lay(layout_, *board_);
    table_.Frame(FrameItem::Kind::Cursor, showCursor_ && IsPlaying() ? cursor_ : 0);
}

void PuzzleView::PlaceStatusLine() {
    const int height = statusLine_->sizeHint().height();
    setViewportMargins(0, 0, 0, height);
    statusLine_->setGeometry(0, this->height() - height, width(), height);
}

void PuzzleView::ShowStatus() {
    if (!IsRunning()) {
        return;
    }
    ShowTime();
    const QString& keys = kind_ == PuzzleKind::JigSaw ? texts_.JigSawKeys : texts_.MovingKeys;
    const QString text = IsPlaying() ? keys : texts_.Solved;
    LabKeys->setText(text);
    LabKeys->setToolTip(text);
    // Without the time, which would be read out every second.
    setAccessibleDescription(texts_.Moves.arg(board_->Moves()) + QLatin1Char(' ') + text);
}

void PuzzleView::ShowTime() {
    LabMoves->setText(texts_.Moves.arg(board_->Moves()) + QStringLiteral("    ") +
                      texts_.Time.arg(ClockText(time_.elapsed())));
}

void PuzzleView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    table_.SetDraft(true);
    sharpen_.start(kSharpenPause);
    GameResize();
}

void PuzzleView::changeEvent(QEvent* event) {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::FontChange && statusLine_ != nullptr) {
        GameResize();
    }
}

// The window may have come to a screen of another resolution, of which nothing else tells.
void PuzzleView::paintEvent(QPaintEvent* event) {
    QGraphicsView::paintEvent(event);
    if (IsRunning() && layout_.Ratio() != devicePixelRatioF()) {
        QMetaObject::invokeMethod(
            this, [this] { GameResize(); }, Qt::QueuedConnection);
    }
}

void PuzzleView::drawBackground(QPainter* painter, const QRectF& area) {
    painter->fillRect(area, palette().color(QPalette::Window));
    if (IsRunning()) {
        painter->fillRect(layout_.Picture(),
                          look::Between(palette().color(QPalette::Window),
                                        palette().color(QPalette::WindowText), 0.14));
    }
}

} // namespace kestrova
