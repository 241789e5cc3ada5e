#pragma once
// Skin records of the channel page: the table, and the controls of a row.

#include "ImageButtonStyle.h"
#include "ImageComboBoxStyle.h"
#include "ImageNumSpinerStyle.h"
#include "ImageRadioBox.h"
#include "ListCtrlStyle.h"

ListCtrlStyle ChannelListStyle();
ImageButtonStyle AddButtonStyle();
ImageButtonStyle ClearButtonStyle();
ImageNumSpinerStyle ChannelSpinerStyle();
ImageComboBoxStyle RowComboStyle();
ImageRadioBox AudioToggleStyle();
ImageButtonStyle DeleteButtonStyle();
