// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Notifier.h"

#include <QDBusConnection>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QDBusMessage;

namespace kestrova {

class NotificationSignals;

// Notifications through the service that desktops offer for them on the user's message bus
// (org.freedesktop.Notifications). Nothing is asked of the bus before there is something to show.
// The bus is reached in a thread of its own and each call is given up after a while, so that
// nobody waits for a bus or a service that is dead; what could not be shown then is tried again
// with the next thing to show.
class DesktopNotifier : public Notifier {
public:
    static constexpr std::chrono::milliseconds kAnswerLimit{25'000};

    explicit DesktopNotifier(std::chrono::milliseconds answerLimit = kAnswerLimit);

    // Takes away what is shown: nobody would answer to it any more.
    ~DesktopNotifier() override;
    DesktopNotifier(const DesktopNotifier&) = delete;
    DesktopNotifier& operator=(const DesktopNotifier&) = delete;

    void Show(const Notification& notification) override;
    void Close() override;
    void OnAction(std::function<void(const std::string& key)> chosen) override {
        chosen_ = std::move(chosen);
    }

    // Why the last thing to show was not shown, in the words of the system; empty when it was.
    [[nodiscard]] const std::string& Trouble() const { return trouble_; }

private:
    struct Link;

    using Answered = std::function<void(const QDBusMessage& answer)>;

    void Settle();
    void Connect();
    void Connected();
    void AskCapabilities();
    void Send(bool takesMarkup, bool takesAnswers, const QString& server);
    void Ask(const QDBusMessage& question, Answered answered);
    void GiveUp(const QString& trouble);
    [[nodiscard]] bool IsOurs(const QDBusMessage& said) const;

    int limit_;                  // milliseconds
    QString name_;               // of the connection
    std::shared_ptr<Link> link_; // with the thread that connects, which may outlive this object
    std::unique_ptr<NotificationSignals> signals_;
    std::optional<QDBusConnection> connection_;
    std::optional<Notification> wanted_;
    bool unsettled_ = false; // the desktop does not know yet what is wanted
    bool busy_ = false;      // the bus or the service has been asked something
    QString server_;         // that shows the notification, by its unique name
    unsigned id_ = 0;        // that it has there; 0: none is shown
    std::function<void(const std::string& key)> chosen_;
    std::string trouble_;
};

} // namespace kestrova
