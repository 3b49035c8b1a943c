// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechPages.h"

#include "speech/SpeechIds.h"
#include "text/Lines.h"

#include <array>

namespace kestrova {

namespace {

constexpr int kPages = 5;

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string PageName(int number) {
    return "Stage" + std::to_string(number) + ".htm";
}

// The name by which a page is linked.
std::string LinkName(int number) {
    return "stage" + std::to_string(number) + ".htm";
}

// A part of the speech system, as a browser is asked for it.
struct Component {
    std::string_view Stage;
    std::string_view Name; // may be empty
    std::string ClassId;
    std::string_view Version;
};

class PageWriter {
public:
    PageWriter& Line(std::string_view text) {
        page_ += text;
        page_ += kLineEnd;
        return *this;
    }
    std::string Take() { return std::move(page_); }

private:
    std::string page_;
};

void WriteAdvice(PageWriter& page) {
    page.Line("<p>The required windows components should download automatically from "
              "Microsoft.<br>")
        .Line("If this does not happen it maybe because you have activeX components disabled in "
              "your explorer settings.<br>")
        .Line("To check goto to your control panel and open the internet module, then click on "
              "the security tab.<br>")
        .Line("In the zones list select internet zone and click on custom settings. Select the "
              "activeX options as follows.<br><br>")
        .Line("Download signed ActiveX controls (Prompt)<br>")
        .Line("Download unsigned ActiveX controls (Disable)<br>")
        .Line("Initialize and script ActiveX controls not marked as safe (Disable)")
        .Line("Run ActiveX controls and plug-ins (Enable)<br>")
        .Line("Script ActiveX controls marked safe for scripting (Enable)<br></p>");
}

std::string StagePage(int number, const Component& component) {
    PageWriter page;
    page.Line("<HTML>")
        .Line("<HEAD>")
        .Line("<SCRIPT LANGUAGE=" + Quoted("JavaScript") + ">")
        .Line("<!--")
        .Line("function next()")
        .Line("{location.href=" + Quoted(LinkName(number + 1)) + "}")
        .Line("//--></SCRIPT>")
        .Line("</HEAD>")
        .Line("<BODY bgcolor=" + Quoted("#FFCC00") + " onLoad=" + Quoted("next()") + ">")
        .Line("<FONT SIZE=6>")
        .Line("<BR><BR><BR>")
        .Line("<P ALIGN=CENTER>")
        .Line("Please wait while the required speech components are downloaded")
        .Line("<BR><BR><BR>")
        .Line(component.Stage)
        .Line("<FONT SIZE=2>");
    WriteAdvice(page);
    page.Line(component.Name.empty() ? "<OBJECT WIDTH=0 HEIGHT=0"
                                     : "<OBJECT ID=" + Quoted(component.Name) + " WIDTH=0 HEIGHT=0")
        .Line("CLASSID = " + Quoted(component.ClassId))
        .Line("CODEBASE=" + Quoted(component.Version) + ">")
        .Line("</OBJECT>")
        .Line("</BODY>")
        .Line("</HTML>");
    return page.Take();
}

std::string Escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&': html += "&amp;"; break;
        case '<': html += "&lt;"; break;
        case '>': html += "&gt;"; break;
        default: html += c;
        }
    }
    return html;
}

// The pages before it install nothing here, so this one, where everybody ends up, says what does.
std::string LastPage(const SetUpAdvice& advice) {
    PageWriter page;
    page.Line("<HTML>")
        .Line("<HEAD>")
        .Line("<META CHARSET=" + Quoted("UTF-8") + ">")
        .Line("</HEAD>")
        .Line("<BODY bgcolor=" + Quoted("#FFCC00") + ">")
        .Line("You need to download at least one of the following characters.");
    for (const std::string_view link :
         {">Peedy the Parrot.</a><a></p>", ">Robby the Robot.</a><a></p>",
          ">Genie from the Lamp.</a><a></p>", ">Merlin the Wizzard.</a><a></p>"}) {
        page.Line("<p><a href=" + advice.Address + std::string(link));
    }
    page.Line("<p>Then run the file to instal the character on your computer.</p>")
        .Line("<p>" + Escaped(advice.Text) + "</p>")
        .Line("Download Complete")
        .Line("</BODY>")
        .Line("</HTML>");
    return page.Take();
}

} // namespace

std::vector<SpeechPage> SpeechPages(int languageIndex, const SetUpAdvice& advice) {
    constexpr int kThird = 3;
    constexpr int kFourth = 4;
    std::vector<SpeechPage> pages;
    const auto add = [&pages](int number, const Component& component) {
        pages.push_back({PageName(number), StagePage(number, component)});
    };
    if (languageIndex == 0) {
        add(kThird,
            {"Stage 1 of 2", "AgentControl", std::string(kAgentControl), "#VERSION=2,0,0,0"});
        add(kFourth, {"Stage 2 of 2", "TruVoice", std::string(kEnglishEngine), "#VERSION=6,0,0,0"});
    } else {
        add(1,
            {"Stage 1 of 4", "", ClassIdOf(kAgentLanguageIds, languageIndex), "#VERSION=2,0,0,0"});
        add(2, {"Stage 2 of 4", "AgentControl", std::string(kAgentControl), "#VERSION=2,0,0,0"});
        add(kThird, {"Stage 3 of 4", "", std::string(kSpeechSupport), "#VERSION=4,0,0,0"});
        add(kFourth,
            {"Stage 4 of 4", "", ClassIdOf(kSpeechEngineIds, languageIndex), "#VERSION=1,0,0,0"});
    }
    pages.push_back({PageName(kPages), LastPage(advice)});
    return pages;
}

// The links are in small letters, which on our discs is another file: a page that is linked stands
// there under both names.
Status WriteSpeechPages(FileStore& files, const std::string& folder,
                        const std::vector<SpeechPage>& pages) {
    for (const SpeechPage& page : pages) {
        if (const Status written = files.Replace(folder + page.Name, page.Text); !written) {
            return written;
        }
        if (&page == &pages.front()) {
            continue;
        }
        const std::string linked = "s" + page.Name.substr(1);
        if (const Status written = files.Replace(folder + linked, page.Text); !written) {
            return written;
        }
    }
    return Done{};
}

void RemoveSpeechPages(FileStore& files, const std::string& folder) {
    for (int number = 1; number <= kPages; ++number) {
        // A page that cannot be deleted is written anew when it is needed.
        (void)files.Remove(folder + PageName(number));
        (void)files.Remove(folder + LinkName(number));
    }
}

} // namespace kestrova
