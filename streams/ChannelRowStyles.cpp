#include "streams/ChannelRowStyles.h"

#include "sf/dialogs/SFSkinRecords.h"

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
    return SFImageButtonStyle(L"add_nor.png", L"add_hove.png", L"add_press.png", L"add_dis.png");
}

ImageButtonStyle ClearButtonStyle()
{
    return SFImageButtonStyle(L"delect_nor.png", L"delect_press.png", L"delect_press.png",
                              L"delect_dis.png");
}

ImageNumSpinerStyle ChannelSpinerStyle()
{
    ImageNumSpinerStyle style;
    style.strFrame = L"selectbox_nor.png";
    return style;
}

ImageComboBoxStyle RowComboStyle()
{
    return SFImageComboBoxStyle(L"comobobox_nor.png",
                                { L"0,0,130,25", L"0,0,130,25", L"0,78,130,26", L"0,26,130,26",
                                  L"0,26,130,25", L"0,0,130,25", L"0,26,130,25" });
}

ImageRadioBox AudioToggleStyle()
{
    return SFImageRadioBox(L"list_open_nor.png", L"list_open_nor.png", L"list_open_nor.png",
                           L"list_close_nor.png", L"list_close_nor.png", L"list_open_nor.png");
}

ImageButtonStyle DeleteButtonStyle()
{
    return SFImageButtonStyle(L"list_clear_nor.png", L"list_clear_hover.png", L"list_clear_nor.png",
                              L"list_clear_dis.png");
}
