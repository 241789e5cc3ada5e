#include "sf/qt/SFToggleSkin.h"

#include "sf/qt/SFSkinPicture.h"

namespace {

// Positions in ImageRadioBox: checked normal, hover, pressed, unchecked
// normal, hover, pressed, checked disabled, unchecked disabled.
constexpr int kChecked[4] = { 0, 1, 2, 6 };
constexpr int kUnchecked[4] = { 3, 4, 5, 7 };

} // namespace

bool CSFToggleSkin::Load(const ImageRadioBox* style)
{
    if (!style)
        return false;
    const std::wstring* names[8] = {
        &style->strCheckedNormal,   &style->strCheckedHover,      &style->strCheckedPressed,
        &style->strUncheckedNormal, &style->strUncheckedHover,    &style->strUncheckedPressed,
        &style->strCheckedDisabled, &style->strUncheckedDisabled,
    };
    for (int i = 0; i < 8; ++i)
        SFLoadSkinPicture(m_pictures[i], *names[i]);
    return true;
}

const QPixmap& CSFToggleSkin::Pick(int state, bool checked) const
{
    // Unknown states paint as normal.
    const int s = (state >= 0 && state < 4) ? state : StateNormal;
    return m_pictures[checked ? kChecked[s] : kUnchecked[s]];
}
