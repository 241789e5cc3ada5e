#include "sf/DialogStyle.h"

DialogStyle SFSmallDialogStyle()
{
    DialogStyle style;
    style.strFrameImage = L"Frame.png";
    style.strBackgroundImage = L"background.png";
    style.strBackgroundMode = L"tile";
    style.strBackgroundColor = L"000000";
    style.strTopLeft = L"0,0,10,27";
    style.strTopLeftMode = L"tile";
    style.strTop = L"30,0,1,27";
    style.strTopMode = L"stretch";
    style.strTopRight = L"138,0,10,27";
    style.strLeftTop = L"0,27,1,80";
    style.strLeft = L"0,110,1,20";
    style.strLeftBottom = L"0,110,1,20";
    style.strBottomLeft = L"0,130,10,10";
    style.strBottom = L"10,130,1,10";
    style.strBottomRight = L"138,130,10,10";
    style.strRightBottom = L"147,110,1,20";
    style.strRight = L"147,110,1,20";
    style.strRightTop = L"147,27,1,80";
    style.strTitleFont = L"Tahoma";
    style.strTitleFontSize = L"11";
    style.strTitleFontWeight = L"normal";
    style.strTitleColor = L"333333";
    style.strTitleColorInactive = L"999999";
    style.strTitleAlign = L"left";
    style.strTitleRect = L"10,0,1100,27";
    style.nResizable = 1;
    style.strClientRect = L"0,0,-1,-1";
    style.strRoundCorner = L"0,0";
    return style;
}
