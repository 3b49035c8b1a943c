// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Notifier.h"

#include <optional>
#include <utility>

namespace kestrova {

// A desktop that shows notifications, and a user who answers them.
class FakeNotifier : public Notifier {
public:
    std::optional<Notification> OnShow; // what stands there now
    int Shows = 0;
    std::function<void(const std::string& key)> Choose;

    void Show(const Notification& notification) override {
        OnShow = notification;
        ++Shows;
    }
    void Close() override { OnShow.reset(); }
    void OnAction(std::function<void(const std::string& key)> chosen) override {
        Choose = std::move(chosen);
    }
};

} // namespace kestrova
