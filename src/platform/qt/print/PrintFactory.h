// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printer.h"
#include "platform/Result.h"

#include <chrono>
#include <memory>
#include <string>

namespace kestrova {

// A document to be printed as it is: its pages are turned already, and of the size of the paper.
struct PrintOrder {
    std::string Pdf;
    std::string Title; // what the queue shows
    PrinterSetup Setup;
};

// A question to the printing system.
class PrintQuestion {
public:
    virtual ~PrintQuestion() = default;

    [[nodiscard]] virtual bool IsAnswered() const = 0;

    // The answer. Busy while there is none: then the question is left behind, and whatever it was
    // about is not done, or undone as far as that can be.
    [[nodiscard]] virtual Status Take() = 0;
};

// What the print module gives to the program that has loaded it: few starts of the program print,
// and the library for it comes with much that the program has no use for. No call waits. A question
// is answered Busy at once while another one is still being put.
class PrintFactory {
public:
    virtual ~PrintFactory() = default;

    // Whether there is a printer: the user's own choice, else any. Answered within the limit
    // unless the system holds the one who asks: NotFound, Busy (not answered in time) or Failed.
    [[nodiscard]] virtual std::unique_ptr<PrintQuestion>
    AskForPrinter(std::chrono::milliseconds limit) = 0;

    // Has the printer taken the document? The same answers. Failed says why in the words of the
    // system.
    [[nodiscard]] virtual std::unique_ptr<PrintQuestion> Send(PrintOrder order,
                                                              std::chrono::milliseconds limit) = 0;
};

// The one function that the module exports; what it returns lives as long as the process. Whoever
// changes one of the interfaces above changes the number in the name, so that a module of another
// version is refused instead of called.
using PrintEntry = PrintFactory* (*)();
inline constexpr const char* kPrintEntryName = "KestrovaPrint1";

} // namespace kestrova
