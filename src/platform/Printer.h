// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"
#include "platform/Result.h"

#include <memory>
#include <string>

namespace kestrova {

// The numbers of these are those of the settings file and of the menus' order.
enum class Orientation { Portrait = 1, Landscape = 2 };
enum class PrintQuality { Draft = -1, Low = -2, Medium = -3, High = -4 };
enum class PrintColour { Monochrome = 1, Colour = 2 };

// Letter 1, Letter Small 2, Tabloid 3, Ledger 4, Legal 5, Statement 6, Executive 7, A3 8, A4 9,
// A4 Small 10, A5 11, B4 12 and B5 13 (both JIS).
inline constexpr int kPaperSizes = 13;
inline constexpr int kPaperA4 = 9;

struct PrinterSetup {
    int Paper = kPaperA4; // 1-13
    Orientation Turned = Orientation::Portrait;
    PrintQuality Quality = PrintQuality::High;
    PrintColour Colours = PrintColour::Colour;

    bool operator==(const PrinterSetup&) const = default;
};

// No printer reaches the edge of its paper: what is drawn on begins so far, in twips, from each
// edge, and its corner is where positions are counted from.
inline constexpr int kPaperEdge = 150;

struct PageSize {
    int Width = 0; // twips
    int Height = 0;

    bool operator==(const PageSize&) const = default;
};

// The whole paper as it is turned; A4 for a number that is none of the sizes.
[[nodiscard]] PageSize PaperSizeOf(const PrinterSetup& setup);

// The area that can be drawn on: the paper as it is turned, less the edge on each side.
[[nodiscard]] PageSize PrintableArea(const PrinterSetup& setup);

// A document on its way to a printer. It is drawn page by page and sent when it is finished; one
// that goes without is thrown away.
class PrintJob : public DrawingSurface {
public:
    // Begins a page, also the first.
    virtual void NewPage() = 0;

    // Number of the page begun last, from 1; 0 before the first.
    [[nodiscard]] virtual int PageNumber() const = 0;

    // Sends the document and waits, while events go on, until the printer has taken it or five
    // seconds have passed. NotFound (there is no printer), Busy (it did not answer in time) or
    // Failed (it refused, or the file could not be written; the text is the system's own).
    virtual Status Finish() = 0;
};

// The printer that the user's system prints with, or a file in its place.
class Printer {
public:
    virtual ~Printer() = default;

    // Whether there is a printer. Waits, while events go on, for at most five seconds. NotFound,
    // Busy (nobody answered) or Failed.
    virtual Status Check() = 0;

    // A new document. `title` is what the queue shows.
    [[nodiscard]] virtual std::unique_ptr<PrintJob> Begin(const PrinterSetup& setup,
                                                          const std::string& title) = 0;
};

} // namespace kestrova
