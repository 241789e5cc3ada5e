#pragma once
// Names for tests and assistive tools: an object name where the control's id
// does not tell it from its neighbours, an accessible name where its face
// carries a picture instead of words.

#include "sf/qt/SFQtConvert.h"

#include <QString>
#include <QWidget>

template <class Control>
void SFSetObjectName(Control* control, const char* name)
{
    if (QWidget* widget = dynamic_cast<QWidget*>(control))
        widget->setObjectName(QString::fromLatin1(name));
}

template <class Control>
void SFSetAccessibleName(Control* control, const wchar_t* text)
{
    if (QWidget* widget = dynamic_cast<QWidget*>(control))
        widget->setAccessibleName(SFToQString(text));
}
