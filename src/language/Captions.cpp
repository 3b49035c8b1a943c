// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Captions.h"

namespace kestrova {

namespace {

using enum TextGroup;

constexpr CaptionRow kCaptions[] = {
    {"FormCal", "MNU_Date", {Captions, 2}},
    {"FormCal", "LabHelp", {Labels, 28}},
    {"FormCal", "MNU_Help", {Labels, 28}},

    {"Diary", "ComDayPic", {Buttons, 0}},
    {"Diary", "ComMonPic", {Buttons, 1}},
    {"Diary", "ComDataAcpt", {Buttons, 2}},
    {"Diary", "ComInfo", {Buttons, 3}},
    {"Diary", "LabEvent(0)", {Labels, 0}},
    {"Diary", "LabTime(0)", {Labels, 1}},
    {"Diary", "LabMsg", {Labels, 2}},
    {"Diary", "LabRpt(0)", {Labels, 3}},
    {"Diary", "LabRmd(0)", {Labels, 4}},
    {"Diary", "LabHide", {Labels, 5}},

    {"Preview", "ComPrint", {Buttons, 5}},

    {"ScreenReminder", "ComClear", {Buttons, 4}},

    {"Modem", "ComTestCall", {Buttons, 6}},
    {"Modem", "ComSave", {Buttons, 7}},
    {"Modem", "OptionSpeak", {Buttons, 40}},
    {"Modem", "OptionBeep", {Buttons, 41}},
    {"Modem", "LabPhoneNumber", {Labels, 10}},
    {"Modem", "LabRpt", {Labels, 11}},
    {"Modem", "LabMins", {Labels, 12}},

    {"Edit", "Label1", {Labels, 6}},

    {"Email", "LabName", {Labels, 7}},
    {"Email", "LabMail(0)", {Labels, 8}},
    {"Email", "LabMail(1)", {Labels, 8}},
    {"Email", "LabMail(2)", {Labels, 8}},
    {"Email", "LabMail(3)", {Labels, 8}},
    {"Email", "LabMail(4)", {Labels, 8}},
    {"Email", "LabNotice", {Labels, 9}},
    {"Email", "ComSave", {Buttons, 10}},
    {"Email", "ComCancel", {Buttons, 9}},

    {"MailLogOn", "ComSave", {Buttons, 10}},
    {"MailLogOn", "ComCancel", {Buttons, 9}},

    {"LanEditor", "ComFont", {Buttons, 8}},
    {"LanEditor", "ComCancel", {Buttons, 9}},
    {"LanEditor", "ComSave", {Buttons, 10}},

    {"Settings", "FrmClk", {Captions, 20}},
    {"Settings", "FrmCol", {Captions, 21}},
    {"Settings", "FrmMod", {Captions, 22}},
    {"Settings", "FrmOps", {Captions, 23}},
    {"Settings", "FrmSpk", {Captions, 24}},
    {"Settings", "FrmMedia", {Captions, 25}},
    {"Settings", "ComSet", {Buttons, 10}},
    {"Settings", "ComCngYr", {Buttons, 12}},
    {"Settings", "ComDefault", {Buttons, 13}},
    {"Settings", "ComFormat", {Buttons, 14}},
    {"Settings", "ComSpchTest", {Buttons, 15}},
    {"Settings", "Check1", {Buttons, 20}},
    {"Settings", "Check2", {Buttons, 21}},
    {"Settings", "Check3", {Buttons, 22}},
    {"Settings", "Check4", {Buttons, 23}},
    {"Settings", "Check5", {Buttons, 24}},
    {"Settings", "Check6", {Buttons, 25}},
    {"Settings", "Check7", {Buttons, 26}},
    {"Settings", "Check8", {Buttons, 27}},
    {"Settings", "Check9", {Buttons, 28}},
    {"Settings", "Check10", {Buttons, 29}},
    {"Settings", "ChkRep", {Buttons, 30}},
    {"Settings", "ChkFscr", {Buttons, 31}},
    {"Settings", "OptionBack", {Buttons, 42}},
    {"Settings", "OptionText", {Buttons, 43}},
    {"Settings", "OptionToday", {Buttons, 44}},
    {"Settings", "OptionEvent", {Buttons, 45}},
    {"Settings", "LabRpt", {Labels, 11}},
    {"Settings", "Label1", {Labels, 17}},
    {"Settings", "Label2", {Labels, 18}},
    {"Settings", "Label3", {Labels, 19}},
    {"Settings", "Label4", {Labels, 20}},
    {"Settings", "Label5", {Labels, 21}},
    {"Settings", "Label6", {Labels, 22}},
    {"Settings", "Label7", {Labels, 23}},
    {"Settings", "Label8", {Labels, 24}},
    {"Settings", "Label10", {Labels, 26}},
    {"Settings", "Label11", {Labels, 27}},
};

constexpr CaptionRow kTips[] = {
    {"FormCal", "Image1", {Tips, 1}},        {"FormCal", "LabDays(0)", {Tips, 3}},
    {"FormCal", "LabDays(1)", {Tips, 3}},    {"FormCal", "LabDays(2)", {Tips, 3}},
    {"FormCal", "LabDays(3)", {Tips, 3}},    {"FormCal", "LabDays(4)", {Tips, 3}},
    {"FormCal", "LabDays(5)", {Tips, 3}},    {"FormCal", "LabDays(6)", {Tips, 3}},

    {"Edit", "Label1", {Tips, 22}},

    {"Modem", "TextRpt", {Tips, 8}},

    {"Settings", "CombLan", {Tips, 5}},      {"Settings", "CombChr", {Tips, 6}},
    {"Settings", "CombCom", {Tips, 7}},      {"Settings", "TextRpt", {Tips, 8}},
    {"Settings", "LabRpt", {Tips, 8}},       {"Settings", "Label1", {Tips, 9}},
    {"Settings", "Check10", {Tips, 10}},     {"Settings", "Check1", {Tips, 11}},
    {"Settings", "Check2", {Tips, 12}},      {"Settings", "Check3", {Tips, 13}},
    {"Settings", "Check4", {Tips, 14}},      {"Settings", "Check5", {Tips, 15}},
    {"Settings", "Check6", {Tips, 16}},      {"Settings", "Check7", {Tips, 17}},
    {"Settings", "Check8", {Tips, 18}},      {"Settings", "Check9", {Tips, 19}},
    {"Settings", "Label2", {Tips, 20}},      {"Settings", "Label3", {Tips, 21}},
    {"Settings", "CombChimes", {Tips, 23}},  {"Settings", "CombInterval", {Tips, 24}},
    {"Settings", "TexGreeting", {Tips, 25}}, {"Settings", "TexFarewell", {Tips, 26}},
    {"Settings", "OptionBack", {Tips, 31}},  {"Settings", "OptionText", {Tips, 32}},
    {"Settings", "OptionToday", {Tips, 33}}, {"Settings", "OptionEvent", {Tips, 34}},
};

constexpr ListRow kLists[] = {
    {"Settings", "CombChimes", lists::kChimeTypes},
    {"Settings", "CombInterval", lists::kChimeIntervals},
    {"Settings", "CombCom", lists::kModemPorts},
};

} // namespace

std::span<const CaptionRow> CaptionRows() {
    return kCaptions;
}

std::span<const CaptionRow> TipRows() {
    return kTips;
}

std::span<const ListRow> ListRows() {
    return kLists;
}

} // namespace kestrova
