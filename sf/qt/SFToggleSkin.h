#pragma once
// The eight pictures of an image toggle, picked by state and check.

#include "sf/ImageRadioBox.h"

#include <QPixmap>

class CSFToggleSkin {
public:
    // States of a toggle, as its m_state holds them.
    enum State { StateNormal = 0, StateHover = 1, StatePressed = 2, StateDisabled = 3 };

    // False for a null record, which changes nothing.
    bool Load(const ImageRadioBox* style);
    // A null picture for a state that has none.
    const QPixmap& Pick(int state, bool checked) const;

private:
    // In the order of ImageRadioBox.
    QPixmap m_pictures[8];
};
