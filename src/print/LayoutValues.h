// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageLayout.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrova {

// Takes the values of a layout file from its bytes, front to back. Each function answers whether
// there was such a value, and leaves what it is to fill as it was when there was none; nothing is
// asked after that.
class LayoutValues {
public:
    // The bytes must outlive this.
    explicit LayoutValues(std::string_view bytes);

    // The line on which the last value begins: "line 14".
    [[nodiscard]] std::string Line() const;

    // Between double quotes, over lines if need be, in UTF-8 with CR LF; no NUL, and at most
    // kLayoutTextLimit bytes.
    bool Text(std::string& text);

    bool Number(std::int32_t& value, std::int32_t least, std::int32_t most);
    bool Flag(bool& value); // any number; 0 is false

    // The two records. What is read before a value that is wrong is kept.
    bool Box(LayoutItem& item);
    bool Full(LayoutItem& item);

private:
    void Begin();
    void Pass(std::size_t end);
    bool Points(double& size);

    std::string_view rest_;
    int line_ = 1;
    int begun_ = 1;
};

} // namespace kestrova
