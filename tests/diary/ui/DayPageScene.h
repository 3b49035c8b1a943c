// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryScene.h"
#include "diary/ui/Diary.h"
#include "platform/qt/QtText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrova {

inline constexpr DayPlace kDay{14, 4, 0};

struct NoDetails : ReminderDetails {
    ModemState Modem() const override { return ModemState::Off; }
    bool MailWorks() const override { return false; }
    bool SoundWorks() const override { return false; }
    bool VideoWorks() const override { return false; }
    bool CdWorks() const override { return false; }
    DetailsAnswer AskPhoneNumbers(ReminderExtra& /*extra*/) override {
        return DetailsAnswer::SwitchedOff;
    }
    DetailsAnswer AskMailAddress(ReminderExtra& /*extra*/) override {
        return DetailsAnswer::SwitchedOff;
    }
    void Preview(const std::string& /*path*/) override {}
};

// The day page of 14 May 2026 on a diary in memory.
struct DayPageScene : DiaryScene {
    Selection Dates{2026, 2026, kDay.Month, kDay.Day, 4, 13};
    AppSettings Settings = FirstSettings(Texts);
    NoDetails Details;
    EventEditor Editor{{Store, Dates, Texts, Settings, Boxes, Details}};
    SharedDiaries Shared{{Files, Clock, OnDisc, Texts, Probe}};
    int Changes = 0;
    int Searches = 0;
    std::vector<std::string> Spoken;
    std::string PicturesAsked; // M and D
    std::string Exchanges;     // E and I
    Diary Window{
        nullptr,
        {Dates, Texts, Settings, Store, Shared, Editor, Clock, Boxes},
        {[this] { ++Changes; }, [this](const std::string& text) { Spoken.push_back(text); },
         [this] { PicturesAsked += 'M'; }, [this] { PicturesAsked += 'D'; }, [this] { ++Searches; },
         [this] { Exchanges += 'E'; }, [this] { Exchanges += 'I'; }}};

    DayPageScene() {
        Window.OpenPage();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window));
    }

    template<typename Control> [[nodiscard]] Control* Find(const char* name) const {
        auto* const control = Window.findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    [[nodiscard]] std::string Text(const char* label) const {
        return FromQt(Find<QLabel>(label)->text());
    }

    void Click(const char* label) { QTest::mouseClick(Find<QLabel>(label), Qt::LeftButton); }

    // The note window and its editor, once they have been opened.
    [[nodiscard]] QDialog* NoteWindow() const { return Find<QDialog>("Edit"); }
    [[nodiscard]] QPlainTextEdit* NoteText() const { return Find<QPlainTextEdit>("TextEditor"); }

    // Types a new event and accepts it by Enter.
    void Add(const char* hour, const char* msg) {
        Click("LabEvent(0)");
        Find<QLineEdit>("TextTme")->setText(QLatin1String(hour));
        QTest::keyClicks(Find<QLineEdit>("TextMsg"), QLatin1String(msg));
        QTest::keyClick(Find<QLineEdit>("TextMsg"), Qt::Key_Return);
    }
};

} // namespace kestrova
