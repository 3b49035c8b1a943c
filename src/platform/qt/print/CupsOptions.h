// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printer.h"

#include <string>

#include <cups/cups.h>

namespace kestrova {

// How a queue is asked to print a document: what its user has set for all documents, and over that
// what was chosen for this one. The pages are to come out as they are, neither turned nor scaled.
class CupsOptions {
public:
    CupsOptions(const PrinterSetup& setup, const cups_dest_t& queue);
    ~CupsOptions();
    CupsOptions(const CupsOptions&) = delete;
    CupsOptions& operator=(const CupsOptions&) = delete;
    CupsOptions(CupsOptions&&) = delete;
    CupsOptions& operator=(CupsOptions&&) = delete;

    [[nodiscard]] int Count() const { return count_; }
    [[nodiscard]] cups_option_t* List() const { return list_; }

private:
    void Set(const char* name, const char* value);

    int count_ = 0;
    cups_option_t* list_ = nullptr;
};

// A title as queues take it: without control characters, and no longer than they hold.
[[nodiscard]] std::string QueueTitle(const std::string& title);

} // namespace kestrova
