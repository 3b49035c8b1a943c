// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// Something directly in the root of a picture, its bytes with the tags around it.
struct SvgPart {
    std::string_view Element;
    std::string_view Id;
    std::string_view Bytes;
};

// A picture that holds nothing but shapes, groups and gradients.
struct SvgParts {
    std::string_view RootTag;
    std::string_view ViewBox;
    std::vector<SvgPart> Parts;
};

struct SvgFault {
    std::string What; // what it holds that it may not; empty when it is no picture at all
};

// Goes through a picture from front to back and refuses it at the first thing that is not on the
// list of what may be there. It knows as much of the format as plain pictures use, and takes
// nothing for granted that it does not know. The parts are views into the bytes.
class SvgScanner {
public:
    explicit SvgScanner(std::string_view bytes) : rest_(bytes) {}

    // The parts; nothing when it was refused.
    [[nodiscard]] std::optional<SvgParts> Scan();
    [[nodiscard]] const SvgFault& Fault() const { return fault_; }

private:
    struct Tag {
        std::string_view Name;
        bool Closed = false; // "<a/>"
    };

    bool Refuse(std::string what);
    bool Pass(std::string_view until);
    bool SkipToTag();
    bool TakeTag();
    bool TakeStart();
    bool TakeEnd();
    bool TakeAttribute(std::string_view& name, std::string_view& value);
    bool CheckAttribute(std::string_view name, std::string_view value);
    bool CheckStyle(std::string_view style);
    void Open(const Tag& tag, const char* begin, std::string_view id, std::string_view viewBox);
    void Close();

    std::string_view rest_;
    SvgFault fault_;
    SvgParts parts_;
    std::vector<std::string_view> open_;
    const char* partBegin_ = nullptr;
    int elements_ = 0;
    bool done_ = false;
};

} // namespace kestrova
