#pragma once
// Builders of the skin records that windows fill alike, and the close
// button that every small dialog carries in its top-right corner.

#include "sf/DialogStyle.h"
#include "sf/ImageButtonStyle.h"
#include "sf/ImageComboBoxStyle.h"
#include "sf/ImageRadioBox.h"
#include "sf/SFRect.h"

#include <array>
#include <string>

class CSFButton;
class ISFButtonEvent;

// The four pictures of an image button; the reserved fields stay empty.
ImageButtonStyle SFImageButtonStyle(const wchar_t* normal, const wchar_t* hover,
                                    const wchar_t* pressed, const wchar_t* disabled);

// A combo cut from one image: the seven slices in field order, no modes.
ImageComboBoxStyle SFImageComboBoxStyle(const std::wstring& image,
                                        const std::array<std::wstring, 7>& slices);

// The pictures of an image toggle, checked then unchecked; the disabled
// ones may stay empty.
ImageRadioBox SFImageRadioBox(const wchar_t* checkedNormal, const wchar_t* checkedHover,
                              const wchar_t* checkedPressed, const wchar_t* uncheckedNormal,
                              const wchar_t* uncheckedHover, const wchar_t* uncheckedPressed,
                              const wchar_t* checkedDisabled = L"",
                              const wchar_t* uncheckedDisabled = L"");

// The three slices of each side of a frame: all of the left side from
// left, all of the right side from right.
void SFSetDialogSides(DialogStyle& style, const wchar_t* left, const wchar_t* right);

// An image button with the "close-*.png" pictures and the "Close" tooltip,
// created visible at rect. Null when the button could not be made.
CSFButton* SFCreateCloseButton(ISFButtonEvent* handler, const tagRECT& rect, void* parent,
                               unsigned int id);
