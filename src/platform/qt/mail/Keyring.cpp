// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/mail/Keyring.h"

#include <QCoreApplication>
#include <QThread>

#include <qt6keychain/keychain.h>

#include <functional>
#include <mutex>
#include <utility>

namespace kestrova {

namespace {

constexpr unsigned long kGoodBye = 500; // milliseconds

struct Slip {
    std::mutex Guard;
    std::optional<Result<std::string>> Answer;
};

class ThreadQuestion : public KeyringQuestion {
public:
    explicit ThreadQuestion(std::shared_ptr<Slip> slip) : slip_(std::move(slip)) {}

    [[nodiscard]] std::optional<Result<std::string>> Answer() const override {
        const std::lock_guard lock(slip_->Guard);
        return slip_->Answer;
    }

private:
    std::shared_ptr<Slip> slip_;
};

Result<std::string> AnswerOf(const QKeychain::Job& job, std::string password) {
    switch (job.error()) {
    case QKeychain::NoError: return password;
    case QKeychain::EntryNotFound: return Error{ErrorCode::NotFound, {}};
    default: return Error{ErrorCode::Failed, {}};
    }
}

// The thread of all questions. The library below keeps what it has found of the keyring, and keeps
// it for the thread that asked first, so this one lives as long as the program.
QObject& Clerk() {
    static QObject* const clerk = [] {
        auto* const thread = new QThread;
        auto* const made = new QObject;
        made->moveToThread(thread);
        thread->start();
        QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, thread,
                         [thread] {
                             thread->quit();
                             thread->wait(kGoodBye); // one that a dead keyring holds is left behind
                         });
        return made;
    }();
    return *clerk;
}

// Puts a question; `password` says what it has brought.
template<typename Job>
std::unique_ptr<KeyringQuestion> Put(const std::string& name, std::function<void(Job&)> prepare,
                                     std::function<std::string(const Job&)> password) {
    auto slip = std::make_shared<Slip>();
    QMetaObject::invokeMethod(
        &Clerk(),
        [slip, name, prepare = std::move(prepare), password = std::move(password)] {
            auto* const job = new Job(QStringLiteral("Kestrova")); // goes by itself when it is done
            job->setInsecureFallback(false); // without a keyring no password is kept
            job->setKey(QString::fromStdString(name));
            prepare(*job);
            QObject::connect(job, &QKeychain::Job::finished, job, [slip, job, password] {
                const std::lock_guard lock(slip->Guard);
                slip->Answer = AnswerOf(*job, password(*job));
            });
            job->start();
        },
        Qt::QueuedConnection);
    return std::make_unique<ThreadQuestion>(std::move(slip));
}

} // namespace

std::unique_ptr<KeyringQuestion> AskKeyring(const std::string& name) {
    using Job = QKeychain::ReadPasswordJob;
    return Put<Job>(
        name, [](Job&) {}, [](const Job& job) { return job.textData().toStdString(); });
}

std::unique_ptr<KeyringQuestion> TellKeyring(const std::string& name, const std::string& password) {
    using Job = QKeychain::WritePasswordJob;
    return Put<Job>(
        name, [password](Job& job) { job.setTextData(QString::fromStdString(password)); },
        [](const Job&) { return std::string(); });
}

} // namespace kestrova
