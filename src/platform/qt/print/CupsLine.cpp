// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/print/CupsLine.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace kestrova {

namespace {

constexpr double kAskEvery = 0.1; // seconds of silence after which it is asked whether to go on

int GoOn(http_t* /*http*/, void* end) {
    return std::chrono::steady_clock::now() < *static_cast<CupsLine::Moment*>(end) ? 1 : 0;
}

// Nobody is asked for a password: the library would do it on the terminal.
const char* NoPassword(const char* /*prompt*/, http_t* /*http*/, const char* /*method*/,
                       const char* /*resource*/, void* /*data*/) {
    return nullptr;
}

int MillisecondsUntil(CupsLine::Moment end) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        end - std::chrono::steady_clock::now());
    return std::max(1, static_cast<int>(left.count()));
}

} // namespace

CupsLine::CupsLine(Moment end) : end_(std::make_unique<Moment>(end)) {
    cupsSetPasswordCB2(NoPassword, nullptr); // the library's own settings are each thread's own
    http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                             MillisecondsUntil(end), nullptr));
    if (http_) {
        httpSetTimeout(http_.get(), kAskEvery, GoOn, end_.get());
    }
}

bool CupsLine::InTime() const {
    return std::chrono::steady_clock::now() < *end_;
}

Error CupsLine::Trouble() const {
    if (!InTime()) {
        return {ErrorCode::Busy, {}};
    }
    const char* const words = cupsLastErrorString();
    std::string text = words != nullptr ? words : "";
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
    case IPP_STATUS_ERROR_GONE: return {ErrorCode::NotFound, std::move(text)};
    default: return {ErrorCode::Failed, std::move(text)};
    }
}

} // namespace kestrova
