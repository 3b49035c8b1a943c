// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/CalendarModule.h"

#include "platform/qt/QtText.h"
#include "platform/qt/ical/CalendarFactory.h"

#include <QCoreApplication>
#include <QLibrary>

namespace kestrova {

std::string CalendarModule::ShippedPath() {
    return FromQt(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrova_ical.so"));
}

CalendarFormat* CalendarModule::Load() {
    if (format_ != nullptr || !trouble_.empty()) {
        return format_;
    }
    QLibrary library(ToQt(path_));
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto entry = reinterpret_cast<CalendarEntry>(library.resolve(kCalendarEntryName));
    if (entry == nullptr) {
        trouble_ = FromQt(library.errorString());
        return nullptr;
    }
    format_ = entry();
    return format_;
}

Result<std::string> CalendarModule::Write(const std::vector<ExchangeEvent>& events,
                                          const WallTime& now) {
    CalendarFormat* const format = Load();
    return format == nullptr ? Error{ErrorCode::NotFound, trouble_} : format->Write(events, now);
}

Result<ReadCalendar> CalendarModule::Read(std::string_view bytes, const CalendarSpan& span) {
    CalendarFormat* const format = Load();
    return format == nullptr ? Error{ErrorCode::NotFound, trouble_} : format->Read(bytes, span);
}

} // namespace kestrova
