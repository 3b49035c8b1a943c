// SPDX-License-Identifier: GPL-3.0-or-later
// Every window in every language: no control cuts its text. Run at other scales by QT_SCALE_FACTOR.
#include "app/ui/FormCal.h"
#include "diary/DiaryScene.h"
#include "diary/EditorScene.h"
#include "diary/ui/Diary.h"
#include "diary/ui/DiaryFinder.h"
#include "diary/ui/ScreenReminder.h"
#include "diary/ui/SlimComboBox.h"
#include "fakes/CountingBeeper.h"
#include "fakes/FakeMedia.h"
#include "fakes/SilentSpeaker.h"
#include "language/ItemLists.h"
#include "language/LanguageFile.h"
#include "language/ui/LanEditor.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/qt/QtText.h"
#include "settings/ui/Settings.h"
#include "ui/ElidedLabel.h"

#include <QGroupBox>
#include <QMenuBar>
#include <QStyleOptionComboBox>
#include <QTest>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

struct NoShell : Shell {
    Status OpenPage(const std::string& path) override { return Error{ErrorCode::NotFound, path}; }
};

struct NoActions : SettingsActions {
    void DoColor() override {}
    void ShowChoices() override {}
    void DateOrderChanged() override {}
    void ChangeLanguage(int /*index*/) override {}
    void OpenLanguageEditor() override {}
    [[nodiscard]] std::vector<std::string> Characters() const override { return {"Kes.acs"}; }
    bool LoadCharacter() override { return true; }
    void Talk(const std::string& /*text*/) override {}
    Result<std::string> FindModem() override { return Error{ErrorCode::NotFound, {}}; }
    void PortChosen() override {}
    void CheckCharacter() override {}
    void CheckSpeech() override {}
    std::vector<std::string> LeftOutCharacters() const override { return {}; }
    bool SoundWorks() const override { return true; }
    void MakeSound(const std::string& /*path*/) override {}
    void ChangeYear() override {}
    void FormatData() override {}
    bool SaveSettings() override { return true; }
};

// Every window of the program, in one of the languages that ship.
struct Windows : DiaryScene {
    explicit Windows(int language) {
        const auto bytes = PosixFileStore().Read(SHIPPED_LANGUAGES, kLanguageFileLimit);
        Files.Put("/home/me/Lan.dat", bytes ? bytes.Value() : "");
        int index = language;
        Tongues.GetLanguage(index);
        EXPECT_EQ(index, language);
        Settings = FirstSettings(Texts);
        Settings.LanguageIndex = static_cast<std::int16_t>(language);
        Settings.SpeechEnabled = 1;
    }

    Selection Dates{2026, 2026, 8, 14, 8, 14}; // September has the longest name in most languages
    AppSettings Settings;
    Languages Tongues{Files, "/home/me/Lan.dat", Texts};
    PictureTable Pictures;
    std::string Folder = kFolder;
    SilentSpeaker Speech;
    FakeMediaDevices Devices;
    CountingBeeper Bell;
    MediaService Media{{Devices, Files, Bell, Texts, Settings}, [](const std::string&) {}};
    NoShell Desktop;
    PieceFiles Pieces{Files, PlainScratchWriter(Files), kFolder};
    SetDetails Details;
    NoActions Actions;
    SharedDiaries Shared{{Files, Clock, OnDisc, Texts, Probe}};
    EventEditor Editor{{Store, Dates, Texts, Settings, Boxes, Details}};
};

// The width that a control has for its text, and the text; nothing for one that shows no text of
// the program's or breaks it into lines.
struct Shown {
    QString Text;
    int Room = 0;
};

std::vector<Shown> ShownBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const int room = label->contentsRect().width() - std::max(label->indent(), 0);
        return {{label->text(), label->wordWrap() ? 10 * room : room}};
    }
    if (const auto* slim = dynamic_cast<const SlimComboBox*>(&widget)) {
        for (int i = 0; i < slim->count(); ++i) {
            EXPECT_TRUE(slim->Fits(slim->itemText(i))) << FromQt(slim->itemText(i));
        }
        return {};
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(list);
        option.subControls = QStyle::SC_All;
        const int room =
            list->style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
                .width();
        // Entries of the string table are chosen from a list; they are read in the box below it.
        const bool entries = list->objectName() == QStringLiteral("CombSel");
        std::vector<Shown> shown;
        for (int i = 0; !entries && i < list->count(); ++i) {
            shown.push_back({list->itemText(i), room});
        }
        return shown;
    }
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    if (button != nullptr && !button->text().isEmpty()) {
        const int around = button->sizeHint().width() -
                           button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        return {{button->text(), button->width() - around}};
    }
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
        return {{frame->title(), frame->width()}};
    }
    return {};
}

void ExpectNothingIsCut(QWidget& window) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window) {
            continue;
        }
        for (const Shown& shown : ShownBy(*widget)) {
            const int wide = widget->fontMetrics().size(Qt::TextShowMnemonic, shown.Text).width();
            EXPECT_LE(wide, shown.Room)
                << FromQt(window.objectName()) << "." << FromQt(widget->objectName()) << ": "
                << FromQt(shown.Text);
        }
        if (qobject_cast<const QLabel*>(widget) != nullptr) {
            EXPECT_LE(widget->fontMetrics().ascent(), widget->height())
                << FromQt(widget->objectName());
        }
    }
    if (const auto* menus = window.findChild<QMenuBar*>()) {
        EXPECT_LE(menus->sizeHint().width(), window.width());
    }
}

class LanguageRenderTest : public testing::TestWithParam<int> {};

TEST_P(LanguageRenderTest, TheMonth) {
    Windows all(GetParam());
    FormCal month(
        {all.Dates, all.Texts, all.Settings, all.Store, all.Tongues, all.Pictures, all.Folder,
         all.Speech, all.Media, all.Boxes, all.Desktop, all.Clock, all.Pieces, all.Files},
        {[](int) {}, [] {}, [] {}, [] {}, [] {}, [] {}, [](int) {}, [] {}, [] {}, [](int) {}, [] {},
         [] {}, [] {}, [] {}, [] {}, [] {}, [] {}, [](bool) {}, [] { return true; }});
    month.LoadCaptions();
    for (const QSize size : {QSize(640, 480), QSize(1200, 664)}) {
        month.resize(size);
        month.show();
        ExpectNothingIsCut(month);
    }
}

TEST_P(LanguageRenderTest, TheDayItsNoteAndTheReminders) {
    Windows all(GetParam());
    const DayPlace day{14, 8, 0};
    for (int kind = 0; kind < lists::kRepeatKinds.Count; ++kind) {
        all.Insert(day, MakeEvent(8 + kind, 0, "x", all.Texts.Text(lists::kRepeatKinds.Item(kind)),
                                  all.Texts.Text(lists::kReminderKinds.Item(kind))));
    }
    all.Insert(day, MakeEvent(15, 0, "x", all.Texts.Text(lists::kRepeatKinds.First),
                              all.Texts.Text(lists::kReminderKinds.Item(5))));
    Diary page(nullptr,
               {all.Dates, all.Texts, all.Settings, all.Store, all.Shared, all.Editor, all.Clock,
                all.Boxes},
               {[] {}, [](const std::string&) {}, [] {}, [] {}, [] {}, [] {}, [] {}});
    page.OpenPage();
    ExpectNothingIsCut(page);
    QTest::mouseClick(page.findChild<QLabel*>(QStringLiteral("LabEvent(2)")), Qt::LeftButton);
    ExpectNothingIsCut(page);
    QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("ComInfo")), Qt::LeftButton);
    auto* const note = page.findChild<QDialog*>(QStringLiteral("Edit"));
    ASSERT_NE(note, nullptr);
    ExpectNothingIsCut(*note);

    ScreenReminder reminder(all.Texts, {[] {}, [](int) {}});
    reminder.ShowLines({"09:00  x"});
    for (const int width : {reminder.width(), reminder.minimumWidth()}) {
        reminder.resize(width, reminder.height());
        ExpectNothingIsCut(reminder);
    }

    DiaryFinder finder(&page, {all.Dates, all.Texts, all.Store},
                       {[](const DiarySearch::Event&) {},
                        [](const auto&, const auto&, const auto&) { return NoteTexts(); }});
    finder.Open(&page);
    finder.resize(finder.minimumSize());
    for (const char* const typed : {"", "x", "nowhere"}) {
        finder.findChild<QLineEdit*>()->setText(QLatin1String(typed));
        ExpectNothingIsCut(finder);
    }
}

TEST_P(LanguageRenderTest, SettingsAndTheLanguageEditor) {
    Windows all(GetParam());
    Settings settings(nullptr,
                      {all.Settings, all.Texts, all.Tongues, all.Files, all.Boxes, all.Actions});
    settings.ShowSettings();
    ExpectNothingIsCut(settings);
    LanEditor editor(nullptr, {all.Texts, all.Tongues, all.Boxes},
                     {[](const StringTable&) {}, [] {}, [] {}});
    editor.Open("x", WeekStart::Monday);
    ExpectNothingIsCut(editor);
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, LanguageRenderTest, testing::Range(0, kFixedLanguages),
                         [](const testing::TestParamInfo<int>& language) {
                             return std::string(
                                 FixedLanguages()[static_cast<std::size_t>(language.param)].Locale);
                         });

} // namespace
} // namespace kestrova
