// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusMessage>
#include <QObject>

#include <functional>

namespace kestrova {

// Hears what the desktop says about notifications, everybody's; who has said it stands in the
// message. A class of its own because only slots can hear it.
class NotificationSignals : public QObject {
    Q_OBJECT

public:
    std::function<void(const QDBusMessage& said)> Invoked;
    std::function<void(const QDBusMessage& said)> Closed;

public Q_SLOTS:
    void ActionInvoked(const QDBusMessage& said) { Invoked(said); }
    void NotificationClosed(const QDBusMessage& said) { Closed(said); }
};

} // namespace kestrova
