// SPDX-License-Identifier: GPL-3.0-or-later
// The mail account, which reads back equal, and letters, in which nothing leaves its place.
#include "Expect.h"

#include "mail/MailAccount.h"

using kestrova::fuzz::Expect;

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view input = kestrova::fuzz::View(data, size);
    if (const auto account = kestrova::ReadMailAccount(input)) {
        Expect(kestrova::FaultOf(*account) == kestrova::AccountFault::None, "an account is whole");
        Expect(kestrova::ReadMailAccount(kestrova::WriteMailAccount(*account)) == account,
               "an account that was read is written for good");
    }
    if (kestrova::IsMailAddress(input)) {
        Expect(input.find_first_of(" \r\n\t<>\",;") == std::string_view::npos,
               "addresses are bare");
    }
    const std::string text(input);
    const std::string letter =
        kestrova::WriteLetter({{text, "a@b.org"}, {text, "c@d.org"}, text, text});
    const std::size_t body = letter.find("\r\n\r\n");
    Expect(body != std::string::npos && body == letter.rfind("\r\n\r\n"), "one empty line");
    for (std::size_t at = 0; at < letter.size();) {
        const std::size_t end = letter.find("\r\n", at);
        Expect(end != std::string::npos && end - at <= 78, "lines are short");
        Expect(letter.substr(at, end - at).find_first_of("\r\n") == std::string::npos, "and whole");
        at = end + 2;
    }
    return 0;
}
