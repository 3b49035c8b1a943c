// SPDX-License-Identifier: GPL-3.0-or-later
// A character's file, and a text to be spoken: whatever they hold, a layer is a picture that refers
// to nothing, and no word is lost.
#include "Expect.h"

#include "speech/CharacterFigure.h"
#include "speech/SpeechText.h"

#include <algorithm>

using kestrova::fuzz::Expect;

namespace {

void CheckFigure(const kestrova::CharacterFigure& figure) {
    Expect(figure.Width > 0 && figure.Height > 0, "a figure has a size");
    Expect(figure.Has("body") && figure.Has("mouth-open"), "a figure has what it takes");
    for (const kestrova::CharacterLayer& layer : figure.Layers) {
        const std::string_view document = layer.Document;
        Expect(document.starts_with("<svg") && document.ends_with("</svg>"), "a layer is whole");
        for (const std::string_view evil :
             {"<image", "<use", "<script", "<style", "<!DOCTYPE", "<!ENTITY", "<text", "<filter"}) {
            const std::size_t at = document.find(evil);
            // It may stand in a comment.
            Expect(at == std::string_view::npos || document.find("<!--") < at,
                   "a layer holds shapes only");
        }
        const auto again = kestrova::ReadFigure(document);
        const auto* const fault = std::get_if<kestrova::CharacterFault>(&again);
        Expect(fault == nullptr || fault->Why == kestrova::CharacterFault::Reason::LayerMissing,
               "a layer is what was looked through");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view input = kestrova::fuzz::View(data, size);
    const auto read = kestrova::ReadFigure(input);
    if (const auto* const figure = std::get_if<kestrova::CharacterFigure>(&read)) {
        CheckFigure(*figure);
    }
    std::string together;
    for (const std::string& piece : kestrova::CutSpeech(input)) {
        Expect(!piece.empty(), "a piece holds something");
        together += piece;
    }
    const auto withoutEnds = [](std::string text) {
        std::erase(text, '\r');
        return text;
    };
    std::string parts;
    for (const std::string& part : kestrova::CutLongPieces({std::string(input)})) {
        Expect(!part.empty(), "a part holds something");
        parts += part;
    }
    Expect(parts == input, "the parts are the text");
    Expect(withoutEnds(together) == withoutEnds(std::string(input)), "the pieces are the text");
    (void)kestrova::ReadMarks(input);
    return 0;
}
