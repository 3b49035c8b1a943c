// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryTable.h"
#include "language/StringTable.h"
#include "media/PictureTable.h"
#include "platform/FileStore.h"
#include "platform/Printer.h"
#include "print/MonthSource.h"
#include "print/PageLayout.h"
#include "settings/AppSettings.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace kestrova {

// What the layout window and the main window's print entries mean: the page on the desk, the
// printer's set-up, the layout file. It shows nothing; whoever asked is told what became of it.
class PrintDesk {
public:
    struct Rooms {
        FileStore& Files;
        std::function<Printer&()> Paper; // the printer as it is chosen now
        PagePictures& Pictures;
        const TextMeasure& Measure;
        const Selection& Dates;
        const StringTable& Texts;
        AppSettings& Settings;
        const PictureTable& MonthPictures;
        std::function<const DiaryTable&()> Table; // the diary shown, as it is now
        std::function<std::array<std::string, kDaysOfWeek>()> DayNames; // by column
    };

    explicit PrintDesk(Rooms rooms) : rooms_(std::move(rooms)) {}

    // Opens the month on show as a new page: portrait, without texts and pictures of the user's,
    // laid out afresh. While a page is open already, its background, border and grid stay, and the
    // paper. Fails when there is no printer (PrintFault is set then), and leaves no page.
    [[nodiscard]] Status Open();

    // The window has been closed: the paper's size goes into the settings, which the caller saves,
    // and the page is gone.
    void Close();

    // What the window does each time the main window opens it: it forgets the layout file's name
    // and puts the background's box inside the margins. (Not each time it comes to the front again:
    // after a file dialog the name would be gone, and the box that the user has moved.)
    void Activate();

    // Lays the page out for the paper as it is set. Nothing while PrintFault is set.
    void Redraw();

    // Places the fixed objects and the cells (AutoPosition, spacing, a layout that was opened).
    void DoControls();

    // The page, which the editor changes.
    [[nodiscard]] PageLayout& Page() { return page_; }
    [[nodiscard]] const PageLayout& Page() const { return page_; }
    [[nodiscard]] int DaysShown() const; // of the month on the page

    // Draws border and objects, as they would be printed.
    void DrawPage(DrawingSurface& output) const;

    // Prints the page, or the diary of the month on show. Success at once while PrintFault is set
    // (Print only); PrintDiary clears it first. A failure sets it, unless a file has the printer's
    // place. The diary is headed as the page that is open for that month, or afresh, which the page
    // then shares.
    [[nodiscard]] Status Print();
    [[nodiscard]] Status PrintDiary();
    [[nodiscard]] Status PrintDiaryAfresh();
    [[nodiscard]] bool PrintFault() const { return printFault_; }

    // Prints the page on a printer other than the chosen one ("Save as PDF"), fault or not.
    [[nodiscard]] Status PrintTo(Printer& target) const;

    [[nodiscard]] const PrinterSetup& Setup() const { return setup_; }
    void SetOrientation(Orientation turned); // lays the page out anew
    void SetPaper(int paper);                // 1-13; likewise
    void SetQuality(PrintQuality quality) { setup_.Quality = quality; }
    void SetColours(PrintColour colours) { setup_.Colours = colours; }

    // The layout file: empty when none is known.
    [[nodiscard]] const std::string& LayoutFileName() const { return layoutFileName_; }
    // Writes the page to a file and makes it the layout's own. What stood there stays when it
    // fails; a layout that could not be read whole is kept beside it first ("Plan damaged.kly").
    // TooLarge for a page that could not be read again: a text of more than 32 kB.
    [[nodiscard]] Status Save(const std::string& path);
    // Opens a layout: what can be read of a damaged one stays on the page, and the error says what
    // is wrong. The name is kept either way.
    [[nodiscard]] Status Load(const std::string& path);

    // Whether the page differs from what was last opened or saved. What the desk itself does to a
    // page that does not (another paper, the window's activation) is no change of the user's.
    [[nodiscard]] bool IsChanged() const;

    // Puts a page back as it was (undo), on the paper that it was laid out for.
    void Restore(PageLayout page, int paper, Orientation turned) {
        page_ = std::move(page);
        setup_.Paper = paper;
        setup_.Turned = turned;
    }

    // A picture of the user's: read, added at the top left with its proportions, at most 2000 twips
    // high and then at most 5000 wide. The reference of the new object comes back even when the
    // picture cannot be read: it is then empty, and `trouble` says why.
    struct Added {
        LayoutRef Ref;
        Status Trouble;
    };
    [[nodiscard]] Added AddImage(const std::string& path);

    // Adds a text "New Text" in the font of the messages at the top left, sized to its text. When
    // there are kMaxLabels already, none is added, and the reference finds nothing.
    LayoutRef AddText();

    // Loads the background or the page's picture, and records its path. The page's picture is
    // placed anew unless the user has sized it. On failure the object is left without, and the path
    // is that of before.
    [[nodiscard]] Status LoadPicture(LayoutKind kind, const std::string& path);

private:
    [[nodiscard]] MonthSource Source() const;
    [[nodiscard]] MonthSource SourceOf(int year, int month, const DiaryTable& table,
                                       int baseYear) const;
    [[nodiscard]] PrinterSetup FirstSetup() const;
    void BeginPage();
    void TakeMonthPicture();
    void ShowTexts();
    void LayOut();
    [[nodiscard]] Status Printed(Status printed);
    [[nodiscard]] bool ShowsMonthOfPage() const;
    [[nodiscard]] Status KeepDamagedFile();
    [[nodiscard]] Status PrintOn(Printer& printer, const PrinterSetup& setup,
                                 const CalendarDate& month,
                                 const std::function<void(PrintJob&)>& draw) const;
    template<typename Work> void WithoutChange(Work work);

    Rooms rooms_;
    PageLayout page_;
    PageLayout kept_; // to tell whether anything has changed
    PrinterSetup setup_;
    std::string layoutFileName_;
    std::string damagedFile_; // the layout that could not be read whole
    // The diary of the page's month as it was when the page was opened: its messages are known by
    // their order, which an edit since would change.
    std::unique_ptr<const DiaryTable> events_;
    int baseYear_ = 2000;
    int year_ = 2000; // the month on the page
    int month_ = 0;
    bool open_ = false;        // there is a page
    bool firstLayout_ = false; // FirstLayout
    bool printFault_ = false;  // PrintFault
};

} // namespace kestrova
