#include "SFSkinPicture.h"

#include "SFSkinParse.h"

void SFLoadSkinPicture(QPixmap& picture, const std::wstring& file)
{
    if (file.empty())
        return;
    std::unique_ptr<QPixmap> loaded = SFLoadSkinPixmap(file);
    picture = loaded ? *loaded : QPixmap();
}
