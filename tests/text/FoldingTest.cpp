// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Folding.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(FoldingTest, WhatReadersOverlookIsGone) {
    const struct {
        const char* Text;
        const char* Folded;
    } rows[] = {
        {"Dentist @ 9 [A-Z]", "dentist @ 9 [a-z]"},
        {"ÀÉÎÕÜ çñ Ÿÿ Žž", "aeiou cn yy zz"},
        {"Straße, STRAẞE", "strasse, strasse"},
        {"Œuvre æther Ĳssel Łódź ıİ", "oeuvre aether ijssel lodz ii"},
        {"Ώρα ΦΎΛΛΟΣ φύλλος ΐΰ", "ωρα φυλλοσ φυλλοσ ιυ"},
        {"cafe\xCC\x81 co\xC2\xADop", "cafe coop"}, // an accent of its own, a soft hyphen
        {"l’été « nº\u00A01 » – 2ª", "l'ete \" no 1 \" - 2a"},
        {"ЖЁж", "жёж"},
        {"日本 €😀", "日本 €😀"},
        {"\xC3", "\xC3"}, // cut off
        {"\xFF\xE2\x82 x", "\xFF\xE2\x82 x"},
        {"", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Fold(row.Text), row.Folded);
    }
}

// What is found, in brackets.
std::string Marked(std::string text, const std::vector<std::string>& words) {
    const auto parts = FindFolded(text, words);
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        text.insert(part->End, "]").insert(part->Begin, "[");
    }
    return text;
}

TEST(FoldingTest, PartsAreThoseOfTheOriginal) {
    EXPECT_EQ(Marked("Déjà vu, DEJA", {"deja"}), "[Déjà] vu, [DEJA]");
    EXPECT_EQ(Marked("Straße", {"s"}), "[S]tra[ß]e") << "half a letter is the letter";
    EXPECT_EQ(Marked("Straße", {"se"}), "Stra[ße]");
    EXPECT_EQ(Marked("cafe\xCC\x81s", {"cafe"}), "[cafe\xCC\x81]s") << "with its accent";
    EXPECT_EQ(Marked("banana", {"an", "nan"}), "b[anan]a") << "what overlaps is one";
    EXPECT_EQ(Marked("ab cd", {"cd", "ab"}), "[ab] [cd]");
    EXPECT_EQ(Marked("x", {"", "y"}), "x");
    EXPECT_EQ(Marked("", {"y"}), "");
    EXPECT_EQ(Marked("\xC3\xC3y", {"y"}), "\xC3\xC3[y]");
}

} // namespace
} // namespace kestrova
