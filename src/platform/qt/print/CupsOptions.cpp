// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/print/CupsOptions.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kestrova {

namespace {

// The papers by the names of the Printer Working Group. A sheet that lies on its side is the same.
constexpr std::array<const char*, kPaperSizes> kMedia = {
    "na_letter_8.5x11in", "na_letter_8.5x11in",   "na_ledger_11x17in",        "na_ledger_11x17in",
    "na_legal_8.5x14in",  "na_invoice_5.5x8.5in", "na_executive_7.25x10.5in", "iso_a3_297x420mm",
    "iso_a4_210x297mm",   "iso_a4_210x297mm",     "iso_a5_148x210mm",         "jis_b4_257x364mm",
    "jis_b5_182x257mm"};

const char* MediaOf(int paper) {
    const bool known = paper >= 1 && paper <= kPaperSizes;
    return kMedia[static_cast<std::size_t>((known ? paper : kPaperA4) - 1)];
}

// Queues know three qualities.
const char* QualityOf(PrintQuality quality) {
    switch (quality) {
    case PrintQuality::Draft:
    case PrintQuality::Low: return "3";
    case PrintQuality::Medium: return "4";
    case PrintQuality::High: break;
    }
    return "5";
}

// What describes a queue, and what would change the page; all else is how its user wants to have
// documents printed.
bool IsForDocuments(std::string_view name) {
    constexpr std::string_view kDescribing[] = {"printer-", "marker-", "device-", "auth-info"};
    constexpr std::string_view kChanging[] = {"PageRegion",
                                              "PageSize",
                                              "fit-to-page",
                                              "fitplot",
                                              "landscape",
                                              "media",
                                              "media-col",
                                              "mirror",
                                              "natural-scaling",
                                              "number-up",
                                              "orientation-requested",
                                              "page-bottom",
                                              "page-left",
                                              "page-ranges",
                                              "page-right",
                                              "page-top",
                                              "position",
                                              "ppi",
                                              "print-color-mode",
                                              "print-quality",
                                              "print-scaling",
                                              "scaling"};
    const auto begins = [name](std::string_view with) { return name.starts_with(with); };
    return std::none_of(std::begin(kDescribing), std::end(kDescribing), begins) &&
           std::find(std::begin(kChanging), std::end(kChanging), name) == std::end(kChanging);
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

CupsOptions::CupsOptions(const PrinterSetup& setup, const cups_dest_t& queue) {
    for (int i = 0; i < queue.num_options; ++i) {
        if (IsForDocuments(queue.options[i].name)) {
            Set(queue.options[i].name, queue.options[i].value);
        }
    }
    Set("media", MediaOf(setup.Paper));
    Set("print-quality", QualityOf(setup.Quality));
    Set("print-color-mode", setup.Colours == PrintColour::Colour ? "color" : "monochrome");
    Set("print-scaling", "none");
}

CupsOptions::~CupsOptions() {
    cupsFreeOptions(count_, list_);
}

void CupsOptions::Set(const char* name, const char* value) {
    count_ = cupsAddOption(name, value, count_, &list_);
}

std::string QueueTitle(const std::string& title) {
    constexpr std::size_t kLongest = 255; // bytes
    std::string plain = title;
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; },
        ' ');
    if (plain.size() > kLongest) {
        std::size_t end = kLongest;
        while (end > 0 && IsContinuation(plain[end])) {
            --end;
        }
        plain.resize(end);
    }
    return plain;
}

} // namespace kestrova
