// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Captions.h"

namespace kestrova {

namespace {

constexpr CaptionRow kCaptions[] = {
    {"FormCal", "MNU_Date", {TextGroup::Captions, 2}},
    {"FormCal", "LabHelp", {TextGroup::Labels, 28}},
    {"FormCal", "MNU_Help", {TextGroup::Labels, 28}},
    {"Diary", "ComDayPic", {TextGroup::Buttons, 0}},
    {"Diary", "ComMonPic", {TextGroup::Buttons, 1}},
    {"Diary", "ComDataAcpt", {TextGroup::Buttons, 2}},
    {"Diary", "ComInfo", {TextGroup::Buttons, 3}},
    {"Diary", "LabEvent(0)", {TextGroup::Labels, 0}},
    {"Diary", "LabTime(0)", {TextGroup::Labels, 1}},
    {"Diary", "LabMsg", {TextGroup::Labels, 2}},
    {"Diary", "LabRpt(0)", {TextGroup::Labels, 3}},
    {"Diary", "LabRmd(0)", {TextGroup::Labels, 4}},
    {"Diary", "LabHide", {TextGroup::Labels, 5}},
    {"ScreenReminder", "ComClear", {TextGroup::Buttons, 4}},
};

constexpr CaptionRow kTips[] = {
    {"FormCal", "LabDays(0)", {TextGroup::Tips, 3}},
    {"FormCal", "LabDays(1)", {TextGroup::Tips, 3}},
    {"FormCal", "LabDays(2)", {TextGroup::Tips, 3}},
    {"FormCal", "LabDays(3)", {TextGroup::Tips, 3}},
    {"FormCal", "LabDays(4)", {TextGroup::Tips, 3}},
    {"FormCal", "LabDays(5)", {TextGroup::Tips, 3}},
    {"FormCal", "LabDays(6)", {TextGroup::Tips, 3}},
};

} // namespace

std::span<const CaptionRow> CaptionRows() {
    return kCaptions;
}

std::span<const CaptionRow> TipRows() {
    return kTips;
}

} // namespace kestrova
