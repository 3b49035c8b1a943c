// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does with the pictures of the months and days.
#include "app/ui/Program.h"

#include "language/Texts.h"
#include "media/PictureReplace.h"
#include "media/ui/BusyCursor.h"
#include "media/ui/PictureReader.h"
#include "media/ui/WaitBeside.h"
#include "platform/qt/QtText.h"

namespace kestrova {

namespace {

// What is left to say when a disc has not answered.
Error NoAnswer() {
    return {ErrorCode::Busy, {}};
}

} // namespace

void Program::ShowPictureFault(ProgramText what, const Error& error, const std::string& path) {
    std::string text = TextOf(texts_, what);
    if (error.Code == ErrorCode::Damaged) {
        text += "\n" + TextOf(texts_, ProgramText::NotAPicture, path);
    } else {
        text += "\n" + path + (error.Text.empty() ? "" : "\n" + error.Text);
    }
    dialogs_.Show({texts_.Text(texts::kMessengerTitle), text, DialogIcon::Critical});
}

void Program::ChPic(std::optional<int> day) {
    const int month = dates_.PageMonth; // the clock may show another while the user chooses
    const auto path = dialogs_.OpenFile("", TextOf(texts_, ProgramText::PictureFilter));
    if (!path) {
        return;
    }
    const PictureChoice choice{month, day, *path};
    const auto replaced = [&] {
        const BusyCursor busy;
        return OutcomeBeside([choice, now = clock_.Now(), folder = dataFolder_] {
            PosixFileStore files; // its own: the thread may be held up longer than the program
            return ReplacePicture(files, now, folder, choice, CheckPicture);
        });
    }();
    if (replaced && replaced->Ok()) {
        EnterPicture(pictures_, files_, dataFolder_, dates_, choice, replaced->Value());
        formCal_.GetPicture();
    } else {
        ShowPictureFault(ProgramText::PictureNotReplaced,
                         replaced ? replaced->Failure() : NoAnswer(), *path);
    }
}

void Program::SavePic() {
    const std::string source = formCal_.PicturePath();
    if (source.empty() || media_.ShowsVideo()) {
        return;
    }
    const auto path =
        dialogs_.SaveFile(dataFolder_ + "Images/", TextOf(texts_, ProgramText::BitmapFilter));
    if (!path || !ToQt(*path).endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive)) {
        return;
    }
    const auto saved = [&] {
        const BusyCursor busy;
        return OutcomeBeside([source, target = *path] {
            PosixFileStore files;
            return SavePicture(files, source, target);
        });
    }();
    if (!saved || !saved->Ok()) {
        const Error error = saved ? saved->Failure() : NoAnswer();
        const bool unread = error.Code == ErrorCode::Damaged || error.Code == ErrorCode::NotFound;
        ShowPictureFault(ProgramText::PictureNotSaved, error, unread ? source : *path);
    }
}

} // namespace kestrova
