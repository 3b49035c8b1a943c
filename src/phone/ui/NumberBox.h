// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLineEdit>

#include <functional>

namespace kestrova {

// A box to type numbers into, with a list of those there are. What becomes of a typed number is the
// owner's to say: the box by itself neither adds nor completes.
class NumberBox : public QComboBox {
public:
    explicit NumberBox(QWidget* parent) : QComboBox(parent) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        lineEdit()->setMaxLength(kLongestNumber);
    }

    std::function<void()> DropDown; // called before the list opens

    void showPopup() override {
        if (DropDown) {
            DropDown();
        }
        if (count() > 0) {
            QComboBox::showPopup();
        }
    }

private:
    static constexpr int kLongestNumber = 40; // longer ones no exchange takes
};

} // namespace kestrova
