// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/mail/MailFactory.h"

#include <curl/curl.h>

#include <array>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// The sockets of a line, which another thread may cut: the library waits for some answers where
// nothing else reaches it.
class CurlSockets {
public:
    void Add(curl_socket_t socket);
    void Close(curl_socket_t socket);

    // Ends whatever the line is waiting for.
    void Cut();

private:
    std::mutex guard_;
    std::vector<curl_socket_t> sockets_;
};

// One connection with a mail server, for the thread that waits for it. Every call returns within
// the limits of the rules, and soon after `isLeft` says so and the sockets have been cut.
class CurlLine {
public:
    // The sockets must outlive the line, which is not moved.
    CurlLine(const MailServer& server, const MailRules& rules, CurlSockets& sockets,
             std::function<bool()> isLeft);
    // Connects, protects the connection, signs on, and sends nothing.
    [[nodiscard]] MailOutcome SignOn();
    [[nodiscard]] MailOutcome Send(const MailEnvelope& envelope);
    // Says good-bye, when there is still somebody to say it to.
    void SignOff();

private:
    // To the compiler the library's two kinds of handle are one type.
    struct EasyCloser {
        void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
    };
    struct MultiCloser {
        void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
    };

    void SetUp(const MailRules& rules);
    [[nodiscard]] CURLcode Command(const char* command);
    [[nodiscard]] CURLcode Perform(std::chrono::milliseconds limit);
    [[nodiscard]] MailOutcome OutcomeOf(CURLcode code) const;
    [[nodiscard]] MailTrouble TroubleOf(CURLcode code) const;
    void Hear(std::string_view line);
    static std::size_t HearLine(char* bytes, std::size_t size, std::size_t count, void* self);
    static std::size_t TakeLetter(char* bytes, std::size_t size, std::size_t count, void* self);

    MailServer server_;
    std::chrono::milliseconds whole_;
    CurlSockets& sockets_;
    std::function<bool()> isLeft_;
    std::unique_ptr<CURLM, MultiCloser> multi_;
    std::unique_ptr<CURL, EasyCloser> easy_;
    std::array<char, CURL_ERROR_SIZE> complaint_{}; // the library's own words
    std::string answer_;                            // by which the server has refused
    bool open_ = false;                             // the last thing asked for has been done
    std::string letter_;
    std::string_view unsent_;
};

} // namespace kestrova
