#include "sf/dialogs/SFSkinRecords.h"

#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFControlTypes.h"
#include "sf/SFFactory.h"

ImageButtonStyle SFImageButtonStyle(const wchar_t* normal, const wchar_t* hover,
                                    const wchar_t* pressed, const wchar_t* disabled)
{
    return ImageButtonStyle{ normal, hover, pressed, disabled, {}, {}, {}, {} };
}

ImageComboBoxStyle SFImageComboBoxStyle(const std::wstring& image,
                                        const std::array<std::wstring, 7>& slices)
{
    return ImageComboBoxStyle{ image,     slices[0], slices[1], slices[2], slices[3],
                               slices[4], slices[5], slices[6], {},        {},
                               {},        {},        {},        {},        {} };
}

ImageRadioBox SFImageRadioBox(const wchar_t* checkedNormal, const wchar_t* checkedHover,
                              const wchar_t* checkedPressed, const wchar_t* uncheckedNormal,
                              const wchar_t* uncheckedHover, const wchar_t* uncheckedPressed,
                              const wchar_t* checkedDisabled, const wchar_t* uncheckedDisabled)
{
    return ImageRadioBox{ checkedNormal,  checkedHover,     checkedPressed,  uncheckedNormal,
                          uncheckedHover, uncheckedPressed, checkedDisabled, uncheckedDisabled };
}

void SFSetDialogSides(DialogStyle& style, const wchar_t* left, const wchar_t* right)
{
    style.strLeftTop = left;
    style.strLeft = left;
    style.strLeftBottom = left;
    style.strRightBottom = right;
    style.strRight = right;
    style.strRightTop = right;
}

CSFButton* SFCreateCloseButton(ISFButtonEvent* handler, const tagRECT& rect, void* parent,
                               unsigned int id)
{
    CSFButton* button = SFCreateButton(handler);
    if (!button)
        return nullptr;
    button->Create(L"", SF_WS_VISIBLE, rect, parent, id);
    ImageButtonStyle style = SFImageButtonStyle(L"close-normal.png", L"close-hover.png",
                                                L"close-pressed.png", L"close-disabled.png");
    button->SetSkin(&style);
    button->SetToolTipText(GetLangString(L"Close", 0));
    return button;
}
