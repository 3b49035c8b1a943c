// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/DesktopNotifier.h"

#include "platform/qt/NotificationSignals.h"
#include "platform/qt/QtText.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QLocalSocket>
#include <QVariantMap>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace kestrova {

namespace {

constexpr int kGoodBye = 300;        // milliseconds, for the last word
constexpr int kGreeting = 3000;      // milliseconds for a bus to say a first word
constexpr qsizetype kLongest = 1000; // characters: a bubble is no page

QString Service() {
    return QStringLiteral("org.freedesktop.Notifications");
}

QString Path() {
    return QStringLiteral("/org/freedesktop/Notifications");
}

QDBusMessage Question(const QString& service, const char* method) {
    return QDBusMessage::createMethodCall(service, Path(), Service(), QLatin1String(method));
}

// Where the user's message bus listens; empty when there is none.
QByteArray BusAddress() {
    const QByteArray told = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray socket = qgetenv("XDG_RUNTIME_DIR") + "/bus";
    const bool usual = told.isEmpty() && QFile::exists(QFile::decodeName(socket));
    return usual ? "unix:path=" + socket : told;
}

// Whether the bus greets who comes. The library waits for one that is dead for half a minute, and
// the end of the program would wait with it. Where there is none, the library would start one.
bool BusAnswers() {
    QByteArray address = BusAddress();
    address = address.split(';').first();
    const bool hidden = address.startsWith("unix:abstract=");
    if (!hidden && !address.startsWith("unix:path=")) {
        return !address.isEmpty(); // some other kind of bus
    }
    address = address.mid(address.indexOf('=') + 1).split(',').first();
    QLocalSocket socket;
    socket.setSocketOptions(hidden ? QLocalSocket::AbstractNamespaceOption
                                   : QLocalSocket::NoOptions);
    socket.connectToServer(QFile::decodeName(QByteArray::fromPercentEncoding(address)));
    if (!socket.waitForConnected(kGreeting)) {
        return false;
    }
    // Asking how one may sign on: a nought, a line, and a line comes back.
    socket.write(QByteArray("\0AUTH\r\n", 7));
    return socket.waitForReadyRead(kGreeting);
}

// The text as the bus takes it: no NUL, and nothing else that no one can see.
QString Sendable(const std::string& text) {
    QString sendable = ToQt(text);
    std::replace_if(
        sendable.begin(), sendable.end(),
        [](QChar c) { return c != u'\n' && c.category() == QChar::Other_Control; }, u' ');
    return sendable.size() > kLongest ? sendable.left(kLongest - 1) + u'…' : sendable;
}

} // namespace

struct DesktopNotifier::Link {
    std::mutex Guard;
    QObject* Receiver = nullptr; // null when nobody wants the connection any more

    // Posting an event to an object that lives is safe in any thread; the lock keeps it alive.
    bool Post(std::function<void()> news) {
        const std::lock_guard lock(Guard);
        return Receiver != nullptr &&
               QMetaObject::invokeMethod(Receiver, std::move(news), Qt::QueuedConnection);
    }
};

DesktopNotifier::DesktopNotifier(std::chrono::milliseconds answerLimit)
    : limit_(static_cast<int>(answerLimit.count())), link_(std::make_shared<Link>()),
      signals_(std::make_unique<NotificationSignals>()) {
    static std::atomic<int> count = 0;
    name_ = QStringLiteral("kestrova-notifier-%1").arg(++count);
    link_->Receiver = signals_.get();
    signals_->Invoked = [this](const QDBusMessage& said) {
        if (IsOurs(said) && chosen_) {
            chosen_(FromQt(said.arguments().value(1).toString()));
        }
    };
    signals_->Closed = [this](const QDBusMessage& said) {
        if (IsOurs(said)) {
            id_ = 0;
        }
    };
}

DesktopNotifier::~DesktopNotifier() {
    {
        const std::lock_guard lock(link_->Guard);
        link_->Receiver = nullptr;
    }
    if (connection_) {
        if (id_ != 0) {
            // A message that is not waited for might not leave before the program has ended.
            (void)connection_->call(Question(server_, "CloseNotification") << id_, QDBus::Block,
                                    kGoodBye);
        }
        QDBusConnection::disconnectFromBus(name_);
    }
}

void DesktopNotifier::Show(const Notification& notification) {
    wanted_ = notification;
    unsettled_ = true;
    Settle();
}

void DesktopNotifier::Close() {
    wanted_.reset();
    unsettled_ = true;
    Settle();
}

// Brings the desktop to what is wanted, one step after the other.
void DesktopNotifier::Settle() {
    if (busy_ || !unsettled_) {
        return;
    }
    if (wanted_) {
        if (connection_) {
            AskCapabilities();
        } else {
            Connect();
        }
        return;
    }
    unsettled_ = false;
    if (id_ != 0) {
        connection_->send(Question(server_, "CloseNotification") << id_);
        id_ = 0;
    }
}

void DesktopNotifier::Connect() {
    busy_ = true;
    const auto connect = [this, link = link_, name = name_] {
        if (!BusAnswers()) {
            (void)link->Post([this] {
                busy_ = false;
                GiveUp(QStringLiteral("no message bus"));
            });
            return;
        }
        const auto made = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        const QString trouble = made.isConnected() ? QString() : made.lastError().message();
        const bool wanted = link->Post([this, made, trouble] {
            busy_ = false;
            if (made.isConnected()) {
                connection_ = made;
                Connected();
            } else {
                QDBusConnection::disconnectFromBus(name_);
                GiveUp(trouble);
            }
        });
        if (!wanted) {
            QDBusConnection::disconnectFromBus(name);
        }
    };
    try {
        std::thread(connect).detach();
    } catch (const std::system_error& error) {
        busy_ = false;
        GiveUp(QString::fromLocal8Bit(error.what()));
    }
}

// Signals of no service in particular: to ask who has the service's name would be to wait.
void DesktopNotifier::Connected() {
    connection_->connect(QString(), Path(), Service(), QStringLiteral("ActionInvoked"),
                         signals_.get(), SLOT(ActionInvoked(QDBusMessage)));
    connection_->connect(QString(), Path(), Service(), QStringLiteral("NotificationClosed"),
                         signals_.get(), SLOT(NotificationClosed(QDBusMessage)));
    Settle();
}

bool DesktopNotifier::IsOurs(const QDBusMessage& said) const {
    return id_ != 0 && said.service() == server_ && said.arguments().value(0).toUInt() == id_;
}

// Each time anew, for another service may have come.
void DesktopNotifier::AskCapabilities() {
    Ask(Question(Service(), "GetCapabilities"), [this](const QDBusMessage& answer) {
        const QStringList can = answer.arguments().value(0).toStringList();
        Send(can.contains(QStringLiteral("body-markup")), can.contains(QStringLiteral("actions")),
             answer.service());
    });
}

void DesktopNotifier::Send(bool takesMarkup, bool takesAnswers, const QString& server) {
    if (!wanted_) {
        Settle(); // it has been taken back meanwhile
        return;
    }
    const QString body = Sendable(wanted_->Body);
    QStringList actions;
    for (const NotificationAction& action : wanted_->Actions) {
        if (takesAnswers) {
            actions << ToQt(action.Key) << Sendable(action.Caption);
        }
    }
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("kestrova")},
        {QStringLiteral("urgency"), QVariant::fromValue<uchar>(1)}, // normal
        // The program beeps itself.
        {QStringLiteral("suppress-sound"), true},
    };
    constexpr int kAsUsual = -1; // how long it is shown
    const unsigned replaced = server == server_ ? id_ : 0;
    unsettled_ = false;
    Ask(Question(server, "Notify")
            << QStringLiteral("Kestrova") << replaced << QStringLiteral("kestrova")
            << Sendable(wanted_->Title) << (takesMarkup ? body.toHtmlEscaped() : body) << actions
            << hints << kAsUsual,
        [this](const QDBusMessage& answer) {
            server_ = answer.service();
            id_ = answer.arguments().value(0).toUInt();
            trouble_.clear();
            Settle();
        });
}

void DesktopNotifier::Ask(const QDBusMessage& question, Answered answered) {
    busy_ = true;
    auto* const watcher =
        new QDBusPendingCallWatcher(connection_->asyncCall(question, limit_), signals_.get());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, signals_.get(),
                     [this, watcher, answered = std::move(answered)] {
                         watcher->deleteLater();
                         busy_ = false;
                         const QDBusMessage answer = watcher->reply();
                         if (answer.type() == QDBusMessage::ReplyMessage) {
                             answered(answer);
                         } else {
                             GiveUp(answer.errorMessage());
                         }
                     });
}

// Nobody is there to show it, or to show what has come meanwhile.
void DesktopNotifier::GiveUp(const QString& trouble) {
    trouble_ = FromQt(trouble);
    unsettled_ = false;
    if (!connection_ || connection_->isConnected()) {
        return;
    }
    QDBusConnection::disconnectFromBus(name_); // the bus has gone; the next one is another
    connection_.reset();
    id_ = 0;
}

} // namespace kestrova
