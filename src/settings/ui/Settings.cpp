// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/Settings.h"

#include "language/ItemLists.h"
#include "language/ProgramTexts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "settings/ListChoices.h"
#include "settings/SettingsRules.h"
#include "ui/ElidedLabel.h"
#include "ui/PlainTip.h"
#include "ui/ScrolledContent.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kestrova {

namespace {

constexpr TextId kModemNotFound{TextGroup::Messages, 7};
constexpr TextId kFileOpenFault{TextGroup::Messages, 9};
constexpr TextId kFormatWarning{TextGroup::Messages, 17};
constexpr TextId kFormatLoss{TextGroup::Messages, 18};
constexpr TextId kCharacterTip{TextGroup::Tips, 6};
constexpr const char* kSoundFolder = "/usr/share/sounds/";
constexpr std::size_t kWaveLimit = std::size_t{64} << 20U; // a chime is a matter of seconds
constexpr int kLongestRepeat = 999;

void Tick(QCheckBox& box, std::int16_t value) {
    box.setChecked(value != 0);
}

void SetBar(QScrollBar& bar, int value) {
    const QSignalBlocker quiet(bar); // a value that is out of the bar's range stays what it is
    bar.setValue(value);
}

} // namespace

QString Settings::Words(ProgramText text) const {
    return ToQt(TextOf(rooms_.Texts, text));
}

void Settings::ShowSettings() {
    setEnabled(true);
    area_->FitWindow();
    move(screen()->availableGeometry().topLeft());
    show();
    raise();
    activateWindow();
}

// Each time it is shown the window says what is true now: the menus change settings too.
void Settings::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        rooms_.Actions.CheckCharacter(); // one may have been put there since
        TextSpch->setText(Words(ProgramText::SpeechSample));
        TextSpch->setCursorPosition(0);
        ShowRecord();
        CombLan->setFocus();
    }
}

// What could be undone in the window cannot be when it is opened anew.
void Settings::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    if (!event->spontaneous()) {
        beforeDefault_.reset();
    }
}

void Settings::ShowRecord() {
    const AppSettings& record = rooms_.Record;
    Tick(*Check[1], record.KeepAspect);
    Tick(*Check[2], record.StartMaximised);
    Tick(*Check[3], record.ReminderOnClose);
    Check[4]->setChecked((record.StartOnBoot & kStartsOnBoot) != 0);
    ChkHidden->setChecked((record.StartOnBoot & kStartsHidden) != 0);
    ChkHidden->setEnabled(Check[4]->isChecked());
    Tick(*Check[5], record.SpeechEnabled);
    Tick(*Check[6], record.SpeakPicture);
    Tick(*Check[7], record.SpeakWeekDay);
    Tick(*Check[8], record.SpeakDate);
    Check[9]->setChecked(record.SwapDayMonth);
    Tick(*Check[10], record.HelpTextOn);
    Tick(*ChkFscr, record.VideoFullScreen);
    Tick(*ChkRep, record.VideoRepeat);
    CombInterval->setCurrentIndex(
        IndexOf(rooms_.Texts, lists::kChimeIntervals, record.ChimeInterval).value_or(0));
    CombCom->setCurrentIndex(
        IndexOf(rooms_.Texts, lists::kModemPorts, record.ModemPort).value_or(0));
    ComModem->setEnabled(CombCom->currentIndex() > 0);
    TexGreeting->setText(ToQt(record.Greeting));
    TexFarewell->setText(ToQt(record.Farewell));
    TextRpt->setText(ToQt(record.SpeakRepeat));
    SetBar(*VSPitch, kPitchBarSum - record.SpeechPitch);
    SetBar(*VSpeed, kSpeedBarSum - record.SpeechSpeed);
    options_[static_cast<std::size_t>(role_)]->setChecked(true);
    ShowChime();
    ShowBars();
    ShowSpeech();
    FillLanguages();
}

void Settings::ShowChime() {
    const AppSettings& record = rooms_.Record;
    CombChimes->setCurrentIndex(
        IndexOf(rooms_.Texts, lists::kChimeTypes, record.ChimeType).value_or(0));
    const bool file = ChimeTypeOf(record, rooms_.Texts) == ChimeType::Chime;
    const QString path = file ? ToQt(record.ChimeSound) : QString();
    LabChime->setText(QFileInfo(path).fileName());
    LabChime->setToolTip(PlainTip(path));
    LabChime->setVisible(file);
}

// Puts the bars where the colour of the role stands.
void Settings::ShowBars() {
    const Colour& colour = rooms_.Record.ColourOf(role_);
    SetBar(*VSRed, kColourBarSum - colour.Red);
    SetBar(*VSGreen, kColourBarSum - colour.Green);
    SetBar(*VSBlue, kColourBarSum - colour.Blue);
    LabColour->update();
}

// Without a character there is nothing to choose about speech.
void Settings::ShowSpeech() {
    const std::vector<std::string> characters = rooms_.Actions.Characters();
    const bool some = !characters.empty();
    const bool on = some && rooms_.Record.SpeechEnabled != 0;
    CombChr->clear();
    for (const std::string& character : characters) {
        CombChr->addItem(ToQt(character));
    }
    CombChr->setCurrentIndex(
        std::max(CombChr->findText(ToQt(rooms_.Record.CharacterName)), some ? 0 : -1));
    std::string leftOut;
    for (const std::string& reason : rooms_.Actions.LeftOutCharacters()) {
        leftOut += (leftOut.empty() ? "" : "\n") + reason;
    }
    if (!leftOut.empty()) {
        CombChr->setToolTip(PlainTip(ToQt(leftOut)));
    } else if (rooms_.Record.HelpTextOn != 0) {
        CombChr->setToolTip(ToQt(rooms_.Texts.Text(kCharacterTip)));
    } else {
        CombChr->setToolTip({});
    }
    Check[5]->setEnabled(some);
    for (QWidget* const detail :
         {static_cast<QWidget*>(Check[6]), static_cast<QWidget*>(Check[7]),
          static_cast<QWidget*>(Check[8]), static_cast<QWidget*>(CombChr),
          static_cast<QWidget*>(ComSpchTest), static_cast<QWidget*>(TextSpch)}) {
        detail->setEnabled(on);
    }
}

void Settings::FillLanguages() {
    CombLan->clear();
    for (const std::string& name : rooms_.Tongues.Choices().Names) {
        CombLan->addItem(ToQt(name));
    }
    CombLan->addItem(Words(ProgramText::LanguageEditor));
    // The editor is no language to stand on, nor is one that the file does not have.
    const int index = rooms_.Record.LanguageIndex;
    CombLan->setCurrentIndex(index < CombLan->count() - 1 ? index : -1);
}

void Settings::LoadCaptions() {
    // Texts that are being typed stay; lists go on standing where they stand.
    ApplyCaptions(*this, rooms_.Texts, TipTexts::Leave);
    setWindowTitle(Words(ProgramText::SettingsTitle));
    ComModem->setText(Words(ProgramText::TestModem));
    ChkHidden->setText(Words(ProgramText::StartHidden));
    LabLan->setText(Words(ProgramText::LanguageLabel));
    VSRed->setAccessibleName(Words(ProgramText::Red));
    VSGreen->setAccessibleName(Words(ProgramText::Green));
    VSBlue->setAccessibleName(Words(ProgramText::Blue));
    LabColour->setAccessibleName(Words(ProgramText::ColourShown));
    TextSpch->setAccessibleName(Words(ProgramText::TextToSpeak));
    if (!TextSpch->isModified()) {
        rooms_.Actions.CheckCharacter(); // one may have been put there since
        TextSpch->setText(Words(ProgramText::SpeechSample));
        TextSpch->setCursorPosition(0);
    }
    VSPitch->setAccessibleName(Label2->text());
    VSpeed->setAccessibleName(Label3->text());
    TextRpt->setAccessibleName(LabRpt->text());
    FillLanguages();
    LoadTips();
    if (isVisible()) {
        area_->FitWindow(); // the new texts may be longer
    }
}

void Settings::LoadTips() {
    const bool on = rooms_.Record.HelpTextOn != 0;
    ApplyTips(*this, rooms_.Texts, on ? TipTexts::Apply : TipTexts::Remove);
    ComDefault->setToolTip(on ? Words(ProgramText::UndoDefaults) : QString());
    ChkHidden->setToolTip(on ? Words(ProgramText::StartHiddenTip) : QString());
    for (QScrollBar* const bar : {VSRed, VSGreen, VSBlue}) {
        bar->setToolTip(on ? bar->accessibleName() : QString());
    }
    ShowSpeech(); // whose list tells, whether tips are on or not, why a character is not in it
}

void Settings::DoColor() {
    LabColour->update();
    rooms_.Actions.DoColor();
}

void Settings::Option_GotFocus(ColourRole role) {
    role_ = role;
    options_[static_cast<std::size_t>(role)]->setChecked(true);
    ShowBars();
}

void Settings::VSColour_Change(std::int16_t Colour::*component, int value) {
    rooms_.Record.Colours[static_cast<std::size_t>(role_)].*component =
        static_cast<std::int16_t>(kColourBarSum - value);
    DoColor();
}

// Whether the user has chosen a sound for the chime; one that cannot be played is told, and one
// whose path the settings file could not hold: its fields end at a comma.
bool Settings::TakeChimeFile() {
    if (!rooms_.Actions.SoundWorks()) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                           rooms_.Texts.Text(texts::kNoWaveSounds) + "\n" +
                               rooms_.Texts.Text(texts::kAtTheMoment),
                           DialogIcon::None});
        return false;
    }
    const std::string& now = rooms_.Record.ChimeSound;
    const auto path = rooms_.Boxes.OpenFile(now.empty() ? kSoundFolder : now,
                                            TextOf(rooms_.Texts, ProgramText::WaveFilter));
    if (!path) {
        return false;
    }
    const bool named = ToQt(*path).endsWith(QLatin1String(".wav"), Qt::CaseInsensitive) &&
                       path->find(',') == std::string::npos;
    const auto bytes = named ? rooms_.Files.Read(*path, kWaveLimit)
                             : Result<std::string>(Error{ErrorCode::Failed, *path});
    if (!bytes || !IsWave(bytes.Value())) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                           rooms_.Texts.Text(kFileOpenFault) + "\n" + *path, DialogIcon::Critical});
        return false;
    }
    rooms_.Record.ChimeSound = *path;
    return true;
}

void Settings::CombChimes_Click(int index) {
    const bool chime = index == static_cast<int>(ChimeType::Chime);
    if (!chime || TakeChimeFile()) {
        rooms_.Record.ChimeType = rooms_.Texts.Text(lists::kChimeTypes.Item(index));
        if (chime) {
            rooms_.Actions.MakeSound(rooms_.Record.ChimeSound);
        }
    }
    ShowChime();
}

std::string Settings::SpeechSample() const {
    return FromQt(TextSpch->text());
}

void Settings::CombCom_Click(int index) {
    rooms_.Record.ModemPort = rooms_.Texts.Text(lists::kModemPorts.Item(index));
    ComModem->setEnabled(index > 0);
    rooms_.Actions.PortChosen();
}

void Settings::CombLan_Click(int index) {
    if (index == CombLan->count() - 1) {
        FillLanguages();
        rooms_.Actions.OpenLanguageEditor();
    } else {
        beforeDefault_.reset(); // its choices are in words of the language before
        rooms_.Actions.ChangeLanguage(index);
    }
}

void Settings::CombChr_Click() {
    rooms_.Record.CharacterName = FromQt(CombChr->currentText());
    rooms_.Actions.LoadCharacter();
}

void Settings::TextRpt_Change() {
    if (IsRepeatMinutes(FromQt(TextRpt->text()))) {
        rooms_.Record.SpeakRepeat = FromQt(TextRpt->text());
    } else {
        TextRpt->setText(ToQt(rooms_.Record.SpeakRepeat));
        TextRpt->selectAll(); // as it was before the key, so that the next key replaces it
    }
}

void Settings::StepRepeat(int minutes) {
    const int stepped = std::clamp(TextRpt->text().toInt() + minutes, 2, kLongestRepeat);
    TextRpt->setText(QString::number(stepped));
    TextRpt_Change();
}

void Settings::Check4_Click() {
    rooms_.Record.StartOnBoot = static_cast<std::int16_t>(
        (Check[4]->isChecked() ? kStartsOnBoot : 0) | (ChkHidden->isChecked() ? kStartsHidden : 0));
    ChkHidden->setEnabled(Check[4]->isChecked());
}

void Settings::Check5_Click() {
    AppSettings& record = rooms_.Record;
    record.SpeechEnabled = Check[5]->isChecked() ? 1 : 0;
    record.CharacterName = FromQt(CombChr->currentText());
    if (record.SpeechEnabled == 0 || !rooms_.Actions.LoadCharacter()) {
        record.SpeechEnabled = 0;
        record.SpeakPicture = 0;
        record.SpeakWeekDay = 0;
        record.SpeakDate = 0;
    }
    for (std::size_t i = 5; i <= 8; ++i) {
        Check[i]->setChecked(i == 5 && record.SpeechEnabled != 0);
    }
    ShowSpeech();
    rooms_.Actions.CheckSpeech();
}

void Settings::Check10_Click() {
    rooms_.Record.HelpTextOn = Check[10]->isChecked() ? 1 : 0;
    LoadTips();
    rooms_.Actions.ShowChoices();
}

void Settings::ComModem_Click() {
    setEnabled(false);
    const auto found = rooms_.Actions.FindModem();
    setEnabled(true);
    ComModem->setFocus(); // which being disabled has taken
    std::string text = found ? TextOf(rooms_.Texts, ProgramText::ModemFound, found.Value())
                             : rooms_.Texts.Text(kModemNotFound);
    if (!found && !found.Failure().Text.empty()) {
        text += "\n" + found.Failure().Text;
    }
    rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle), text,
                       found ? DialogIcon::None : DialogIcon::Critical});
    ShowRecord();
}

void Settings::ComCngYr_Click() {
    rooms_.Actions.ChangeYear();
    hide();
}

void Settings::ComDefault_Click() {
    if (!beforeDefault_) {
        beforeDefault_ = rooms_.Record; // what a second click finds are the defaults
    }
    SetDefault(rooms_.Record);
    TakeEffect();
}

void Settings::UndoDefault() {
    if (beforeDefault_) {
        rooms_.Record = *std::exchange(beforeDefault_, std::nullopt);
        TakeEffect();
    }
}

void Settings::TakeEffect() {
    ShowRecord();
    LoadTips();
    rooms_.Actions.ShowChoices();
    rooms_.Actions.DateOrderChanged();
    DoColor();
}

void Settings::ComFormat_Click() {
    const bool format =
        rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kMessengerTitle),
                          rooms_.Texts.Text(kFormatWarning) + "\n" + rooms_.Texts.Text(kFormatLoss),
                          DialogIcon::Critical},
                         {{}, {}, DefaultAnswer::No});
    if (format) {
        Check[4]->setChecked(false);
        Check4_Click();
        rooms_.Actions.FormatData();
    }
}

void Settings::ComSet_Click() {
    if (rooms_.Actions.SaveSettings()) {
        beforeDefault_.reset();
        hide();
    }
}

bool Settings::eventFilter(QObject* watched, QEvent* event) {
    if (watched == TextRpt && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            StepRepeat(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn) {
        const auto option = std::find(options_.begin(), options_.end(), watched);
        if (option != options_.end()) {
            Option_GotFocus(static_cast<ColourRole>(option - options_.begin()));
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace kestrova
