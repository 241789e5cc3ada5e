#include "sf/qt/SFQTEditCtrl.h"

#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QBrush>
#include <QKeyEvent>
#include <QPalette>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <algorithm>
#include <string>

CSFQTEditCtrl::CSFQTEditCtrl(ISFEditCtrlEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_commitSkip(0)
{
    setAutoFillBackground(true);
    setFrame(false);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    connect(this, &QLineEdit::textChanged, this, &CSFQTEditCtrl::OnTextChange);
    connect(this, &QLineEdit::returnPressed, this, &CSFQTEditCtrl::OnKeyPressed);
    connect(this, &QLineEdit::editingFinished, this, &CSFQTEditCtrl::editingFinishe);
}

CSFQTEditCtrl::~CSFQTEditCtrl()
{
    // Qt may still emit while its own parts go down; this half is gone by then.
    disconnect(this, nullptr, this, nullptr);
}

int CSFQTEditCtrl::Create(unsigned long style, const tagRECT& rect, void* parent, unsigned int id,
                          bool password)
{
    Place(parent, SFRectForCreate(rect), id, "edit");
    if (password)
        setEchoMode(QLineEdit::Password);
    SFApplyVisibleStyle(this, style);
    return 1;
}

int CSFQTEditCtrl::SetSkin(const wchar_t* image)
{
    QPixmap pixmap;
    if (image && *image)
        pixmap.load(SFSkinFilePath(image));
    QPalette pal = palette();
    pal.setBrush(QPalette::All, QPalette::Base, QBrush(pixmap));
    setPalette(pal);
    return 1;
}

int CSFQTEditCtrl::GetWindowTextW(wchar_t* buffer, int size) const
{
    const std::wstring value = text().toStdWString();
    const int length = static_cast<int>(value.size());
    if (!buffer || size <= 0)
        return length;
    std::copy_n(value.data(), std::min(length, size), buffer);
    buffer[size - 1] = L'\0';
    return length;
}

void CSFQTEditCtrl::SetWindowTextW(const wchar_t* text)
{
    setText(SFToQString(text));
}

void CSFQTEditCtrl::EnableWindow(int enable)
{
    setEnabled(enable != 0);
}

void CSFQTEditCtrl::SetReadOnly(int readOnly)
{
    setEnabled(true);
    setReadOnly(readOnly != 0);
}

void CSFQTEditCtrl::GetEditCtrolPos(tagRECT& rect)
{
    rect = SFToTagRectInclusive(geometry());
}

void CSFQTEditCtrl::SetRegExp()
{
    const QRegularExpression pattern(QStringLiteral("[A-Za-z0-9]+$"));
    setValidator(new QRegularExpressionValidator(pattern, this));
}

void CSFQTEditCtrl::OnTextChange(const QString& strText)
{
    if (!m_pHandler)
        return;
    CSFEditCtrl* sender = dynamic_cast<CSFEditCtrl*>(QObject::sender());
    std::wstring value = strText.toStdWString();
    m_pHandler->EDIT_OnTextChange(m_nID, value.data(), sender ? sender : this);
}

void CSFQTEditCtrl::OnKeyPressed()
{
    if (!m_pHandler)
        return;
    // Return raises editingFinished itself and the clearFocus below raises it
    // again; both belong to this commit.
    m_commitSkip = 2;
    std::wstring value = text().toStdWString();
    QPointer<CSFQTEditCtrl> alive(this);
    m_pHandler->EDIT_OnEnterPressed(m_nID, value.data());
    if (alive)
        clearFocus();
}

void CSFQTEditCtrl::editingFinishe()
{
    if (!m_pHandler)
        return;
    if (m_commitSkip == 2 || m_commitSkip == 1) {
        --m_commitSkip;
        return;
    }
    std::wstring value = text().toStdWString();
    m_pHandler->EDIT_OnEnterPressed(m_nID, value.data());
}

void CSFQTEditCtrl::keyPressEvent(QKeyEvent* e)
{
    QPointer<CSFQTEditCtrl> alive(this);
    QLineEdit::keyPressEvent(e);
    // This Qt raises editingFinished only once for a Return with focus; no
    // skip may be left over to swallow the next real commit.
    if (alive)
        m_commitSkip = 0;
}
