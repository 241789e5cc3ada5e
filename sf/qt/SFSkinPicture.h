#pragma once
// Loading one picture of a control's skin record.

#include <QPixmap>
#include <string>

// An empty name keeps the former picture; a name that does not load leaves none.
void SFLoadSkinPicture(QPixmap& picture, const std::wstring& file);
