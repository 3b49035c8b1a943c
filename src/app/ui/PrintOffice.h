// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryStore.h"
#include "platform/qt/PaperMeasure.h"
#include "platform/qt/PdfPrinter.h"
#include "platform/qt/PrintModule.h"
#include "print/PrintDesk.h"
#include "print/ui/PageFiles.h"
#include "print/ui/Preview.h"

#include <functional>
#include <memory>

namespace kestrova {

// What the program has for printing: the printers, the desk, and the layout window, which is made
// on first use.
class PrintOffice {
public:
    struct Rooms {
        FileStore& Files;
        Dialogs& Boxes;
        const Selection& Dates;
        const StringTable& Texts;
        AppSettings& Settings;
        const PictureTable& Pictures;
        const DiaryStore& Store;
        const std::string& DataFolder;
    };

    // `keepChoices` is called when the paper's size or the kind of printer is to be kept.
    PrintOffice(const Rooms& rooms, std::function<void()> keepChoices);

    // The main window's entries: the layout window for the month on show, the diary of the month as
    // a list, and whether a PDF file takes the printer's place.
    void MNU_Preview_Click();
    void MNU_PrDiary_Click();
    void MNU_Pdf_Click(bool on);

    // The program is to end: closes the layout. False when its user has something to finish first,
    // or something is on its way to a printer.
    [[nodiscard]] bool Close();

    void LoadCaptions();

private:
    [[nodiscard]] bool PrintsToPdf() const { return rooms_.Settings.PrintNumber1 != 0; }
    [[nodiscard]] Printer& Chosen();
    [[nodiscard]] bool AskTarget();

    Rooms rooms_;
    std::function<void()> keepChoices_;
    PrintModule printers_;
    PdfPrinter pdf_;
    PaperMeasure measure_;
    PageFiles pictures_;
    PrintDesk desk_;
    std::unique_ptr<Preview> preview_;
    bool printing_ = false; // the list is on its way
};

} // namespace kestrova
