#pragma once
// What every Qt control realisation shares: the facade's visibility and
// geometry operations and the placement that each Create does.

#include "platform/WinTypes.h"
#include "sf/qt/SFQtConvert.h"

#include <QRect>
#include <QString>

class QWidget;

// QtWidget is the Qt widget shown, Facade the abstract control realised.
template <class QtWidget, class Facade>
class CSFQTControl : public QtWidget, public Facade {
public:
    void ShowWindow(int show) override { this->setVisible(show != 0); }
    // Taken as inclusive: one pixel wider and higher than Create with the same rectangle.
    void MoveWindow(tagRECT* rect) override
    {
        if (rect)
            this->setGeometry(SFRectInclusive(*rect));
    }
    void MoveWindow(int x, int y, int w, int h) override
    {
        this->setGeometry(SFRectFromXYWH(x, y, w, h));
    }

protected:
    template <class Handler>
    CSFQTControl(Handler* handler, QWidget* parent) : QtWidget(parent), Facade(handler)
    {
    }

    // Shows text and gives it to screen readers as the control's name.
    void SetLabel(const wchar_t* text)
    {
        const QString label = SFToQString(text);
        this->setText(label);
        this->setAccessibleName(label);
    }

    // Parent, geometry, id and name, in that order; visibility is left to the caller.
    void Place(void* parent, const QRect& geometry, unsigned int id, const char* kind,
               const QString& label = QString())
    {
        this->setParent(SFWidgetFromHandle(parent));
        this->setGeometry(geometry);
        this->m_nID = id;
        SFNameControl(this, kind, id, label);
    }
};
