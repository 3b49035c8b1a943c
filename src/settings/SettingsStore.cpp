// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsStore.h"

#include "language/Texts.h"
#include "platform/KeepAside.h"
#include "settings/SettingsFile.h"

namespace kestrova {

namespace {

constexpr std::string_view kGenericModem = "Generic Modem Found";
constexpr std::string_view kReservedWord = "Kestrova";

} // namespace

void SettingsStore::GetSettings(AppSettings& settings) {
    const auto bytes = files_.Read(path_, kSettingsFileLimit);
    if (bytes && ReadSettings(bytes.Value(), settings)) {
        return;
    }
    dialogs_.Show({table_.Text(texts::kMessengerTitle), table_.Text(texts::kSettingsCorrupt),
                   DialogIcon::Critical});
    SetDefault(settings);
    if (!bytes && bytes.Failure().Code == ErrorCode::Busy) {
        return; // whole, but not ours to read: nothing is put in its place
    }
    const bool missing = !bytes && bytes.Failure().Code == ErrorCode::NotFound;
    if (!missing) {
        const Status kept = MoveAside(files_, clock_.Now(), path_, kDamagedMark);
        if (!kept) {
            dialogs_.Show({table_.Text(texts::kMessengerTitle),
                           table_.Text(texts::kFileHandlingError) + "\n" + kept.Failure().Text,
                           DialogIcon::Critical});
            return;
        }
    }
    // A failure has been shown; the program goes on with the record it has.
    (void)SaveSettings(settings);
}

Status SettingsStore::SaveSettings(AppSettings& settings) {
    if (settings.ModemDescription.empty()) {
        settings.ModemDescription = kGenericModem;
    }
    if (settings.ModemPort.empty()) {
        settings.ModemPort = table_.Text(texts::kModemPorts);
    }
    if (settings.Reserved1.empty()) {
        settings.Reserved1 = kReservedWord;
    }
    const Status saved = files_.Replace(path_, WriteSettings(settings));
    if (!saved) {
        dialogs_.Show({table_.Text(texts::kMessengerTitle),
                       table_.Text(texts::kFileHandlingError) + "\n" + saved.Failure().Text,
                       DialogIcon::Critical});
    }
    return saved;
}

} // namespace kestrova
