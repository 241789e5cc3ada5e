#include "sf/qt/SFQtConvert.h"

#include "language/SFStreamConvert.h"
#include "sf/SFControlTypes.h"
#include "sf/SFWrapMath.h"

#include <QWidget>
#include <algorithm>

using sf_detail::WrapAdd;
using sf_detail::WrapSub;

QString SFToQString(const wchar_t* text)
{
    if (!text || !*text)
        return QString();
    SF_SOFT_BASE::CSFStreamConvert convert(text, CP_UTF8);
    const char* utf8 = convert.GetA();
    return utf8 ? QString::fromUtf8(utf8) : QString();
}

QString SFToQString(const std::wstring& text)
{
    return SFToQString(text.c_str());
}

QWidget* SFWidgetFromHandle(void* handle)
{
    return static_cast<QWidget*>(handle);
}

void* SFHandleFromWidget(QWidget* widget)
{
    return static_cast<void*>(widget);
}

QRect SFRectForCreate(const tagRECT& rect)
{
    return QRect(QPoint(rect.left, rect.top),
                 QPoint(WrapSub(rect.right, 1), WrapSub(rect.bottom, 1)));
}

QRect SFRectInclusive(const tagRECT& rect)
{
    return QRect(QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom));
}

QRect SFRectFromXYWH(int x, int y, int w, int h)
{
    return QRect(QPoint(x, y), QPoint(WrapSub(WrapAdd(x, w), 1), WrapSub(WrapAdd(y, h), 1)));
}

tagRECT SFToTagRectExclusive(const QRect& rect)
{
    return tagRECT{ rect.left(), rect.top(), WrapAdd(rect.right(), 1), WrapAdd(rect.bottom(), 1) };
}

tagRECT SFToTagRectInclusive(const QRect& rect)
{
    return tagRECT{ rect.left(), rect.top(), rect.right(), rect.bottom() };
}

int SFCopyText(const QString& text, wchar_t* buffer, int size)
{
    const std::wstring value = text.toStdWString();
    const int length = static_cast<int>(value.size());
    if (!buffer || size <= 0)
        return length;
    const int copied = std::min(length, size - 1);
    std::copy_n(value.data(), copied, buffer);
    buffer[copied] = L'\0';
    return length;
}

void SFApplyVisibleStyle(QWidget* widget, unsigned long style)
{
    if (widget)
        widget->setVisible((style & SF_WS_VISIBLE) != 0);
}

void SFNameControl(QWidget* widget, const char* kind, unsigned int id, const QString& label)
{
    if (!widget)
        return;
    if (widget->objectName().isEmpty()) {
        const QString base = QString::fromLatin1(kind ? kind : "control");
        if (id == static_cast<unsigned int>(-1))
            widget->setObjectName(base);
        else if (id < 0x10000u)
            widget->setObjectName(base + QLatin1Char('_') + QString::number(id));
        else
            widget->setObjectName(base + QStringLiteral("_0x") + QString::number(id, 16));
    }
    if (!label.isEmpty() && widget->accessibleName().isEmpty())
        widget->setAccessibleName(label);
}
