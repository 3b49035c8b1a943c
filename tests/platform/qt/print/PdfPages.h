// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <string>
#include <vector>

namespace kestrova {

// A word as it stands on a page: in points from the top left corner of the paper.
struct PdfWord {
    int Page = 1;
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
    std::string Text;
};

// What other programs see in a PDF. Empty when they cannot read it.
[[nodiscard]] std::vector<PdfWord> WordsOf(const QString& pdf);
[[nodiscard]] QString DescriptionOf(const QString& pdf); // of page, document and fonts
[[nodiscard]] QImage PictureOf(const QString& pdf, int dotsPerInch, int page = 1);

// The word with this text, or one that lies nowhere.
[[nodiscard]] PdfWord FindWord(const std::vector<PdfWord>& words, const std::string& text);

} // namespace kestrova
