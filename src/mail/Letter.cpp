// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/Letter.h"

#include "text/Lines.h"

#include <algorithm>
#include <cstdint>

namespace kestrova {

namespace {

constexpr std::size_t kLongestMailbox = 64; // what stands before the "@"
constexpr std::size_t kLongestLabel = 63;   // between two dots of a place
constexpr std::size_t kWordBytes = 36;      // of an encoded word: header lines stay below 76
constexpr std::size_t kLineBytes = 57;      // of a line of the body: 76 letters

bool IsPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool IsMailboxLetter(char c) {
    return IsPlain(c) || std::string_view("!#$%&'*+-/=?^_`{|}~.").find(c) != std::string_view::npos;
}

bool IsLabel(std::string_view label) {
    return !label.empty() && label.size() <= kLongestLabel && label.front() != '-' &&
           label.back() != '-' &&
           std::all_of(label.begin(), label.end(), [](char c) { return IsPlain(c) || c == '-'; });
}

bool IsPlace(std::string_view place) {
    while (true) {
        const std::size_t dot = place.find('.');
        if (!IsLabel(place.substr(0, dot))) {
            return false;
        }
        if (dot == std::string_view::npos) {
            return true;
        }
        place.remove_prefix(dot + 1);
    }
}

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kLetters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            group = group << 8U | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            out += k <= count ? kLetters[group >> (18 - 6 * k) & 63U] : '=';
        }
    }
    return out;
}

// As much of a text as fits, without cutting a letter in two.
std::string_view Head(std::string_view text, std::size_t limit) {
    if (text.size() <= limit) {
        return text;
    }
    const auto goesOn = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    std::size_t end = limit;
    while (end > 0 && goesOn(text[end])) {
        --end;
    }
    return text.substr(0, end == 0 ? limit : end); // bytes that are no text are cut anywhere
}

// A text as a header holds it, be it as long as it likes.
std::string EncodedWords(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::string_view word = Head(text, kWordBytes);
        text.remove_prefix(word.size());
        out += (out.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + Base64(word) + "?=";
    }
    return out;
}

std::string Mailbox(const MailPerson& person) {
    const std::string name(Head(AsOneLine(person.Name), kLongestName));
    const std::string words = EncodedWords(name);
    return (words.empty() ? words : words + "\r\n ") + "<" + person.Address + ">";
}

// Every line end, whatever it is, as letters have it.
std::string WithLineEnds(std::string_view text) {
    std::string out;
    LineReader lines(text);
    bool first = true;
    while (const auto line = lines.Next()) {
        out.append(first ? "" : kLineEnd).append(*line);
        first = false;
    }
    return out.append(kLineEnd);
}

} // namespace

bool IsMailAddress(std::string_view text) {
    const std::size_t at = text.find('@');
    if (at == std::string_view::npos || text.size() > kLongestAddress) {
        return false;
    }
    const std::string_view mailbox = text.substr(0, at);
    return !mailbox.empty() && mailbox.size() <= kLongestMailbox &&
           std::all_of(mailbox.begin(), mailbox.end(), IsMailboxLetter) &&
           IsPlace(text.substr(at + 1));
}

std::string WriteLetter(const Letter& letter) {
    std::string out = "From: " + Mailbox(letter.From) + "\r\n";
    out += "To: " + Mailbox(letter.To) + "\r\n";
    out += "Subject: " + EncodedWords(AsOneLine(letter.Subject)) + "\r\n";
    out += "MIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n"
           "Content-Transfer-Encoding: base64\r\n\r\n";
    const std::string text = WithLineEnds(letter.Text);
    for (std::size_t i = 0; i < text.size(); i += kLineBytes) {
        out += Base64(std::string_view(text).substr(i, kLineBytes)) + "\r\n";
    }
    return out;
}

} // namespace kestrova
