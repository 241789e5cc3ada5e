#pragma once
// Skin records of the channel page: the table, and the controls of a row.

#include "sf/ImageButtonStyle.h"
#include "sf/ImageComboBoxStyle.h"
#include "sf/ImageNumSpinerStyle.h"
#include "sf/ImageRadioBox.h"
#include "sf/ListCtrlStyle.h"

ListCtrlStyle ChannelListStyle();
ImageButtonStyle AddButtonStyle();
ImageButtonStyle ClearButtonStyle();
ImageNumSpinerStyle ChannelSpinerStyle();
ImageComboBoxStyle RowComboStyle();
ImageRadioBox AudioToggleStyle();
ImageButtonStyle DeleteButtonStyle();
