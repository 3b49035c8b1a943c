// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FileStore.h"
#include "settings/AppSettings.h"

#include <string>

namespace kestrova {

// Brings the settings record from its file and back.
class SettingsStore {
public:
    SettingsStore(FileStore& files, const Clock& clock, Dialogs& dialogs, const StringTable& table,
                  std::string path)
        : files_(files), clock_(clock), dialogs_(dialogs), table_(table), path_(std::move(path)) {}

    // Reads the file into the record. A file that is missing or damaged gives a message and the
    // defaults, and a whole file with them is written in its place; the damaged one is kept beside
    // it. A first start has no file and so begins with that message.
    void GetSettings(AppSettings& settings);

    // Writes the record. A failure is shown to the user; the old file then stands.
    Status SaveSettings(AppSettings& settings);

private:
    FileStore& files_;
    const Clock& clock_;
    Dialogs& dialogs_;
    const StringTable& table_;
    std::string path_;
};

} // namespace kestrova
