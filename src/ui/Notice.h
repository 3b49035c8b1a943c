// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

class QMessageBox;

namespace kestrova {

// Something to tell that nobody has asked for. It stands above other windows without taking the
// keyboard, and nothing waits for it; what comes while it stands is added.
class Notice {
public:
    Notice();
    ~Notice();
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

    void Tell(const QString& title, const QString& text);

private:
    std::unique_ptr<QMessageBox> box_;
};

} // namespace kestrova
