// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/Languages.h"
#include "language/ProgramTexts.h"
#include "platform/Dialogs.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <functional>

class QLayout;

namespace kestrova {

class ScrolledContent;

// With every character of four bytes, and every one a quote in a quoted field, a text of this many
// still fits a field.
inline constexpr int kLongestTyped = 400;

// The language editor: translates the program, text by text. It works on the texts in use, so that
// a changed text is seen at once, and writes them into the language file under the name that the
// user gives.
class LanEditor : public QDialog {
public:
    struct Rooms {
        StringTable& Texts;
        Languages& Tongues;
        Dialogs& Boxes;
    };

    // What the editor asks of the program around it.
    struct Hooks {
        // Texts have changed; what they were is given, so that choices held by their texts follow.
        std::function<void(const StringTable& before)> TextsChanged;
        std::function<void()> Saved;  // the language file is another
        std::function<void()> Closed; // the settings window is to be shown again
    };

    LanEditor(QWidget* parent, const Rooms& rooms, Hooks hooks);

    // Shows the editor on the language in use. `name` is that of its block, `week` says in which
    // column of the month a day stands.
    void Open(const std::string& name, WeekStart week);

    // Puts the texts of the string table into the window's own controls.
    void LoadCaptions();

    void reject() override;

private:
    void BuildControls();
    [[nodiscard]] QLayout* BuildNames();
    [[nodiscard]] QLayout* BuildTexts();
    void OrderTabs();
    void Connect();
    void ShowFont();
    void FillEntries();
    [[nodiscard]] StringTable Edited() const;
    [[nodiscard]] bool IsChanged() const { return !(Edited() == opened_); }
    [[nodiscard]] bool MayReplace(const std::string& name);
    [[nodiscard]] QString Words(ProgramText text) const;
    [[nodiscard]] TextId Entry() const;
    void Leave();

    void CombTop_Click();
    void CombSel_Click();
    void TexTrans_LostFocus();
    void ComFont_Click();
    void ComSave_Click();

    Rooms rooms_;
    Hooks hooks_;
    WeekStart week_ = WeekStart::Monday;
    std::string openedName_;
    StringTable opened_; // as it was when the editor was opened
    StringTable english_;
    FontChoice font_{{}, 12, true, false}; // of the language; an empty family is the desktop's own
    TextId shown_;                         // the entry in TexTrans

    ScrolledContent* area_ = nullptr;
    QLabel* LabName = nullptr;
    QLabel* LabMon = nullptr;
    QLabel* LabDay = nullptr;
    QLabel* LabTexts = nullptr;
    QLabel* LabEnglish = nullptr;
    QLineEdit* TexName = nullptr;
    std::array<QLineEdit*, kMonths> TexMon{};
    std::array<QLineEdit*, kMonths> TexMn{};
    std::array<QLineEdit*, kDaysOfWeek> TexDay{};
    std::array<QLabel*, kDaysOfWeek> LabEnglishDay{};
    QComboBox* CombTop = nullptr;
    QComboBox* CombSel = nullptr;
    QLineEdit* TexTrans = nullptr;
    QPushButton* ComFont = nullptr;
    QPushButton* ComCancel = nullptr;
    QPushButton* ComSave = nullptr;
};

} // namespace kestrova
