// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/Languages.h"
#include "language/ProgramTexts.h"
#include "platform/Dialogs.h"
#include "settings/AppSettings.h"
#include "settings/SettingsActions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <array>
#include <optional>

namespace kestrova {

class ElidedLabel;
class ScrolledContent;

// The settings window. Its controls show the settings record and write each choice into it at once;
// "O.K." brings the record to its file. Closing the window hides it.
class Settings : public QDialog {
public:
    struct Rooms {
        AppSettings& Record;
        const StringTable& Texts;
        const Languages& Tongues;
        const FileStore& Files;
        Dialogs& Boxes;
        SettingsActions& Actions;
    };

    Settings(QWidget* parent, const Rooms& rooms);

    // Shows the window at the top left of the screen.
    void ShowSettings();

    // Shows the settings as they are in the record.
    void ShowRecord();

    // What the user tries the voice with.
    [[nodiscard]] std::string SpeechSample() const;

    // Puts the texts of the string table, and the languages there are, into the window.
    void LoadCaptions();

    // Puts the tips on or takes them off, as the settings say.
    void LoadTips();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void BuildFrames();
    void OrderTabs();
    void ConnectClock();
    void ConnectColours();
    void ConnectOperation();
    void ConnectSpeech();
    void ConnectButtons();
    [[nodiscard]] QWidget* BuildClockFrame();
    [[nodiscard]] QWidget* BuildColourFrame();
    [[nodiscard]] QWidget* BuildModemFrame();
    [[nodiscard]] QWidget* BuildOperatingFrame();
    [[nodiscard]] QWidget* BuildSpeechFrame();
    [[nodiscard]] QWidget* BuildMediaFrame();
    [[nodiscard]] QWidget* BuildButtons();

    void DoColor();
    void ShowBars();
    void ShowSpeech();
    void ShowChime();
    void FillLanguages();
    [[nodiscard]] bool TakeChimeFile();
    [[nodiscard]] QString Words(ProgramText text) const;

    void Option_GotFocus(ColourRole role);
    void VSColour_Change(std::int16_t Colour::*component, int value);
    void CombChimes_Click(int index);
    void CombCom_Click(int index);
    void CombLan_Click(int index);
    void CombChr_Click();
    void TextRpt_Change();
    void StepRepeat(int minutes);
    void Check4_Click();
    void Check5_Click();
    void Check10_Click();
    void ComModem_Click();
    void ComCngYr_Click();
    void ComDefault_Click();
    void ComFormat_Click();
    void ComSet_Click();
    void UndoDefault();
    void TakeEffect();

    Rooms rooms_;
    ColourRole role_ = ColourRole::Background; // whose colour the bars show
    std::optional<AppSettings> beforeDefault_; // while the window stays open

    ScrolledContent* area_ = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    QLabel* Label5 = nullptr;
    QLabel* Label6 = nullptr;
    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QLabel* Label10 = nullptr;
    QLabel* Label11 = nullptr;
    QLabel* LabRpt = nullptr;
    QLabel* LabLan = nullptr;
    ElidedLabel* LabChime = nullptr;
    QWidget* LabColour = nullptr;
    std::array<QCheckBox*, 11> Check{}; // Check1 to Check10
    QCheckBox* ChkHidden = nullptr;
    QCheckBox* ChkFscr = nullptr;
    QCheckBox* ChkRep = nullptr;
    std::array<QRadioButton*, kColourRoles> options_{};
    QScrollBar* VSRed = nullptr;
    QScrollBar* VSGreen = nullptr;
    QScrollBar* VSBlue = nullptr;
    QScrollBar* VSPitch = nullptr;
    QScrollBar* VSpeed = nullptr;
    QComboBox* CombChimes = nullptr;
    QComboBox* CombInterval = nullptr;
    QComboBox* CombLan = nullptr;
    QComboBox* CombChr = nullptr;
    QComboBox* CombCom = nullptr;
    QLineEdit* TexGreeting = nullptr;
    QLineEdit* TexFarewell = nullptr;
    QLineEdit* TextRpt = nullptr;
    QLineEdit* TextSpch = nullptr;
    QPushButton* ComSet = nullptr;
    QPushButton* ComDefault = nullptr;
    QPushButton* ComCngYr = nullptr;
    QPushButton* ComFormat = nullptr;
    QPushButton* ComSpchTest = nullptr;
    QPushButton* ComModem = nullptr;
};

} // namespace kestrova
