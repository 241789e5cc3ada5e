#include "streams/ChannelRowStyles.h"

ListCtrlStyle ChannelListStyle()
{
    ListCtrlStyle style;
    style.strRowColor1 = L"e4e4e4";
    style.strRowColor2 = L"F5F5F5";
    style.strColor3 = L"FCE2C6";
    style.strColor4 = L"FAB400";
    style.strColor5 = L"000000";
    style.nReserved1 = 13;
    style.nReserved2 = 13;
    style.nHeaderHeight = 36;
    style.nRowHeight = 45;
    return style;
}

ImageButtonStyle AddButtonStyle()
{
    ImageButtonStyle style;
    style.strNormal = L"add_nor.png";
    style.strHover = L"add_hove.png";
    style.strPressed = L"add_press.png";
    style.strDisabled = L"add_dis.png";
    return style;
}

ImageButtonStyle ClearButtonStyle()
{
    ImageButtonStyle style;
    style.strNormal = L"delect_nor.png";
    style.strHover = L"delect_press.png";
    style.strPressed = L"delect_press.png";
    style.strDisabled = L"delect_dis.png";
    return style;
}

ImageNumSpinerStyle ChannelSpinerStyle()
{
    ImageNumSpinerStyle style;
    style.strFrame = L"selectbox_nor.png";
    return style;
}

ImageComboBoxStyle RowComboStyle()
{
    ImageComboBoxStyle style;
    style.strImage = L"comobobox_nor.png";
    style.strNormal = L"0,0,130,25";
    style.strHover = L"0,0,130,25";
    style.strPressedDown = L"0,78,130,26";
    style.strPressedUp = L"0,26,130,26";
    style.strDisabled = L"0,26,130,25";
    style.strSlice6 = L"0,0,130,25";
    style.strSlice7 = L"0,26,130,25";
    return style;
}

ImageRadioBox AudioToggleStyle()
{
    ImageRadioBox style;
    style.strCheckedNormal = L"list_open_nor.png";
    style.strCheckedHover = L"list_open_nor.png";
    style.strCheckedPressed = L"list_open_nor.png";
    style.strUncheckedNormal = L"list_close_nor.png";
    style.strUncheckedHover = L"list_close_nor.png";
    style.strUncheckedPressed = L"list_open_nor.png";
    return style;
}

ImageButtonStyle DeleteButtonStyle()
{
    ImageButtonStyle style;
    style.strNormal = L"list_clear_nor.png";
    style.strHover = L"list_clear_hover.png";
    style.strPressed = L"list_clear_nor.png";
    style.strDisabled = L"list_clear_dis.png";
    return style;
}
