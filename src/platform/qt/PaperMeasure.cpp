// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PaperMeasure.h"

#include "platform/qt/QtText.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr std::size_t kMostFaces = 100;

// Twips of a size in points. What no letter can have becomes the next that one can.
int SizeOf(float points) {
    constexpr float kTwips = 20;
    constexpr float kSmallest = 1;
    constexpr float kLargest = 1600;
    return static_cast<int>(
        std::lround(kTwips * (points > kSmallest ? std::min(points, kLargest) : kSmallest)));
}

PaperMeasure::Face MakeFace(const FontChoice& choice, int size) {
    QFont font;
    if (!choice.Family.empty()) {
        font.setFamilies({ToQt(choice.Family)});
    }
    font.setPixelSize(size);
    font.setBold(choice.Bold);
    font.setItalic(choice.Italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    const QFontMetricsF metrics(font);
    qreal letters = 0;
    constexpr int kLetters = 26;
    for (char16_t i = 0; i < kLetters; ++i) {
        letters += metrics.horizontalAdvance(QChar(u'a' + i));
        letters += metrics.horizontalAdvance(QChar(u'A' + i));
    }
    return {font, metrics, qRound(metrics.ascent()), std::max(1, qRound(metrics.lineSpacing())),
            std::max(1, qRound(letters / (2 * kLetters)))};
}

} // namespace

const PaperMeasure::Face& PaperMeasure::FaceOf(const FontChoice& font) const {
    const int size = SizeOf(font.Size);
    const Key key{font.Family, size, font.Bold, font.Italic};
    if (const auto known = faces_.find(key); known != faces_.end()) {
        return known->second;
    }
    if (faces_.size() >= kMostFaces) {
        faces_.clear();
    }
    return faces_.emplace(key, MakeFace(font, size)).first->second;
}

QString PaperMeasure::OneLine(std::string_view text) {
    QString line = ToQt(text);
    for (QChar& c : line) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator) {
            c = u' ';
        }
    }
    return line;
}

int PaperMeasure::TextWidth(const FontChoice& font, std::string_view text) const {
    // A box of this width holds the text.
    return static_cast<int>(std::ceil(FaceOf(font).Metrics.horizontalAdvance(OneLine(text))));
}

int PaperMeasure::LineHeight(const FontChoice& font) const {
    return FaceOf(font).LineHeight;
}

int PaperMeasure::AverageWidth(const FontChoice& font) const {
    return FaceOf(font).AverageWidth;
}

} // namespace kestrova
