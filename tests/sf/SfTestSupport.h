#pragma once
// Handlers that log what reaches them, a minimal command control, and a skin
// directory of generated pictures.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFDialogEvent.h"
#include "sf/ISFViewEvent.h"
#include "sf/SFButton.h"
#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFQtConvert.h"

#include <QColor>
#include <QPushButton>
#include <QRect>
#include <QTemporaryDir>
#include <functional>
#include <string>
#include <utility>
#include <vector>

using Log = std::vector<std::string>;

// Reports a click on both roads, as the framework's buttons do.
class CTestCommandButton : public QPushButton, public CSFButton {
public:
    explicit CTestCommandButton(ISFButtonEvent* handler) : CSFButton(handler)
    {
        connect(this, &QPushButton::clicked, this, [this] {
            if (m_pHandler)
                m_pHandler->BTN_OnClicked(static_cast<int>(m_nID));
            SFSendCommandEvent(this, m_nID);
        });
    }
    int Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
               unsigned int id) override
    {
        setParent(SFWidgetFromHandle(parent));
        setText(SFToQString(text));
        setGeometry(SFRectForCreate(rect));
        m_nID = id;
        SFNameControl(this, "button", id, QPushButton::text());
        SFApplyVisibleStyle(this, style);
        return 1;
    }
};

class CLoggingButtonHandler : public ISFButtonEvent {
public:
    explicit CLoggingButtonHandler(Log& log) : m_log(log) {}
    void BTN_OnClicked(int id) override { m_log.push_back("btn:" + std::to_string(id)); }

private:
    Log& m_log;
};

class CLoggingDialogHandler : public ISFDialogEvent, public ISFButtonEvent {
    SF_DECLARE_MSGMAP()
public:
    Log log;
    std::vector<std::pair<unsigned int, unsigned int>> keysDown;
    int sizeCalls = 0;
    // Runs on Dlg_OnInitDialog(false), where a dialog builds its controls.
    std::function<void()> onInit;
    std::function<void()> onDestroy;

    int Dlg_OnInitDialog(bool createOnly) override
    {
        log.push_back(createOnly ? "init:create" : "init:modal");
        if (!createOnly && onInit)
            onInit();
        return 1;
    }
    void Dlg_OnOK() override { log.push_back("ok"); }
    void Dlg_OnCancel() override { log.push_back("cancel"); }
    void OnDlgSize(unsigned int, int&, int&) override { ++sizeCalls; }
    void Dlg_Destroy() override
    {
        log.push_back(m_pUIWnd ? "destroy:window-set" : "destroy:window-cleared");
        if (onDestroy)
            onDestroy();
    }
    void OnDlgKeyDown(unsigned int modifiers, unsigned int key) override
    {
        keysDown.emplace_back(modifiers, key);
    }
    void BTN_OnClicked(int id) override { log.push_back("btn:" + std::to_string(id)); }

    void OnMappedOk() { log.push_back("mapped:1"); }
    void OnMapped7() { log.push_back("mapped:7"); }
};

class CLoggingViewHandler : public ISFViewEvent {
    SF_DECLARE_MSGMAP()
public:
    explicit CLoggingViewHandler(Log& log) : m_log(log) {}
    int OnCreate() override
    {
        m_log.push_back("view:create");
        return 1;
    }
    void OnDestroy() override { m_log.push_back("view:destroy"); }
    void OnLButtonDown(unsigned int, tagPOINT pt) override
    {
        m_log.push_back("view:down " + std::to_string(pt.x) + "," + std::to_string(pt.y));
    }
    void OnMapped7() { m_log.push_back("view:7"); }

private:
    Log& m_log;
};

// Colours of the frame pieces in the generated frame image.
namespace SkinColors {
const QColor Body(200, 200, 200);
const QColor TopLeft(255, 0, 0);
const QColor Top(0, 255, 0);
const QColor TopRight(0, 0, 255);
const QColor LeftTop(255, 255, 0);
const QColor Left(0, 255, 255);
const QColor LeftBottom(255, 0, 255);
const QColor BottomLeft(128, 0, 0);
const QColor Bottom(0, 128, 0);
const QColor BottomRight(0, 0, 128);
const QColor RightTop(255, 128, 0);
const QColor Right(128, 128, 128);
const QColor RightBottom(128, 0, 128);
const QColor Btn1Normal(255, 255, 255);
const QColor Btn1Hover(10, 10, 10);
const QColor Background(0x10, 0x20, 0x30);
} // namespace SkinColors

struct DialogStyle;

// A temporary skin directory holding "Frame.png" (148 by 140) with every
// piece in its own colour; g_strSkinPath points at it while this lives.
class CTestSkin {
public:
    CTestSkin();
    ~CTestSkin();
    bool IsValid() const { return m_dir.isValid(); }
    QString Dir() const { return m_dir.path(); }
    // The dialog record of the program, with a 7 pixel wide top edge tile and
    // a left-bottom piece of its own so that every piece can be told apart.
    static void FillDialogStyle(DialogStyle& style);

private:
    QTemporaryDir m_dir;
    QString m_oldSkinPath;
};
