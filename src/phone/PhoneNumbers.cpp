// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/PhoneNumbers.h"

#include "language/Texts.h"
#include "phone/ModemScript.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::string_view kDial = "ATD";

} // namespace

bool IsDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void PhoneNumbers::Fill(const std::array<std::string, 4>& numbers) {
    list_.clear();
    selected_ = 0;
    for (const std::string& number : numbers) {
        if (!number.empty() && list_.size() < kMost) {
            list_.push_back(number);
        }
    }
}

void PhoneNumbers::Select(std::size_t index) {
    if (index < list_.size()) {
        selected_ = index;
    }
}

void PhoneNumbers::Opened(const std::string& text) {
    if (!text.empty()) {
        Left(text);
    } else if (selected_ < list_.size()) {
        list_.erase(list_.begin() + static_cast<std::ptrdiff_t>(selected_));
        selected_ = 0;
    }
}

void PhoneNumbers::Left(const std::string& text) {
    const auto known = std::find(list_.begin(), list_.end(), text);
    if (text.empty() || known != list_.end()) {
        return;
    }
    if (list_.size() < kMost) {
        list_.push_back(text);
        selected_ = list_.size() - 1;
    } else {
        list_[selected_] = text;
    }
}

bool PhoneNumbers::AreValid() const {
    return std::all_of(list_.begin(), list_.end(), IsDigits);
}

std::string PhoneNumbers::ToDial(const std::string& text) const {
    if (!text.empty() || list_.empty()) {
        return text;
    }
    return list_.front();
}

std::array<std::string, 4> PhoneNumbers::Stored() const {
    std::array<std::string, 4> stored;
    std::copy(list_.begin(), list_.end(), stored.begin() + 1);
    return stored;
}

std::string DialString(std::string_view number, std::string_view family) {
    // Without it such a modem would leave its commands for data after dialling.
    const char* const end = family == kIs101Family ? ";" : "";
    return std::string(kDial).append(number).append(end);
}

std::string NumberIn(std::string_view dialString) {
    if (dialString.starts_with(kDial)) {
        dialString.remove_prefix(kDial.size());
    }
    return std::string(dialString.substr(0, dialString.find(';')));
}

std::string NumbersWarning(const StringTable& texts, const PhoneNumbers& numbers) {
    const auto stored = numbers.Stored();
    std::string text = texts.Text(texts::kNumbersToCall);
    for (std::size_t i = 1; i < stored.size(); ++i) {
        text += "\n" + stored[i];
    }
    return text + "\n" + texts.Text(texts::kCheckNumbers) + "\n" + texts.Text(texts::kNumbersCost);
}

} // namespace kestrova
