// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/CharacterFigure.h"
#include "platform/posix/PosixFileStore.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

using Reason = CharacterFault::Reason;

const std::string kHead = "<?xml version=\"1.0\"?>\n<!-- a face -->\n"
                          "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 120\">";
const std::string kDefs = "<defs><linearGradient id=\"l\"/></defs>";
const std::string kLayers = "<g id=\"body\"><circle r=\"40\" fill=\"url(#l)\"/></g>"
                            "<g id=\"eyes-open\"/><g id=\"eyes-closed\"/>"
                            "<g id=\"mouth-closed\"/><g id=\"mouth-open\"/>";

std::string File(const std::string& more = {}) {
    return kHead + kDefs + kLayers + more + "</svg>\n";
}

CharacterFault FaultOf(const std::string& bytes) {
    const auto read = ReadFigure(bytes);
    const auto* const fault = std::get_if<CharacterFault>(&read);
    EXPECT_NE(fault, nullptr) << bytes;
    return fault == nullptr ? CharacterFault{} : *fault;
}

TEST(CharacterFigureTest, EachLayerIsAPictureOfItsOwnInTheOrderOfTheFile) {
    const auto read = ReadFigure(File("<g id='gesture-1'/><g id=\"gesture-2\"/><g id=\"rest\"/>"
                                      "<title>A &amp; B</title>"));
    const auto* const figure = std::get_if<CharacterFigure>(&read);
    ASSERT_NE(figure, nullptr);
    EXPECT_EQ(figure->Width, 100);
    EXPECT_EQ(figure->Height, 120);
    EXPECT_EQ(figure->GestureFrames, 2);
    ASSERT_EQ(figure->Layers.size(), 8U);
    EXPECT_EQ(figure->Layers[0].Id, "body");
    EXPECT_EQ(figure->Layers[0].Document,
              "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 120\">" + kDefs +
                  "<g id=\"body\"><circle r=\"40\" fill=\"url(#l)\"/></g></svg>");
    EXPECT_EQ(figure->Layers[7].Id, "rest");
}

TEST(CharacterFigureTest, WhatIsNoPictureOrTornIsRefused) {
    const std::string whole = File();
    for (const std::string& bytes :
         {std::string(), std::string("hello"), std::string("<html></html>"), std::string("<svg/>"),
          whole.substr(0, whole.size() / 2), whole + "<g/>", "text" + whole,
          std::string("<svg viewBox=\"0 0 9 9\""), kHead + "<g></svg>",
          kHead + "<g id=body/></svg>", whole.substr(0, 60) + std::string(1, '\0')}) {
        EXPECT_EQ(FaultOf(bytes).Why, Reason::Unreadable) << bytes;
    }
    EXPECT_EQ(FaultOf(std::string(kCharacterLimit + 1, ' ')).Why, Reason::TooLarge);
}

TEST(CharacterFigureTest, WhatReachesOutOrRunsOrNeverEndsIsRefused) {
    std::string nested;
    for (int i = 0; i < 20; ++i) {
        nested += "<g>";
    }
    std::string many;
    for (int i = 0; i < 5000; ++i) {
        many += "<path/>";
    }
    const struct {
        std::string Bytes;
        std::string Detail;
    } rows[] = {
        {"<!DOCTYPE svg [<!ENTITY a \"&b;&b;\">]>" + File(), "<!DOCTYPE"},
        {"<?xml-stylesheet href=\"http://x/a.css\"?>" + File(), "<?xml-stylesheet"},
        {File("<image href=\"/etc/passwd\"/>"), "<image>"},
        {File("<script>1</script>"), "<script>"},
        {File("<style>@import 'x';</style>"), "<style>"},
        {File("<g id=\"body-1\"><use href=\"#body\"/></g>"), "<use>"},
        {File("<g id=\"body-1\"><text>x</text></g>"), "<text>"},
        {File("<g id=\"body-1\"><svg/></g>"), "<svg>"},
        {File("<g id=\"body-1\" fill=\"url(http://x/#a)\"/>"), "fill"},
        {File("<g id=\"body-1\" fill=\"&#117;rl(x)\"/>"), "fill"},
        {File("<g id=\"body-1\" style=\"fill:red;mask:url(x#y)\"/>"), "style"},
        {File("<g id=\"body-1\" style=\"stroke-width:1e30\"/>"), "style"},
        {File("<g id=\"body-1\" stroke-dasharray=\"0.001\"/>"), "stroke-dasharray"},
        {File("<g id=\"body-1\" onload=\"x()\"/>"), "onload"},
        {File("<g id=\"body-1\"><path d=\"M0 0L1e9 1\"/></g>"), "d"},
        {File("<g id=\"body-1\"><path d=\"M0 0L1234567 1\"/></g>"), "d"},
        {File("<defs><linearGradient xlink:href=\"http://x/\"/></defs>"), "xlink:href"},
        {File("<g id=\"body-1\">" + nested), "21 x <g>"},
        {File("<g id=\"body-1\">" + many), "4001 x <path>"},
        {File("<g id=\"hat\"/>"), "hat"},
        {File("<g id=\"body\"/>"), "body"},
        {File("<g/>"), "<g>"},
        {File("<g id=\"gesture-9\"/>"), "gesture-9"},
        {"<svg viewBox=\"0 0 10 9000\">" + kLayers + "</svg>", "viewBox"},
        {"<svg viewBox=\"0 0 nan inf\">" + kLayers + "</svg>", "viewBox"},
        {"<svg>" + kLayers + "</svg>", "viewBox"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FaultOf(row.Bytes), (CharacterFault{Reason::Forbidden, row.Detail}));
    }
}

TEST(CharacterFigureTest, AMissingLayerIsNamed) {
    for (const char* const layer :
         {"body", "eyes-open", "eyes-closed", "mouth-closed", "mouth-open"}) {
        std::string bytes = File();
        const std::string id = "\"" + std::string(layer) + "\"";
        bytes.replace(bytes.find(id), id.size(), "\"body-other\"");
        EXPECT_EQ(FaultOf(bytes), (CharacterFault{Reason::LayerMissing, layer}));
    }
}

TEST(CharacterFigureTest, ThoseThatShipHaveEverything) {
    for (const char* const name : {"Olva.acs", "Ruska.acs"}) {
        const auto bytes =
            PosixFileStore().Read(SHIPPED_CHARACTERS + std::string("/") + name, kCharacterLimit);
        ASSERT_TRUE(bytes) << name;
        const auto read = ReadFigure(bytes.Value());
        const auto* const figure = std::get_if<CharacterFigure>(&read);
        ASSERT_NE(figure, nullptr) << name << ": " << std::get<CharacterFault>(read).Detail;
        EXPECT_GE(figure->GestureFrames, 3);
        for (const char* const layer :
             {"mouth-small", "mouth-wide", "mouth-round", "mouth-teeth", "rest"}) {
            EXPECT_TRUE(figure->Has(layer)) << name << " " << layer;
        }
    }
}

} // namespace
} // namespace kestrova
