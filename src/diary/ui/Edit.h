// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/EventNote.h"
#include "settings/AppSettings.h"
#include "ui/ClickLabel.h"

#include <QDialog>
#include <QPlainTextEdit>

#include <functional>
#include <string>

namespace kestrova {

// The text editor window: the note of the event that is being edited on the day page, which stays
// usable beside it. The note is saved whenever the editor loses the focus and when the window is
// closed; a note that cannot be saved stays in the window.
class Edit : public QDialog {
public:
    struct Rooms {
        const StringTable& Texts;
        const AppSettings& Settings;
        EventNote& Note;
        const std::function<void(const std::string& text)>& Speak;
    };

    Edit(QWidget* parent, const Rooms& rooms);

    // Opens the note and shows the window; shows nothing when the note cannot be opened.
    void OpenNote();

    // Stands below the window or beside it, wherever the screen has room, so that neither hides
    // the other.
    void StandBeside(const QWidget& window);

    // Saves what has been typed since the last time. Whether the file has all of it now.
    bool SaveNote(SaveMessages messages);

    // The same before the window goes; false when the user is to stay.
    bool Leave();

    // Hands what has been typed to the note, to be saved with the event.
    void RememberNote();

    // Puts the window away and forgets what is in it.
    void Drop();

    void LoadCaptions();

    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Redraw();
    void ShowSpeech();
    void Label1_Click();
    [[nodiscard]] bool IsModified() const;
    [[nodiscard]] std::string Text() const;

    Rooms rooms_;
    bool saving_ = false;
    QPlainTextEdit* TextEditor = nullptr;
    ClickLabel* Label1 = nullptr;
};

} // namespace kestrova
