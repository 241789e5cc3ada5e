#pragma once
// Skin of a frameless window: the frame image and the pieces cut from it.
// Rectangles are "x,y,width,height" on the frame image.

#include <string>

struct DialogStyle {
    std::wstring strFrameImage;
    std::wstring strBackgroundImage;
    std::wstring strBackgroundMode;
    std::wstring strBackgroundColor;
    std::wstring strTopLeft;
    std::wstring strTopLeftMode;
    std::wstring strTop;
    std::wstring strTopMode;
    std::wstring strTopRight;
    std::wstring strTopRightMode;
    std::wstring strLeftTop;
    std::wstring strLeftTopMode;
    std::wstring strLeft;
    std::wstring strLeftMode;
    std::wstring strLeftBottom;
    std::wstring strLeftBottomMode;
    std::wstring strBottomLeft;
    std::wstring strBottomLeftMode;
    std::wstring strBottom;
    std::wstring strBottomMode;
    std::wstring strBottomRight;
    std::wstring strBottomRightMode;
    std::wstring strRightBottom;
    std::wstring strRightBottomMode;
    std::wstring strRight;
    std::wstring strRightMode;
    std::wstring strRightTop;
    std::wstring strRightTopMode;
    // Caption button pieces of the frame image, by state.
    std::wstring strBtn4Normal;
    std::wstring strBtn4Hover;
    std::wstring strBtn4Pressed;
    std::wstring strBtn3Normal;
    std::wstring strBtn3Hover;
    std::wstring strBtn3Pressed;
    std::wstring strBtn2Normal;
    std::wstring strBtn2Hover;
    std::wstring strBtn2Pressed;
    std::wstring strBtn1Normal;
    std::wstring strBtn1Hover;
    std::wstring strBtn1Pressed;
    std::wstring strReserved;
    // Where the caption buttons sit; a negative x counts from the right edge.
    std::wstring strBtn4Rect;
    std::wstring strBtn3Rect;
    std::wstring strBtn2Rect;
    std::wstring strBtn1Rect;
    std::wstring strTitleFont;
    std::wstring strTitleFontSize;
    std::wstring strTitleFontWeight;
    std::wstring strTitleColor;
    std::wstring strTitleColorInactive;
    std::wstring strTitleReserved1;
    std::wstring strTitleReserved2;
    std::wstring strTitleReserved3;
    std::wstring strTitleAlign;
    std::wstring strTitleRect;
    int nResizable = 0;
    std::wstring strClientRect;
    std::wstring strRoundCorner;
    std::wstring strWindowSize;
    // Caption button images, files in the skin directory.
    std::wstring strBtn1ImageNormal;
    std::wstring strBtn1ImageHover;
    std::wstring strBtn1ImagePressed;
    std::wstring strBtn3ImageNormal;
    std::wstring strBtn3ImageHover;
    std::wstring strBtn3ImagePressed;
    std::wstring strBtn2ImageNormal;
    std::wstring strBtn2ImageHover;
    std::wstring strBtn2ImagePressed;
    std::wstring strBtn4ImageNormal;
    std::wstring strBtn4ImageHover;
    std::wstring strBtn4ImagePressed;
};

// The skin the small dialogs share: "Frame.png" cut into a 27-pixel caption,
// one-pixel sides and a 10-pixel bottom, with square corners.
DialogStyle SFSmallDialogStyle();
