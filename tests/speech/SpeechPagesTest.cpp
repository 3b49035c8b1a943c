// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechPages.h"
#include "fakes/MemoryFileStore.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

const SetUpAdvice kAdvice{"https://example.org", "Install <a> & b"};

constexpr const char* kGermanStage2 =
    "<HTML>\r\n<HEAD>\r\n<SCRIPT LANGUAGE=\"JavaScript\">\r\n<!--\r\nfunction next()\r\n"
    "{location.href=\"stage3.htm\"}\r\n//--></SCRIPT>\r\n</HEAD>\r\n"
    "<BODY bgcolor=\"#FFCC00\" onLoad=\"next()\">\r\n<FONT SIZE=6>\r\n<BR><BR><BR>\r\n"
    "<P ALIGN=CENTER>\r\nPlease wait while the required speech components are downloaded\r\n"
    "<BR><BR><BR>\r\nStage 2 of 4\r\n<FONT SIZE=2>\r\n"
    "<p>The required windows components should download automatically from Microsoft.<br>\r\n"
    "If this does not happen it maybe because you have activeX components disabled in your "
    "explorer settings.<br>\r\n"
    "To check goto to your control panel and open the internet module, then click on the security "
    "tab.<br>\r\n"
    "In the zones list select internet zone and click on custom settings. Select the activeX "
    "options as follows.<br><br>\r\n"
    "Download signed ActiveX controls (Prompt)<br>\r\n"
    "Download unsigned ActiveX controls (Disable)<br>\r\n"
    "Initialize and script ActiveX controls not marked as safe (Disable)\r\n"
    "Run ActiveX controls and plug-ins (Enable)<br>\r\n"
    "Script ActiveX controls marked safe for scripting (Enable)<br></p>\r\n"
    "<OBJECT ID=\"AgentControl\" WIDTH=0 HEIGHT=0\r\n"
    "CLASSID = \"CLSID:D45FD31B-5C6E-11D1-9EC1-00C04FD7081F\"\r\n"
    "CODEBASE=\"#VERSION=2,0,0,0\">\r\n</OBJECT>\r\n</BODY>\r\n</HTML>\r\n";

bool Holds(const SpeechPage& page, const std::string& text) {
    return page.Text.find(text) != std::string::npos;
}

TEST(SpeechPagesTest, AnotherLanguageTakesFourStages) {
    const auto pages = SpeechPages(2, kAdvice);
    ASSERT_EQ(pages.size(), 5U);
    EXPECT_EQ(pages[0].Name, "Stage1.htm");
    EXPECT_TRUE(Holds(pages[0], "Stage 1 of 4\r\n"));
    EXPECT_TRUE(Holds(pages[0], "<OBJECT WIDTH=0 HEIGHT=0\r\n"
                                "CLASSID = \"CLSID:C3480407-A7F8-11D1-AA75-00C04FA34D72\"\r\n"
                                "CODEBASE=\"#VERSION=2,0,0,0\">\r\n"));
    EXPECT_EQ(pages[1].Text, kGermanStage2);
    EXPECT_TRUE(Holds(pages[2], "CLASSID = \"CLSID:0C7F3F20-8BAB-11d2-9432-00C04F8EF48F\"\r\n"
                                "CODEBASE=\"#VERSION=4,0,0,0\">"));
    EXPECT_TRUE(Holds(pages[3], "CLASSID = \"CLSID:1D87F5B5-05F1-11d2-AD7C-0000F8799342\"\r\n"
                                "CODEBASE=\"#VERSION=1,0,0,0\">"));
    EXPECT_TRUE(Holds(pages[3], "{location.href=\"stage5.htm\"}"));
}

TEST(SpeechPagesTest, EnglishBeginsWithTheThirdAndEveryChainEndsWithTheCharacters) {
    const auto pages = SpeechPages(0, kAdvice);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0].Name, "Stage3.htm");
    EXPECT_TRUE(Holds(pages[0], "Stage 1 of 2\r\n"));
    EXPECT_TRUE(Holds(pages[1], "<OBJECT ID=\"TruVoice\" WIDTH=0 HEIGHT=0\r\n"));
    EXPECT_TRUE(Holds(pages[1], "\"#VERSION=6,0,0,0\""));
    EXPECT_EQ(pages[2].Name, "Stage5.htm");
    EXPECT_TRUE(Holds(pages[2], "<p><a href=https://example.org>Merlin the Wizzard.</a><a></p>\r\n"
                                "<p>Then run the file to instal the character on your "
                                "computer.</p>\r\n<p>Install &lt;a&gt; &amp; b</p>\r\n"
                                "Download Complete\r\n"));
    EXPECT_FALSE(Holds(pages[2], "<OBJECT"));
}

TEST(SpeechPagesTest, PagesAreFoundByTheirLinksAndLeaveNothingBehind) {
    MemoryFileStore files;
    files.Put("/home/me/Help.htm", "");
    RemoveSpeechPages(files, "/home/me/");
    ASSERT_TRUE(WriteSpeechPages(files, "/home/me/", SpeechPages(0, kAdvice)));
    EXPECT_EQ(files.Paths(), (std::set<std::string>{"/home/me/Help.htm", "/home/me/Stage3.htm",
                                                    "/home/me/Stage4.htm", "/home/me/Stage5.htm",
                                                    "/home/me/stage4.htm", "/home/me/stage5.htm"}));
    RemoveSpeechPages(files, "/home/me/");
    EXPECT_EQ(files.Paths(), (std::set<std::string>{"/home/me/Help.htm"}));
    files.FailWrites(Error{ErrorCode::Full, "full"});
    EXPECT_FALSE(WriteSpeechPages(files, "/home/me/", SpeechPages(1, kAdvice)));
}

} // namespace
} // namespace kestrova
