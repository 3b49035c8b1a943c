// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kestrova {

// Something that the user can answer a notification with.
struct NotificationAction {
    std::string Key; // "default" is a click on the notification itself
    std::string Caption;
};

// What the desktop is to show. All of it is plain text.
struct Notification {
    std::string Title;
    std::string Body; // in lines
    std::vector<NotificationAction> Actions;
};

// The desktop's notifications, of which the program has at most one. A desktop may have none, and
// then nothing happens. No function waits for the desktop.
class Notifier {
public:
    virtual ~Notifier() = default;

    // Shows this in the place of what is shown already. Desktops that take no answers show it
    // without.
    virtual void Show(const Notification& notification) = 0;

    // Takes away what is shown, if it still is.
    virtual void Close() = 0;

    // Who is called, from the event loop, with the key of the action that the user has chosen on
    // the notification that is shown.
    virtual void OnAction(std::function<void(const std::string& key)> chosen) = 0;
};

} // namespace kestrova
