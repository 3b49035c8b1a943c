// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ProgramTexts.h"
#include "platform/Dialogs.h"
#include "puzzle/Board.h"
#include "puzzle/PieceFiles.h"
#include "puzzle/ui/PuzzleView.h"
#include "settings/AppSettings.h"

#include <QAction>
#include <QImage>
#include <QMenu>
#include <QPointer>

#include <functional>
#include <string>

namespace kestrova {

// The Game menu of the main window, and the puzzle that it lays over the month's picture.
class GameMenu : public QObject {
public:
    struct Rooms {
        const StringTable& Texts;
        const AppSettings& Settings;
        Dialogs& Boxes;
        PieceFiles& Files;
    };

    struct Hooks {
        std::function<std::string()> MonthPicture; // the path of the picture on show
        std::function<void()> EndFilm;             // a game is to have its place
        std::function<void()> RoomChanged;         // a game has come to want the window, or not
    };

    // `picture` is where the puzzle is played.
    GameMenu(const Rooms& rooms, QMenu* menu, QWidget* picture, Hooks hooks);

    void LoadCaptions();

    // Ends a game that is on.
    void Quit();

    [[nodiscard]] bool IsRunning() const { return view_ && view_->IsRunning(); }

    // Whether a game is on that is to have the window to itself.
    [[nodiscard]] bool WantsWindow() const { return IsRunning() && MNU_Large->isChecked(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* Entry(QMenu* menu, const char* name, std::function<void()> handler);
    void BuildSizes();
    void Start(PuzzleKind kind);
    void ShowState();
    [[nodiscard]] QImage Picture() const;
    [[nodiscard]] QString Words(ProgramText text) const;
    void SetTexts();

    void MNU_GmSize_Click(int item);
    void MNU_GmPicture_Click();

    Rooms rooms_;
    QWidget* area_;
    Hooks hooks_;
    QPointer<PuzzleView> view_; // made with the first game; the picture it lies on owns it
    int side_ = kPuzzleSizes.front().Side();
    std::string pzPicture_; // PzPicture: the user's own picture; empty for the month's

    QMenu* MNU_Game;
    QMenu* MNU_GmPzSize = nullptr;
    QAction* MNU_GmStart = nullptr;
    QAction* MNU_GmJigSaw = nullptr;
    QAction* MNU_GmPicture = nullptr;
    QAction* MNU_Large = nullptr;
    QAction* MNU_GmQuit = nullptr;
};

} // namespace kestrova
