// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cassert>
#include <string>
#include <utility>
#include <variant>

namespace kestrova {

// Why an operation on a file or a device failed, as far as the program acts on the difference.
enum class ErrorCode {
    NotFound, // there is no such file, folder or device
    Busy,     // someone else holds it, or we are not permitted: it is whole, but not ours now
    Damaged,  // it is there and can be read, but is not what it should be
    TooLarge, // far larger than anything this program writes; not read
    Full,     // no room on the disc
    Failed,   // anything else; the text says what
};

struct Error {
    ErrorCode Code = ErrorCode::Failed;
    std::string Text; // for the user, in the words of the system or of whoever found it
};

// What can fail: a value, or the error in its place.
template<typename T> class [[nodiscard]] Result {
public:
    Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : state_(std::in_place_index<1>, std::move(error)) {}

    [[nodiscard]] bool Ok() const { return state_.index() == 0; }
    explicit operator bool() const { return Ok(); }

    [[nodiscard]] T& Value() {
        assert(Ok());
        return *std::get_if<0>(&state_);
    }
    [[nodiscard]] const T& Value() const {
        assert(Ok());
        return *std::get_if<0>(&state_);
    }
    [[nodiscard]] const Error& Failure() const {
        assert(!Ok());
        return *std::get_if<1>(&state_);
    }

private:
    std::variant<T, Error> state_;
};

// What can fail and has nothing to say when it does not.
struct Done {};
using Status = Result<Done>;

} // namespace kestrova
