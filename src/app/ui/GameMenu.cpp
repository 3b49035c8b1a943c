// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/GameMenu.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "media/ui/BusyCursor.h"
#include "media/ui/PictureReader.h"
#include "media/ui/WaitBeside.h"
#include "platform/qt/QtText.h"
#include "puzzle/ui/PuzzlePicture.h"
#include "ui/Names.h"

#include <QActionGroup>
#include <QEvent>

#include <random>

namespace kestrova {

GameMenu::GameMenu(const Rooms& rooms, QMenu* menu, QWidget* picture, Hooks hooks)
    : QObject(menu), rooms_(rooms), area_(picture), hooks_(std::move(hooks)), MNU_Game(menu) {
    MNU_GmStart = Entry(menu, "MNU_GmStart", [this] { Start(PuzzleKind::MovingPiece); });
    MNU_GmJigSaw = Entry(menu, "MNU_GmJigSaw", [this] { Start(PuzzleKind::JigSaw); });
    menu->addSeparator();
    MNU_GmPzSize = menu->addMenu(QString());
    MNU_GmPzSize->setObjectName(QStringLiteral("MNU_GmPzSize"));
    BuildSizes();
    MNU_GmPicture = Entry(menu, "MNU_GmPicture", [this] { MNU_GmPicture_Click(); });
    MNU_Large = Entry(menu, "MNU_Large", [this] { hooks_.RoomChanged(); });
    MNU_Large->setCheckable(true);
    menu->addSeparator();
    MNU_GmQuit = Entry(menu, "MNU_GmQuit", [this] { Quit(); });
    area_->installEventFilter(this);
    ShowState();
}

QAction* GameMenu::Entry(QMenu* menu, const char* name, std::function<void()> handler) {
    QAction* const action = Named(menu->addAction(QString()), name);
    connect(action, &QAction::triggered, this, [handler = std::move(handler)] { handler(); });
    return action;
}

void GameMenu::BuildSizes() {
    auto* const group = new QActionGroup(this);
    for (const PuzzleSize& size : kPuzzleSizes) {
        QAction* const action = MNU_GmPzSize->addAction(ToQt(size.Caption));
        action->setObjectName(ArrayName("MNU_GmSize", size.Item));
        action->setCheckable(true);
        action->setChecked(size.Side() == side_);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, item = size.Item] { MNU_GmSize_Click(item); });
    }
}

QString GameMenu::Words(ProgramText text) const {
    return ToQt(TextOf(rooms_.Texts, text));
}

void GameMenu::LoadCaptions() {
    MNU_Game->setTitle(Words(ProgramText::MenuGame));
    MNU_GmStart->setText(Words(ProgramText::MenuGameStart));
    MNU_GmJigSaw->setText(Words(ProgramText::MenuGameJigSaw));
    MNU_GmPzSize->setTitle(Words(ProgramText::MenuGameSize));
    MNU_GmPicture->setText(Words(ProgramText::MenuGamePicture));
    MNU_Large->setText(Words(ProgramText::MenuGameLarge));
    MNU_GmQuit->setText(Words(ProgramText::MenuGameQuit));
    SetTexts();
}

void GameMenu::SetTexts() {
    if (view_) {
        view_->SetTexts({Words(ProgramText::PuzzleName), Words(ProgramText::PuzzleMoves),
                         Words(ProgramText::PuzzleTime), Words(ProgramText::PuzzleSolved),
                         Words(ProgramText::JigSawKeys), Words(ProgramText::MovingKeys)});
    }
}

// Size and picture are chosen between games.
void GameMenu::ShowState() {
    const bool running = IsRunning();
    MNU_GmStart->setEnabled(!running);
    MNU_GmJigSaw->setEnabled(!running);
    MNU_GmQuit->setEnabled(running);
}

void GameMenu::MNU_GmSize_Click(int item) {
    side_ = PuzzleSize{item, {}}.Side();
}

void GameMenu::MNU_GmPicture_Click() {
    if (const auto path =
            rooms_.Boxes.OpenFile(pzPicture_, TextOf(rooms_.Texts, ProgramText::PictureFilter))) {
        pzPicture_ = *path;
    }
}

QImage GameMenu::Picture() const {
    const std::string path = pzPicture_.empty() ? hooks_.MonthPicture() : pzPicture_;
    const QSize area = area_->size() * area_->devicePixelRatioF();
    const BusyCursor busy;
    const auto read = OutcomeBeside([path = ToQt(path), area] { return ReadPicture(path, area); });
    if (!read || !read->Ok()) {
        return {};
    }
    return PuzzlePicture(read->Value(), area, area_->palette().color(QPalette::Window));
}

void GameMenu::Start(PuzzleKind kind) {
    if (!view_) {
        view_ = new PuzzleView(rooms_.Files, PuzzleRandom(std::random_device{}()), area_);
        view_->Finished = [this] {
            ShowState();
            area_->window()->setFocus();
            hooks_.RoomChanged();
        };
        SetTexts();
    }
    view_->setGeometry(area_->rect());
    view_->SetShape(rooms_.Settings.KeepAspect != 0 ? PuzzleShape::Keep : PuzzleShape::Fill);
    const QImage picture = Picture();
    if (!view_) {
        return; // the program has ended meanwhile
    }
    hooks_.EndFilm(); // one may have begun meanwhile, too
    view_->raise();
    const Status started = view_->Start(picture, side_, kind);
    if (!started) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                           TextOf(rooms_.Texts, ProgramText::PuzzleUnsuitable),
                           DialogIcon::Critical});
    }
    ShowState();
    hooks_.RoomChanged();
}

void GameMenu::Quit() {
    if (IsRunning()) {
        view_->Quit();
    }
}

// The puzzle covers the picture, whatever becomes of the window's size.
bool GameMenu::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_ && event->type() == QEvent::Resize && view_) {
        view_->setGeometry(area_->rect());
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kestrova
