// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/Program.h"

#include "app/Navigation.h"
#include "diary/RollOver.h"
#include "language/Texts.h"
#include "mail/Invitation.h"
#include "platform/posix/ComPorts.h"
#include "platform/posix/FolderAnswers.h"
#include "platform/qt/DataFolder.h"
#include "settings/ListChoices.h"

#include <QApplication>
#include <QTimer>

#include <utility>

namespace kestrova {

namespace {

constexpr int kTickMilliseconds = 500;

} // namespace

Program::Program(Orders orders, InstanceLink& link)
    : dataFolder_(std::move(orders.DataFolder)), mediaFile_(std::move(orders.MediaFile)),
      link_(link),
      serial_([this](int number) { return ComPort(number, dataFolder_, SerialDevices()); }),
      phone_({serial_, loop_, speech_, files_, dialogs_, texts_, settings_, dataFolder_,
              [this]() -> CallScreen& { return ModemWindow(); }}),
      mailModule_(MailModule::ShippedPath()),
      mail_({mailModule_, mailModule_, files_, clock_, loop_, dialogs_, texts_},
            dataFolder_ + "Mail.dat", [this](const std::string& text) { Tell(text); }),
      mediaDevices_(MediaModule::ShippedPath(), std::move(orders.CdDevice)),
      voices_(SpeechModule::ShippedPath()), calendarFiles_(CalendarModule::ShippedPath()),
      stage_(voices_), texts_(MsgDefaults()), settings_(FirstSettings(texts_)),
      speech_({voices_, mediaDevices_, stage_, loop_, clock_, files_, dialogs_, shell_, texts_,
               settings_, dataFolder_, std::string(kWebAddress)}),
      media_({mediaDevices_, files_, beeper_, texts_, settings_},
             [this](const std::string& text) { Tell(text); }),
      pieces_(files_, PlainScratchWriter(files_), dataFolder_),
      languages_(files_, dataFolder_ + "Lan.dat", texts_),
      settingsStore_(files_, clock_, dialogs_, texts_, dataFolder_ + "Settings.dat"),
      shortCut_(files_, dataFolder_, AutostartFolder(), ExecutablePath()),
      diaryFiles_(files_, clock_), probe_(dataFolder_, FolderAnswers),
      store_(diaryFiles_, dialogs_, texts_, probe_, [this] { End(); }),
      shared_({files_, clock_, diaryFiles_, texts_, probe_}),
      exchange_({files_, store_, calendarFiles_, clock_, texts_}),
      exchangeDialogs_({exchange_, dialogs_, texts_, dates_}),
      yearTurn_({store_, settingsStore_, settings_, dates_, dialogs_, texts_, dataFolder_}),
      editor_({store_, dates_, texts_, settings_, dialogs_, *this}),
      review_({store_, dates_, texts_, settings_, speech_, phone_, mail_.Reminders(), media_, loop_,
               beeper_}),
      tick_({clock_, store_, dates_, texts_, settings_, dataFolder_, review_, speech_, media_,
             beeper_, *this}),
      reminderNotice_(notifier_, texts_,
                      {[this] {
                           if (screenReminder_) {
                               screenReminder_->BringUp();
                           }
                       },
                       [this](int minutes) {
                           if (screenReminder_) {
                               screenReminder_->Snooze(minutes);
                           }
                       }}),
      print_({files_, dialogs_, dates_, texts_, settings_, pictures_, store_, dataFolder_},
             [this] { KeepPrintChoices(); }),
      formCal_({dates_, texts_, settings_, store_, languages_, pictures_, dataFolder_, speech_,
                media_, dialogs_, shell_, clock_, pieces_, files_},
               {[this](int day) { OpenDiary(day); }, [this] { OpenFinder(); },
                [this] { OpenSettings(); }, [this] { KeepMenuChoices(); },
                [this] { KeepVideoChoices(); }, [this] { ShowVideoChoices(); },
                [this](int index) { ChangeLanguage(index); }, [this] { ReloadLanguage(); },
                [this] { FirstDrawn(); },
                [this](int minutes) { tick_.SetReturnCountdown(minutes); },
                [this] { HideSettings(); }, [this] { ChPic({}); }, [this] { SavePic(); },
                [this] { mail_.TellAFriend(); }, [this] { mail_.OpenAccount(); },
                [this] { print_.MNU_Preview_Click(); }, [this] { print_.MNU_PrDiary_Click(); },
                [this](bool on) { print_.MNU_Pdf_Click(on); }, [this] { return Quit(); }}) {
    stage_.SetNeighbour(&formCal_);
    Timer1.setInterval(kTickMilliseconds);
    QObject::connect(&Timer1, &QTimer::timeout, &Timer1, [this] {
        tick_.Timer1_Timer();
        phone_.Tick(std::chrono::steady_clock::now());
    });
    FillStartUp();
}

Program::~Program() {
    Timer1.stop();
}

int Program::Run(FirstShow show) {
    startUp_.Run([this] { return !ended_; });
    if (ended_) {
        return 0;
    }
    if (show == FirstShow::Shown) {
        formCal_.show();
    } else {
        FirstDrawn(); // reminders do not wait for a window
    }
    link_.OnPoke([this](std::string_view text) { RunCheck_Change(text); });
    return ended_ ? 0 : QApplication::exec();
}

// Leaving the event loop asks no window whether it wants to close, as quitting would. Loops that
// wait for an answer to a message are left with it, also those before the main one has begun.
void Program::End() {
    ended_ = true;
    review_.End();
    phone_.End(); // a call hangs up
    if (diary_) {
        // What the user has typed into a note is theirs, like any note that has been left.
        diary_->SaveNote(SaveMessages::Keep);
    }
    QApplication::exit(0);
}

bool Program::Quit() {
    const bool leaves = print_.Close();
    if (leaves) {
        End();
    }
    return leaves;
}

void Program::FillStartUp() {
    FillFirstSteps();
    FillDiarySteps();
    FillLastSteps();
}

void Program::FillFirstSteps() {
    startUp_.Fill(StartUpStep::Going, [this] {
        runCheck_ = kInstanceRunning;
        Timer1.start();
    });
    startUp_.Fill(StartUpStep::GetPaths, [this] { GetPaths(); });
    startUp_.Fill(StartUpStep::MsgDefaults, [this] { texts_ = MsgDefaults(); });
    startUp_.Fill(StartUpStep::ReadSettings, [this] {
        // A settings file that is not there yet has the present year as the diary's.
        settings_.DataYear = static_cast<std::int16_t>(clock_.Now().Year);
        settingsStore_.GetSettings(settings_);
        kept_ = settings_;
    });
    startUp_.Fill(StartUpStep::GetLanguage, [this] { ReloadLanguage(); });
    startUp_.Fill(StartUpStep::FileCleanUp, [this] { speech_.FileCleanUp(); });
    startUp_.Fill(StartUpStep::CheckCharacter, [this] {
        speech_.CheckCharacter();
        kept_.CharacterName = settings_.CharacterName;
    });
    startUp_.Fill(StartUpStep::LoadCaptions, [this] { LoadCaptions(); });
    startUp_.Fill(StartUpStep::AgentIni, [this] { speech_.AgentIni(); });
    startUp_.Fill(StartUpStep::ApplySettings, [this] { formCal_.ApplySettings(); });
    // The entry only serves a later "Start on Boot Up", which tells when it cannot be written.
    startUp_.Fill(StartUpStep::GetShortCut, [this] { (void)shortCut_.GetShortCut(settings_); });
}

void Program::FillDiarySteps() {
    startUp_.Fill(StartUpStep::BaseYear, [this] { yearTurn_.SetBaseYear(clock_.Now().Year); });
    startUp_.Fill(StartUpStep::PictureTables, [this] {
        ReadTodayFromClock();
        pictures_ = ScanPictures(files_, dataFolder_, dates_);
    });
    startUp_.Fill(StartUpStep::GetData, [this] { store_.GetData(dataFolder_); });
    startUp_.Fill(StartUpStep::YearUpdate, [this] {
        yearTurn_.YearUpdate();
        tick_.SetFirstDraw(true);
    });
    startUp_.Fill(StartUpStep::PastRemindersOff, [this] {
        const WallTime now = clock_.Now();
        if (now.Year != dates_.BaseYear) {
            return;
        }
        if (PastRemindersOff(store_.Table(), texts_, now.Month, now.Day) == 0) {
            return;
        }
        (void)store_.Change([this, now](EventList& events) {
            PastRemindersOff(events.Table(), texts_, now.Month, now.Day);
            return EditVerdict::Save;
        });
    });
}

void Program::FillLastSteps() {
    startUp_.Fill(StartUpStep::Today, [this] {
        ReadTodayFromClock();
        ShowToday(dates_);
    });
    startUp_.Fill(StartUpStep::PictureSoundsCd, [this] {
        formCal_.GetPicture();
        media_.SoundIni();
        media_.MusicIni();
        formCal_.ShowMedia();
    });
    startUp_.Fill(StartUpStep::Character, [this] {
        if (settings_.SpeechEnabled != 0) {
            speech_.LoadMerlin();
        }
        if (settings_.SpeechEnabled == 0) {
            settings_.SpeakPicture = 0;
            settings_.SpeakWeekDay = 0;
            settings_.SpeakDate = 0;
        }
    });
    startUp_.Fill(StartUpStep::SharedDiaries, [this] { tick_.Begin(); });
}

void Program::GetPaths() {
    for (const char* const name : {"Images", "DiaryDat", "Speech", "Help"}) {
        // Whatever cannot be made shows itself, with a message, when something is kept there.
        (void)files_.MakeFolder(dataFolder_ + name);
    }
    files_.RemoveLeftovers(dataFolder_);
    pieces_.RemoveLeftovers();
}

void Program::ModemCheck() {
    // The probe waits for the modem's answers, for which the window does not; no tick is to come in
    // between.
    Timer1.stop();
    if (HasModemPort(settings_) && !phone_.ModemPresent()) {
        settings_.ModemPort = texts_.Text(texts::kModemPorts);
    }
    Timer1.start();
}

void Program::ReadTodayFromClock() {
    const WallTime now = clock_.Now();
    ReadToday(dates_, now.Month, now.Day,
              settings_.SwapDayMonth ? DayMonthOrder::Swapped : DayMonthOrder::AsGiven);
}

void Program::LoadCaptions() {
    formCal_.LoadCaptions();
    if (diary_) {
        diary_->LoadCaptions();
    }
    if (screenReminder_) {
        screenReminder_->LoadCaptions();
    }
    if (finder_) {
        finder_->LoadCaptions();
    }
    if (settingsWindow_) {
        settingsWindow_->LoadCaptions();
    }
    if (lanEditor_) {
        lanEditor_->LoadCaptions();
    }
    if (modemWindow_) {
        modemWindow_->LoadCaptions();
    }
    mail_.LoadCaptions();
    print_.LoadCaptions();
    toolkitTexts_.Use(FixedLanguages()[static_cast<std::size_t>(texts_.ProgramLanguage)].Locale);
}

void Program::ReloadLanguage() {
    int index = settings_.LanguageIndex;
    languages_.GetLanguage(index);
    settings_.LanguageIndex = static_cast<std::int16_t>(index);
    SettleChoices();
    LoadCaptions();
}

// Choices are held by their texts, which a language file may have changed since.
void Program::SettleChoices() {
    const auto find = [this](const ItemList& list, std::string_view text) {
        return languages_.IndexInAny(list, text);
    };
    kestrova::SettleChoices(settings_, texts_, find);
    kestrova::SettleChoices(kept_, texts_, find);
}

// A choice made in a menu is kept at once; those made in the settings window wait for "O.K.".
void Program::KeepMenuChoices() {
    kept_.Week = settings_.Week;
    kept_.LanguageIndex = settings_.LanguageIndex;
    (void)settingsStore_.SaveSettings(kept_); // shows its failure
    if (settingsWindow_ && settingsWindow_->isVisible()) {
        settingsWindow_->ShowRecord();
    }
}

void Program::KeepVideoChoices() {
    kept_.VideoFullScreen = settings_.VideoFullScreen;
    kept_.VideoRepeat = settings_.VideoRepeat;
    KeepMenuChoices();
}

void Program::KeepPrintChoices() {
    kept_.PrintNumber1 = settings_.PrintNumber1;
    kept_.PrintNumber2 = settings_.PrintNumber2;
    KeepMenuChoices();
}

// What a reminder sets holds until the user chooses anew.
void Program::ShowVideoChoices() {
    formCal_.ApplySettings();
    if (settingsWindow_ && settingsWindow_->isVisible()) {
        settingsWindow_->ShowRecord();
    }
}

void Program::ChangeLanguage(int index) {
    const StringTable before = texts_;
    const bool loaded = languages_.ChangeLanguage(index);
    settings_.LanguageIndex = static_cast<std::int16_t>(index);
    for (AppSettings* const record : {&settings_, &kept_}) {
        TranslateChoices(*record, before, texts_);
        if (loaded && !texts_.LanguageFont.empty()) {
            for (PrintStyle& style : record->PrintStyles) {
                style.FontName = texts_.LanguageFont;
            }
        }
    }
    SettleChoices();
    LoadCaptions();
    formCal_.Redraw(FormCal::kSameMonth);
    KeepMenuChoices();
    CheckSpeech();
}

void Program::CheckSpeech() {
    if (settings_.SpeechEnabled != 0) {
        speech_.CheckSpeech(settings_.LanguageIndex);
    }
}

// Choices are held by their texts, so they follow texts that change.
void Program::TextsChanged(const StringTable& before) {
    TranslateChoices(settings_, before, texts_);
    TranslateChoices(kept_, before, texts_);
    LoadCaptions();
    formCal_.Redraw(FormCal::kSameMonth);
}

void Program::LanguageSaved() {
    const StringTable before = texts_;
    ReloadLanguage();
    TextsChanged(before);
}

void Program::FirstDrawn() {
    if (std::exchange(firstDrawn_, true)) {
        return; // a program that has waited hidden is shown
    }
    tick_.SetFirstDraw(false);
    // The window is to be seen before a delivery makes the pass wait.
    QTimer::singleShot(0, &formCal_, [this] {
        ModemCheck();
        if (ended_) {
            return;
        }
        if (!mediaFile_.empty()) {
            media_.PlayReminder(mediaFile_);
        }
        tick_.DoTimer();
    });
}

// Whoever has something to tell may be in the middle of a pass with more to deliver, which must not
// wait for the user.
void Program::Tell(const std::string& text) {
    notice_.Tell(ToQt(texts_.Text(texts::kMessengerTitle)), ToQt(text));
}

// The main window that gets the focus has the screen to itself. Nothing is lost with the settings:
// each choice has been taken.
void Program::HideSettings() {
    if (settingsWindow_) {
        settingsWindow_->hide();
    }
}

void Program::RunCheck_Change(std::string_view text) {
    // Each poke is an event of its own here, also one that comes before a tick has emptied the
    // item.
    runCheck_ = text;
    if (text == kInstancePoke) {
        formCal_.ShowNormal();
    }
}

void Program::TodayMoved(bool wasShown) {
    reminderNotice_.Done(); // the same words on another day are another reminder
    if (wasShown) {
        ShowToday(dates_);
        formCal_.GetPicture();
    }
    ShowDiaryChanges();
}

void Program::ReturnToToday() {
    ShowToday(dates_);
    formCal_.GetPicture();
    formCal_.Redraw(dates_.PageMonth);
}

bool Program::MailWorks() const {
    return !mail_.Reminders().MailFailed();
}

DetailsAnswer Program::AskPhoneNumbers(ReminderExtra& extra) {
    return ModemWindow().AskPhoneNumbers(extra);
}

DetailsAnswer Program::AskMailAddress(ReminderExtra& extra) {
    return mail_.AskMailAddress(extra);
}

} // namespace kestrova
