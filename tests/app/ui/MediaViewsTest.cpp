// SPDX-License-Identifier: GPL-3.0-or-later
// The media panel and the views of the main window.
#include "app/ui/FormCal.h"

#include "diary/DiaryScene.h"
#include "fakes/CountingBeeper.h"
#include "fakes/FakeMedia.h"
#include "fakes/SilentSpeaker.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/qt/QtText.h"

#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QMessageBox>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

struct NoShell : Shell {
    Status OpenPage(const std::string& /*path*/) override { return Done{}; }
};

// The main window on a machine with a drive.
struct PanelScene : DiaryScene {
    Selection Dates{2026, 2026, 4, 14, 4, 14};
    AppSettings Settings = FirstSettings(Texts);
    Languages Tongues{Files, "/home/me/Lan.dat", Texts};
    PictureTable Pictures;
    std::string Folder = kFolder;
    SilentSpeaker Speech;
    FakeMediaDevices Devices;
    CountingBeeper Bell;
    MediaService Media{{Devices, Files, Bell, Texts, Settings}, [](const std::string&) {}};
    NoShell Desktop;
    QTemporaryDir Scratch; // pieces are read back from a real disc
    PosixFileStore Disc;
    PieceFiles Pieces{Disc, PlainScratchWriter(Disc), FromQt(Scratch.path()) + "/"};
    FormCal Window{{Dates, Texts, Settings, Store, Tongues, Pictures, Folder, Speech, Media, Boxes,
                    Desktop, Clock, Pieces, Files},
                   {[](int) {}, [] {}, [] {}, [] {}, [] {}, [] {}, [](int) {}, [] {}, [] {},
                    [](int) {}, [] {}, [] {}, [] {}, [] {}, [] {}, [] {}, [] {}, [](bool) {},
                    [] { return true; }}};

    explicit PanelScene(const std::string& drive = "/dev/cdrom") {
        Devices.Installed = true;
        Devices.Drive = drive;
        Media.SoundIni();
        Media.MusicIni();
        Window.LoadCaptions();
        Window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window));
    }

    template<typename Control = QWidget> [[nodiscard]] Control* Find(const char* name) const {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (auto* const found = window->findChild<Control*>(QLatin1String(name))) {
                return found;
            }
        }
        ADD_FAILURE() << name;
        return nullptr;
    }

    [[nodiscard]] bool Sees(const char* name) const { return Find(name)->isVisible(); }

    [[nodiscard]] static QWidget* FullView() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("FullView") && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }

    // A film that shows its first picture.
    void PlayFilm() {
        Media.PlayFile("/film.avi");
        Devices.Films->Length = 60;
        Devices.Films->On.Moved();
        Devices.Films->On.FrameReady();
    }

    void OpenFileMenu() {
        auto* const menu = Window.findChild<QMenu*>(QStringLiteral("MNU_File"));
        menu->popup(QPoint());
        menu->hide();
    }
};

TEST(MediaViewsTest, ThePanelIsThereOnlyForWhatThereIsToPlay) {
    const PanelScene cd;
    EXPECT_TRUE(cd.Sees("ChkCD"));
    EXPECT_FALSE(cd.Find("Ctrl(2)")->isEnabled());
    EXPECT_EQ(cd.Find<QCheckBox>("ChkCD")->text(), QStringLiteral("Off"));
    cd.Find<QCheckBox>("ChkCD")->click();
    EXPECT_EQ(cd.Find<QCheckBox>("ChkCD")->text(), QStringLiteral("On"));
    QTest::mouseClick(cd.Find("Ctrl(2)"), Qt::LeftButton);
    EXPECT_EQ(cd.Devices.Cd->Told, "op");

    PanelScene bare("");
    EXPECT_FALSE(bare.Window.findChild<QWidget*>(QStringLiteral("MediaBar"))->isVisible());
    bare.PlayFilm();
    EXPECT_TRUE(bare.Window.findChild<QWidget*>(QStringLiteral("MediaBar"))->isVisible());
    EXPECT_FALSE(bare.Window.findChild<QWidget*>(QStringLiteral("ChkCD"))->isVisible());
    bare.Window.findChild<QSlider*>(QStringLiteral("MediaPosition"))->setValue(305);
    EXPECT_DOUBLE_EQ(bare.Devices.Films->Now, 30.5);
}

TEST(MediaViewsTest, AFilmCoversThePictureAndTheMenusFollow) {
    PanelScene scene;
    EXPECT_FALSE(scene.Sees("Video"));
    scene.PlayFilm();
    EXPECT_TRUE(scene.Sees("Video"));
    EXPECT_EQ(scene.Find("Video")->size(), scene.Find("Image1")->size());
    scene.OpenFileMenu();
    EXPECT_FALSE(scene.Find<QAction>("MNU_Half")->isEnabled());
    QTest::keyClick(&scene.Window, Qt::Key_Space);
    EXPECT_TRUE(scene.Devices.Films->Paused);
    scene.Devices.Films->End(MediaEnd::Finished);
    EXPECT_FALSE(scene.Sees("Video"));
    scene.OpenFileMenu();
    EXPECT_TRUE(scene.Find<QAction>("MNU_Half")->isEnabled());
}

TEST(MediaViewsTest, HalfAndFullViewComeAndGo) {
    PanelScene scene;
    scene.Find<QAction>("MNU_Half")->trigger();
    EXPECT_FALSE(scene.Sees("LabCurMth"));
    scene.OpenFileMenu();
    EXPECT_TRUE(scene.Find<QAction>("MNU_Half")->isChecked());
    QTest::keyClick(&scene.Window, Qt::Key_F11);
    ASSERT_NE(PanelScene::FullView(), nullptr);
    EXPECT_EQ(scene.Find("Image1")->window(), PanelScene::FullView());
    QTest::keyClick(PanelScene::FullView(), Qt::Key_Escape);
    EXPECT_EQ(PanelScene::FullView(), nullptr);
    EXPECT_EQ(scene.Find("Image1")->window(), &scene.Window);
    EXPECT_FALSE(scene.Sees("LabCurMth")) << "one view back";
    QTest::keyClick(&scene.Window, Qt::Key_Escape);
    EXPECT_TRUE(scene.Sees("LabCurMth"));

    scene.Settings.VideoFullScreen = 1;
    scene.PlayFilm();
    ASSERT_NE(PanelScene::FullView(), nullptr);
    QTest::mouseDClick(scene.Find("Video"), Qt::LeftButton);
    EXPECT_EQ(PanelScene::FullView(), nullptr);
    scene.Media.LabMusic_DblClick();
    PanelScene::FullView()->close();
    EXPECT_EQ(PanelScene::FullView(), nullptr) << "closed by the window manager";
    EXPECT_TRUE(scene.Sees("Video")) << "the film goes on in the window";
    scene.Media.LabMusic_DblClick();
    QMessageBox over(PanelScene::FullView());
    over.show();
    scene.Devices.Films->End(MediaEnd::Finished);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(PanelScene::FullView(), nullptr);
    EXPECT_TRUE(over.isVisible()) << "a message is not taken away unread";
}

TEST(MediaViewsTest, AGameAndAFilmGiveWayToOneAnother) {
    PanelScene scene;
    QImage picture(90, 90, QImage::Format_RGB888);
    picture.fill(Qt::darkCyan);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("May.png"));
    ASSERT_TRUE(picture.save(path));
    scene.Pictures.MonthPicture[4] = FromQt(path);
    scene.PlayFilm();
    scene.Find<QAction>("MNU_Large")->trigger();
    EXPECT_TRUE(scene.Sees("LabCurMth"));
    scene.Find<QAction>("MNU_GmJigSaw")->trigger();
    EXPECT_TRUE(scene.Boxes.Shown.empty());
    EXPECT_FALSE(scene.Devices.Films->Playing);
    EXPECT_FALSE(scene.Sees("LabCurMth")) << "a large game has the window";
    scene.PlayFilm();
    EXPECT_TRUE(scene.Find("Video")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(scene.Devices.Films->Paused);
    scene.Devices.Films->End(MediaEnd::Finished);
    EXPECT_FALSE(scene.Find("Video")->hasFocus()) << "the game goes on";
    scene.Find<QAction>("MNU_GmQuit")->trigger();
    EXPECT_TRUE(scene.Sees("LabCurMth"));
}

TEST(MediaViewsTest, HidingTheWindowEndsWhatPlays) {
    PanelScene scene;
    scene.Settings.ReminderOnClose = 1;
    scene.Find<QCheckBox>("ChkCD")->click();
    scene.PlayFilm();
    scene.Media.LabMusic_DblClick();
    scene.Window.close();
    EXPECT_FALSE(scene.Window.isVisible());
    EXPECT_EQ(PanelScene::FullView(), nullptr);
    EXPECT_FALSE(scene.Devices.Films->Playing);
    EXPECT_EQ(scene.Devices.Cd->Now, CdState::Closed);
}

} // namespace
} // namespace kestrova
