// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"
#include "language/StringTable.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <functional>
#include <string>
#include <vector>

class QFrame;
class QInputDialog;
class QMenu;

namespace kestrova {

// The window that lists reminders that have fallen due, until the user clears it. It comes up
// without taking the keyboard from whatever the user is doing.
class ScreenReminder : public QWidget {
public:
    // What the user wants done with the lines. The window has gone when it is called.
    struct Hooks {
        std::function<void()> Clear;
        std::function<void(int minutes)> Snooze; // they are to come back after so many minutes
    };

    ScreenReminder(const StringTable& texts, Hooks hooks);

    // Shows these lines, at most ten.
    void ShowLines(const std::vector<std::string>& lines);

    // Brings the window to the front, with the keyboard, unless its lines are dealt with.
    void BringUp();

    // Sends the lines away for so many minutes.
    void Snooze(int minutes);

    // Makes room for another window; the lines come again.
    void StandBack();

    void LoadCaptions();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void BuildSnooze();
    void AskMinutes();
    void Redraw();
    void Dismiss();
    void ComClear_Click();

    const StringTable& texts_;
    Hooks hooks_;
    int lines_ = 1; // the number of lines on show and one (ScreenLines)
    QFrame* Frame1 = nullptr;
    std::array<QLabel*, kEventsPerDay + 1> LabRemind{};
    QPushButton* ComClear = nullptr;
    QPushButton* ComSnooze = nullptr;
    QMenu* MNU_Snooze = nullptr;
    QInputDialog* minutes_ = nullptr; // made on first use
};

} // namespace kestrova
