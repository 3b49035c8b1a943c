// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <string>

namespace kestrova {

// A printing system of the test's own: the real scheduler on 127.0.0.1, with folders of its own and
// a queue "paper" that knows the thirteen papers. It keeps the documents as they arrive, and as its
// filters would give them to a printer. While it is there, this process prints with it.
class PrivateCups {
public:
    PrivateCups();
    ~PrivateCups();
    PrivateCups(const PrivateCups&) = delete;
    PrivateCups& operator=(const PrivateCups&) = delete;
    PrivateCups(PrivateCups&&) = delete;
    PrivateCups& operator=(PrivateCups&&) = delete;

    // Whether the scheduler is installed on this machine.
    [[nodiscard]] static bool IsInstalled();

    [[nodiscard]] bool Runs();
    void Stop();

    [[nodiscard]] int Port() const { return port_; }

    // Makes this process print with what listens there.
    static void Use(int port);

    // Makes a queue, and makes it the system's default. It keeps what its printer gets in
    // "<name>.pdf".
    bool AddQueue(const QString& name);

    // Puts away what "lpoptions" has been told.
    void ForgetUserChoices() const;

    // Runs one of the system's own tools; whether it succeeded.
    bool Tool(const QString& name, const QStringList& arguments) const;

    // What is known of a job, by the names of the attributes: "job-name", "media", "job-state"...
    // Empty when there is no such job.
    [[nodiscard]] std::map<std::string, std::string> Job(int number) const;
    [[nodiscard]] int LastJob() const; // 0: there has been none

    // The document of a job as it arrived, and as the printer got it; empty when there is none.
    [[nodiscard]] QString Arrived(int job) const;
    [[nodiscard]] QString Printed(const QString& queue);

    [[nodiscard]] QByteArray Log() const;

private:
    [[nodiscard]] QString In(const char* name) const;
    void Write(const char* name, const QByteArray& content) const;

    QTemporaryDir folder_;
    QProcess scheduler_;
    int port_ = 0;
};

} // namespace kestrova
