// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageLayout.h"

#include <type_traits>

namespace kestrova {

namespace {

// The element of a family that counts from `first`.
template<typename Family> auto* Element(Family& family, int index, int first) {
    const auto place = static_cast<std::size_t>(index - first);
    return index >= first && place < family.size() ? &family[place] : nullptr;
}

template<typename Page>
std::conditional_t<std::is_const_v<Page>, const LayoutItem, LayoutItem>*
FindIn(Page& page, const LayoutRef& ref) {
    switch (ref.Kind) {
    case LayoutKind::Image1: return &page.Image1;
    case LayoutKind::Image2: return &page.Image2;
    case LayoutKind::ImgUser: return Element(page.ImgUser, ref.Index, 1);
    case LayoutKind::LabCurMth: return &page.LabCurMth;
    case LayoutKind::LabDays: return Element(page.LabDays, ref.Index, 0);
    case LayoutKind::LabDates: return Element(page.LabDates, ref.Index, 0);
    case LayoutKind::LabEvent: return Element(page.LabEvent, ref.Index, 1);
    case LayoutKind::LabUser: return Element(page.LabUser, ref.Index, 1);
    }
    return nullptr;
}

} // namespace

LayoutItem* PageLayout::Find(const LayoutRef& ref) {
    return FindIn(*this, ref);
}

const LayoutItem* PageLayout::Find(const LayoutRef& ref) const {
    return FindIn(*this, ref);
}

void PageLayout::ResetEvent() {
    LabEvent.clear();
}

void PageLayout::ResetUser() {
    LabUser.clear();
}

void PageLayout::ResetImage() {
    ImgUser.clear();
    ImagePaths.fill({});
}

} // namespace kestrova
