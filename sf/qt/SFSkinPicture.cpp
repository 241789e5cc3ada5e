#include "sf/qt/SFSkinPicture.h"

#include "sf/qt/SFSkinParse.h"

void SFLoadSkinPicture(QPixmap& picture, const std::wstring& file)
{
    if (file.empty())
        return;
    std::unique_ptr<QPixmap> loaded = SFLoadSkinPixmap(file);
    picture = loaded ? *loaded : QPixmap();
}
