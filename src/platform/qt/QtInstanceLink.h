// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/InstanceLink.h"

#include <QLocalServer>
#include <QLockFile>

#include <memory>
#include <vector>

namespace kestrova {

// The link as a local socket in a folder that only this user can enter, guarded by a lock file:
// without the lock, of several programs started at once more than one would become the server.
class QtInstanceLink : public InstanceLink {
public:
    // `folder` is empty for the user's own runtime folder.
    explicit QtInstanceLink(const std::string& folder = {});
    ~QtInstanceLink() override;

    InstanceRole Join() override;
    void OnPoke(std::function<void(std::string_view text)> handler) override;

private:
    bool Listen();
    void Receive();

    QString folder_;
    std::unique_ptr<QLockFile> lock_;
    QLocalServer server_;
    std::function<void(std::string_view)> handler_;
    std::vector<std::string> early_; // pokes that came before anyone listened
};

} // namespace kestrova
