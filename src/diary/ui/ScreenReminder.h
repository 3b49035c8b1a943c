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

namespace kestrova {

// The window that lists reminders that have fallen due, until the user clears it. It comes up
// without taking the keyboard from whatever the user is doing.
class ScreenReminder : public QWidget {
public:
    // `clear` is called when the user clears the list, when the window has gone.
    ScreenReminder(const StringTable& texts, std::function<void()> clear);

    // Shows these lines, at most ten.
    void ShowLines(const std::vector<std::string>& lines);

    void LoadCaptions();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Redraw();
    void ComClear_Click();

    const StringTable& texts_;
    std::function<void()> clear_;
    int lines_ = 1; // the number of lines on show and one (ScreenLines)
    QFrame* Frame1 = nullptr;
    std::array<QLabel*, kEventsPerDay + 1> LabRemind{};
    QPushButton* ComClear = nullptr;
};

} // namespace kestrova
