// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/mail/CurlLine.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <optional>
#include <random>
#include <sys/socket.h>
#include <unistd.h>

namespace kestrova {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kWaitAtOnce = 200; // milliseconds
constexpr std::chrono::milliseconds kSignOffLimit{2000};
constexpr std::chrono::milliseconds kLetGo{1500};
constexpr std::size_t kLongestAnswer = 200; // bytes of a server's words that a user is shown

// In the language of letters, whatever the locale.
std::string DateLine() {
    constexpr std::array kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr std::array kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    gmtime_r(&now, &utc);
    std::array<char, 64> line{};
    (void)std::snprintf(line.data(), line.size(), "Date: %s, %d %s %d %02d:%02d:%02d +0000\r\n",
                        kDays[static_cast<std::size_t>(utc.tm_wday)], utc.tm_mday,
                        kMonths[static_cast<std::size_t>(utc.tm_mon)], utc.tm_year + 1900,
                        utc.tm_hour, utc.tm_min, utc.tm_sec);
    return line.data();
}

// An id that no other letter has, in the domain of the sender and without a word about the machine.
std::string IdLine(const std::string& sender) {
    std::random_device random;
    std::array<char, 40> id{};
    (void)std::snprintf(id.data(), id.size(), "%08x%08x%08x", random(), random(), random());
    return "Message-ID: <" + std::string(id.data()) + sender.substr(sender.rfind('@')) + ">\r\n";
}

std::string AddressOf(const MailServer& server) {
    const bool tls = server.Security == MailSecurity::Tls;
    return (tls ? "smtps://" : "smtp://") + server.Host + ":" + std::to_string(server.Port);
}

curl_socket_t OpenSocket(void* sockets, curlsocktype /*purpose*/, curl_sockaddr* address) {
    const curl_socket_t opened =
        ::socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
    if (opened != CURL_SOCKET_BAD) {
        static_cast<CurlSockets*>(sockets)->Add(opened);
    }
    return opened;
}

int CloseSocket(void* sockets, curl_socket_t socket) {
    static_cast<CurlSockets*>(sockets)->Close(socket);
    return 0;
}

} // namespace

void CurlSockets::Add(curl_socket_t socket) {
    const std::lock_guard lock(guard_);
    sockets_.push_back(socket);
}

void CurlSockets::Close(curl_socket_t socket) {
    const std::lock_guard lock(guard_);
    std::erase(sockets_, socket);
    ::close(socket);
}

void CurlSockets::Cut() {
    const std::lock_guard lock(guard_);
    for (const curl_socket_t socket : sockets_) {
        ::shutdown(socket, SHUT_RDWR);
    }
}

CurlLine::CurlLine(const MailServer& server, const MailRules& rules, CurlSockets& sockets,
                   std::function<bool()> isLeft)
    : server_(server), whole_(rules.Whole), sockets_(sockets), isLeft_(std::move(isLeft)),
      multi_(curl_multi_init()), easy_(curl_easy_init()) {
    if (easy_) {
        SetUp(rules);
    }
}

void CurlLine::SetUp(const MailRules& rules) {
    CURL* const easy = easy_.get();
    curl_easy_setopt(easy, CURLOPT_URL, AddressOf(server_).c_str());
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, &OpenSocket);
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETDATA, &sockets_);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETFUNCTION, &CloseSocket);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETDATA, &sockets_);
    // A way around would see what goes by; mail goes to its server and nowhere else.
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(rules.Connect.count()));
    curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, complaint_.data());
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, &CurlLine::HearLine);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
    // What a server says goes to the headers, and nothing of it to the terminal.
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &CurlLine::HearLine);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    if (server_.Security != MailSecurity::None) {
        // Not "try": a server, or whoever pretends to be it, could talk us out of that.
        curl_easy_setopt(easy, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
    }
    if (!rules.CaFile.empty()) {
        curl_easy_setopt(easy, CURLOPT_CAINFO, rules.CaFile.c_str());
    }
    if (!server_.User.empty()) {
        curl_easy_setopt(easy, CURLOPT_USERNAME, server_.User.c_str());
        curl_easy_setopt(easy, CURLOPT_PASSWORD, server_.Password.c_str());
    }
}

std::size_t CurlLine::HearLine(char* bytes, std::size_t size, std::size_t count, void* self) {
    static_cast<CurlLine*>(self)->Hear({bytes, size * count});
    return size * count;
}

std::size_t CurlLine::TakeLetter(char* bytes, std::size_t size, std::size_t count, void* self) {
    std::string_view& unsent = static_cast<CurlLine*>(self)->unsent_;
    const std::size_t taken = unsent.copy(bytes, size * count);
    unsent.remove_prefix(taken);
    return taken;
}

// The line by which the server refuses, of all that it says. Its words are a stranger's: only what
// can be printed, and not too much of it.
void CurlLine::Hear(std::string_view line) {
    if (!line.starts_with('4') && !line.starts_with('5')) {
        return;
    }
    answer_.clear();
    for (const char c : line.substr(0, kLongestAnswer)) {
        if (c >= ' ' && c <= '~') {
            answer_ += c;
        }
    }
}

CURLcode CurlLine::Perform(std::chrono::milliseconds limit) {
    if (!multi_ || !easy_ || curl_multi_add_handle(multi_.get(), easy_.get()) != CURLM_OK) {
        return CURLE_OUT_OF_MEMORY;
    }
    complaint_[0] = '\0';
    answer_.clear();
    curl_easy_setopt(easy_.get(), CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count()));
    // The library keeps the limit, and who leaves cuts the connection. The rest is for a line that
    // waits for the name of its server. To take a letter from the library while it is being sent
    // would end it where it is, and half of it would go.
    const auto end = Clock::now() + limit + kLetGo;
    std::optional<Clock::time_point> left;
    CURLcode code = CURLE_OPERATION_TIMEDOUT;
    int running = 1;
    while (running != 0 && Clock::now() < (left ? std::min(end, *left + kLetGo) : end)) {
        if (curl_multi_perform(multi_.get(), &running) != CURLM_OK) {
            code = CURLE_OUT_OF_MEMORY;
            break;
        }
        if (!left && isLeft_()) {
            left = Clock::now();
            sockets_.Cut(); // one that has been opened since
        } else if (running != 0) {
            curl_multi_poll(multi_.get(), nullptr, 0, kWaitAtOnce, nullptr);
        }
    }
    int waiting = 0;
    while (const CURLMsg* const message = curl_multi_info_read(multi_.get(), &waiting)) {
        if (message->msg == CURLMSG_DONE) {
            code = message->data.result;
        }
    }
    curl_multi_remove_handle(multi_.get(), easy_.get());
    open_ = code == CURLE_OK;
    if (!open_) {
        // The library may keep the connection all the same, and then wait two minutes for an
        // answer to its good-bye.
        sockets_.Cut();
    }
    return code;
}

CURLcode CurlLine::Command(const char* command) {
    curl_easy_setopt(easy_.get(), CURLOPT_NOBODY, 1L);
    curl_easy_setopt(easy_.get(), CURLOPT_CUSTOMREQUEST, command);
    return Perform(command == std::string_view("QUIT") ? kSignOffLimit : whole_);
}

MailOutcome CurlLine::SignOn() {
    return OutcomeOf(Command("NOOP"));
}

MailOutcome CurlLine::Send(const MailEnvelope& envelope) {
    CURL* const easy = easy_.get();
    letter_ = DateLine() + IdLine(envelope.Sender) + envelope.Letter;
    unsent_ = letter_;
    const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> to(
        curl_slist_append(nullptr, envelope.Recipient.c_str()), &curl_slist_free_all);
    curl_easy_setopt(easy, CURLOPT_CUSTOMREQUEST, nullptr);
    curl_easy_setopt(easy, CURLOPT_NOBODY, 0L);
    curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(easy, CURLOPT_MAIL_FROM, envelope.Sender.c_str());
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, to.get());
    curl_easy_setopt(easy, CURLOPT_READFUNCTION, &CurlLine::TakeLetter);
    curl_easy_setopt(easy, CURLOPT_READDATA, this);
    curl_easy_setopt(easy, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(letter_.size()));
    const CURLcode code = Perform(whole_);
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, nullptr); // the list goes with this function
    return OutcomeOf(code);
}

void CurlLine::SignOff() {
    if (!open_) {
        return; // another connection would be made only to be ended
    }
    // The library would say it by itself when the line goes, but wait two minutes for an answer.
    isLeft_ = [] { return false; }; // whoever has left has done so before
    curl_easy_setopt(easy_.get(), CURLOPT_UPLOAD, 0L);
    curl_easy_setopt(easy_.get(), CURLOPT_SERVER_RESPONSE_TIMEOUT, 1L);
    curl_easy_setopt(easy_.get(), CURLOPT_FORBID_REUSE, 1L);
    (void)Command("QUIT"); // nobody is left to whom a failure would matter
}

MailOutcome CurlLine::OutcomeOf(CURLcode code) const {
    MailOutcome outcome{TroubleOf(code), {}};
    const bool answered = outcome.Trouble == MailTrouble::Sender ||
                          outcome.Trouble == MailTrouble::Recipient ||
                          outcome.Trouble == MailTrouble::Refused;
    // A server that refuses a password may quote it. It is asked for no other secret.
    const bool quotes =
        !server_.Password.empty() && answer_.find(server_.Password) != std::string::npos;
    if (answered && !quotes) {
        outcome.Words = answer_;
    }
    return outcome;
}

MailTrouble CurlLine::TroubleOf(CURLcode code) const {
    const std::string_view complaint(complaint_.data());
    switch (code) {
    case CURLE_OK: return MailTrouble::None;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
    case CURLE_URL_MALFORMAT: return MailTrouble::Unreachable;
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR: return MailTrouble::Silent;
    case CURLE_USE_SSL_FAILED:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER: return MailTrouble::NotSecure;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CACERT_BADFILE: return MailTrouble::Untrusted;
    case CURLE_LOGIN_DENIED:
    case CURLE_AUTH_ERROR: return MailTrouble::Password;
    default: break;
    }
    // The library has one code for whatever is refused, and tells by its words what it was.
    if (complaint.starts_with("MAIL failed")) {
        return MailTrouble::Sender;
    }
    if (complaint.starts_with("RCPT failed")) {
        return MailTrouble::Recipient;
    }
    return answer_.empty() ? MailTrouble::Silent : MailTrouble::Refused;
}

} // namespace kestrova
