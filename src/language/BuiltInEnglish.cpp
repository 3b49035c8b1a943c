// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/StringTable.h"

namespace kestrova {

namespace {

struct BuiltInText {
    TextGroup Group;
    int Entry;
    const char* Text;
};

// The wording is the program's own since its first version, misspellings included: saved language
// files and users' habits rest on it. Entries not listed are placeholders.
// clang-format off
constexpr BuiltInText kEnglish[] = {
    {TextGroup::Captions, 0, "Kestrova"},
    {TextGroup::Captions, 1, "Kestrova Messenger"},
    {TextGroup::Captions, 2, "Diary"},
    {TextGroup::Captions, 3, "Text Editor"},
    {TextGroup::Captions, 4, "Kestrova Communications"},
    {TextGroup::Captions, 5, "Kestrova Language Editor"},
    {TextGroup::Captions, 6, "Kestrova Print Preview"},
    {TextGroup::Captions, 8, "                  Version"},
    {TextGroup::Captions, 19, "EndUnused"},
    {TextGroup::Captions, 20, "Clock Settings"},
    {TextGroup::Captions, 21, "Colour Settings"},
    {TextGroup::Captions, 22, "Modem Settings"},
    {TextGroup::Captions, 23, "Operating Settings"},
    {TextGroup::Captions, 24, "Speech Settings"},
    {TextGroup::Captions, 25, "Media Settings"},
    {TextGroup::Captions, 40, "EndUnused"},
    {TextGroup::Captions, 50, "EndUnused"},
    {TextGroup::Buttons, 0, "Change Daily Picture"},
    {TextGroup::Buttons, 1, "Change Monthly Picture"},
    {TextGroup::Buttons, 2, "SAVE EVENT"},
    {TextGroup::Buttons, 3, "Event Details"},
    {TextGroup::Buttons, 4, "Clear Messages"},
    {TextGroup::Buttons, 5, "Print"},
    {TextGroup::Buttons, 6, "Test Call"},
    {TextGroup::Buttons, 7, "Save Settings"},
    {TextGroup::Buttons, 8, "Font"},
    {TextGroup::Buttons, 9, "Cancel"},
    {TextGroup::Buttons, 10, "Save"},
    {TextGroup::Buttons, 12, "Change Year"},
    {TextGroup::Buttons, 13, "Default Settings"},
    {TextGroup::Buttons, 14, "Format Data"},
    {TextGroup::Buttons, 15, "Test Speech"},
    {TextGroup::Buttons, 16, "Date"},
    {TextGroup::Buttons, 19, "EndUnused"},
    {TextGroup::Buttons, 20, "Keep Aspect Ratio"},
    {TextGroup::Buttons, 21, "Start Maximised"},
    {TextGroup::Buttons, 22, "Reminder on Close"},
    {TextGroup::Buttons, 23, "Start on Boot Up"},
    {TextGroup::Buttons, 24, "Speech Enabled"},
    {TextGroup::Buttons, 25, "Picture"},
    {TextGroup::Buttons, 26, "Week Day"},
    {TextGroup::Buttons, 27, "Calendar Date"},
    {TextGroup::Buttons, 28, "Swap Day/Month"},
    {TextGroup::Buttons, 29, "Help Text On"},
    {TextGroup::Buttons, 30, "Video Repeat Mode"},
    {TextGroup::Buttons, 31, "Start in Full Screen mode"},
    {TextGroup::Buttons, 39, "EndUnused"},
    {TextGroup::Buttons, 40, "Speak Message"},
    {TextGroup::Buttons, 41, "Send Beeps"},
    {TextGroup::Buttons, 42, "Background Colour"},
    {TextGroup::Buttons, 43, "Text Colour"},
    {TextGroup::Buttons, 44, "Today's Colour"},
    {TextGroup::Buttons, 45, "Event Colour"},
    {TextGroup::Buttons, 50, "EndUnused"},
    {TextGroup::Selectors, 0, "Speech"},
    {TextGroup::Selectors, 1, "Chime"},
    {TextGroup::Selectors, 2, "None"},
    {TextGroup::Selectors, 9, "EndUnused"},
    {TextGroup::Selectors, 10, "Never"},
    {TextGroup::Selectors, 11, "On the Hour"},
    {TextGroup::Selectors, 12, "On the Half Hour"},
    {TextGroup::Selectors, 13, "On the Quarter Hour"},
    {TextGroup::Selectors, 14, "Every Five Minutes"},
    {TextGroup::Selectors, 19, "EndUnused"},
    {TextGroup::Selectors, 20, "None"},
    {TextGroup::Selectors, 21, "Com:1"},
    {TextGroup::Selectors, 22, "Com:2"},
    {TextGroup::Selectors, 23, "Com:3"},
    {TextGroup::Selectors, 24, "Com:4"},
    {TextGroup::Selectors, 29, "EndUnused"},
    {TextGroup::Selectors, 30, "Screen"},
    {TextGroup::Selectors, 31, "Speak"},
    {TextGroup::Selectors, 32, "Phone"},
    {TextGroup::Selectors, 33, "Email"},
    {TextGroup::Selectors, 34, "Media"},
    {TextGroup::Selectors, 35, "Music"},
    {TextGroup::Selectors, 36, "None"},
    {TextGroup::Selectors, 39, "EndUnused"},
    {TextGroup::Selectors, 40, "Never"},
    {TextGroup::Selectors, 41, "Daily"},
    {TextGroup::Selectors, 42, "Weekly"},
    {TextGroup::Selectors, 43, "Monthly"},
    {TextGroup::Selectors, 44, "Annually"},
    {TextGroup::Selectors, 50, "EndUnused"},
    {TextGroup::Labels, 0, "<<Double Click Here To Add An Event>>"},
    {TextGroup::Labels, 1, "Time"},
    {TextGroup::Labels, 2, "Message"},
    {TextGroup::Labels, 3, "Repeat"},
    {TextGroup::Labels, 4, "Reminder"},
    {TextGroup::Labels, 5, "Hide"},
    {TextGroup::Labels, 6, "Enter Details Below"},
    {TextGroup::Labels, 7, "Your Name."},
    {TextGroup::Labels, 8, "Email Address."},
    {TextGroup::Labels, 9, "Remmeber to set your dial up connection to connect automatically and hang up after send and receive. See help for more information."},
    {TextGroup::Labels, 10, "Phone Number"},
    {TextGroup::Labels, 11, "Repeat Every"},
    {TextGroup::Labels, 12, "Mins"},
    {TextGroup::Labels, 13, "Left Margin"},
    {TextGroup::Labels, 14, "Right Margin"},
    {TextGroup::Labels, 15, "Top Margin"},
    {TextGroup::Labels, 16, "Bottom Margin"},
    {TextGroup::Labels, 17, " R   G    B"},
    {TextGroup::Labels, 18, "Pitch"},
    {TextGroup::Labels, 19, "Speed"},
    {TextGroup::Labels, 20, "Modem Port"},
    {TextGroup::Labels, 21, "Chime Type"},
    {TextGroup::Labels, 22, "Chime Interval"},
    {TextGroup::Labels, 23, "Speech Greeting"},
    {TextGroup::Labels, 24, "Speech Farewell"},
    {TextGroup::Labels, 25, ""},
    {TextGroup::Labels, 26, "Mins"},
    {TextGroup::Labels, 27, "Speech Character"},
    {TextGroup::Labels, 28, "Help"},
    {TextGroup::Labels, 29, "On"},
    {TextGroup::Labels, 30, "Off"},
    {TextGroup::Labels, 31, "Screen"},
    {TextGroup::Labels, 50, "EndUnused"},
    {TextGroup::Tips, 0, "Click here to change month. Double click to print month."},
    {TextGroup::Tips, 1, "Double click here to open settings window."},
    {TextGroup::Tips, 2, "Double click here to open diary."},
    {TextGroup::Tips, 3, "Click here to speak text copied to the clip board."},
    {TextGroup::Tips, 4, "Click to turn CD player on or off."},
    {TextGroup::Tips, 5, "Select from a choice of languages."},
    {TextGroup::Tips, 6, "Select your choice of speaking characters."},
    {TextGroup::Tips, 7, "Enable the modem port for telephone messages."},
    {TextGroup::Tips, 8, "Set the repeat period for missed telephone messages."},
    {TextGroup::Tips, 9, "Red Green Blue"},
    {TextGroup::Tips, 10, "Switches mouse tip text help messages on/off."},
    {TextGroup::Tips, 11, "Changes the aspect ratio of your calendar pictures."},
    {TextGroup::Tips, 12, "Starts the calendar with the window maximised."},
    {TextGroup::Tips, 13, "Switches the message box on close on/off."},
    {TextGroup::Tips, 14, "Loads your calendar on computer start up."},
    {TextGroup::Tips, 15, "Enables/Disables the speech system."},
    {TextGroup::Tips, 16, "Enables/Disables the speech system."},
    {TextGroup::Tips, 17, "Enables/Disables the speech system."},
    {TextGroup::Tips, 18, "Enables/Disables the speech system."},
    {TextGroup::Tips, 19, "Tick this box if your calendar confuses the day with the month for the first nine days of a month."},
    {TextGroup::Tips, 20, "Alter the speech pitch using the scroll bar below."},
    {TextGroup::Tips, 21, "Alter the speech speed using the scroll bar below."},
    {TextGroup::Tips, 22, "Click to speak details"},
    {TextGroup::Tips, 23, "Select between speech and wave files."},
    {TextGroup::Tips, 24, "Select frequency of clock chimes."},
    {TextGroup::Tips, 25, "Clock speech introduction sentence."},
    {TextGroup::Tips, 26, "Clock speech farewell statment."},
    {TextGroup::Tips, 27, "Set left hand margin size."},
    {TextGroup::Tips, 28, "Set right hand margin size."},
    {TextGroup::Tips, 29, "Set top margin size."},
    {TextGroup::Tips, 30, "Set bottom margin size."},
    {TextGroup::Tips, 31, "Use the scroll bars to adjust the background colour."},
    {TextGroup::Tips, 32, "Use the scroll bars to adjust the text colour."},
    {TextGroup::Tips, 33, "Use the scroll bars to adjust the colour highlighting today's date."},
    {TextGroup::Tips, 34, "Use the scroll bars to adjust the colour highlighting diary events."},
    {TextGroup::Tips, 35, "Double Click for Full Screen 'Esc' to Return"},
    {TextGroup::Tips, 50, "EndUnused"},
    {TextGroup::Messages, 0, "Closing Kestrova Will Disable Messenger"},
    {TextGroup::Messages, 1, "Cannot Access Your Printer"},
    {TextGroup::Messages, 3, "Download New Language Speech Components"},
    {TextGroup::Messages, 4, "Cannot Set Monthly Repeats For Dates Above The 28th"},
    {TextGroup::Messages, 5, "Cannot Repeat Leap Days Annually"},
    {TextGroup::Messages, 6, "An Error Occurred During This Save"},
    {TextGroup::Messages, 7, "Suitable Modem Not Found"},
    {TextGroup::Messages, 9, "File Open Fault"},
    {TextGroup::Messages, 10, "A File Handling Error Occured"},
    {TextGroup::Messages, 11, "Invalid Serial Port"},
    {TextGroup::Messages, 12, "Invalid Phone Number"},
    {TextGroup::Messages, 13, "Cannot Find File Modem.Dat"},
    {TextGroup::Messages, 14, "Kestrova will attempt to call the following numbers"},
    {TextGroup::Messages, 15, "Check carefully as wrong numbers will cause a nuisance "},
    {TextGroup::Messages, 16, "And can be Costly!"},
    {TextGroup::Messages, 17, "Formatting Data Files Will"},
    {TextGroup::Messages, 18, "Loose  All  Existing  Data!"},
    {TextGroup::Messages, 19, "The CD Player is Inactive"},
    {TextGroup::Messages, 20, " At The Moment"},
    {TextGroup::Messages, 21, "No WAV Sounds Available"},
    {TextGroup::Messages, 22, "Cannot Make Phone Call With Modem Disabled"},
    {TextGroup::Messages, 23, "Enable Modem in Kestrova Settings"},
    {TextGroup::Messages, 24, "Cannot Speak Message With Speech Disabled"},
    {TextGroup::Messages, 25, "Download Speech system from Downloads Page on Web site and"},
    {TextGroup::Messages, 26, "Enable Speech in Kestrova Settings Window."},
    {TextGroup::Messages, 30, "Your Settings File Is Corrupt : Restoring Defaults"},
    {TextGroup::Messages, 31, "Your Diary Data Files Are Corrupt or Missing"},
    {TextGroup::Messages, 32, " The Files Will Be  Re-Formatted "},
    {TextGroup::Messages, 33, "Can Only Enter Diary Events for the Rest of This Year and Next Year."},
    {TextGroup::Messages, 37, "Error"},
    {TextGroup::Messages, 49, "EndUnused"},
    {TextGroup::Messages, 50, "Please Fill in Both Boxes"},
};
// clang-format on

constexpr std::array<const char*, kMonths> kMonthMenu = {
    "&Jan", "F&eb", "&Mar", "&Apr", "Ma&y", "J&un", "Ju&l", "Au&g", "&Sep", "&Oct", "&Nov", "&Dec"};

constexpr std::array<const char*, kDaysOfWeek> kWeekdays = {
    "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

constexpr std::array<std::string_view, kMonths> kMonthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

} // namespace

std::string_view EnglishMonthName(int month) {
    return kMonthNames[static_cast<std::size_t>(month)];
}

StringTable MsgDefaults() {
    StringTable table;
    for (auto& group : table.Texts) {
        group.fill(std::string(kUnusedText));
    }
    for (const BuiltInText& row : kEnglish) {
        table.Texts[static_cast<std::size_t>(row.Group)][static_cast<std::size_t>(row.Entry)] =
            row.Text;
    }
    for (std::size_t month = 0; month < kMonths; ++month) {
        table.MonthNames[month] = "  " + std::string(kMonthNames[month]) + "  ";
        table.MonthMenu[month] = kMonthMenu[month];
    }
    for (std::size_t day = 0; day < kDaysOfWeek; ++day) {
        table.WeekdayNames[day] = kWeekdays[day];
    }
    return table;
}

} // namespace kestrova
