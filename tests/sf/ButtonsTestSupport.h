#pragma once
// Handlers that log what buttons and toggles report, a host page whose map
// hears command 7, and a skin of one-colour pictures.

#include "ISFButtonEvent.h"
#include "ISFRadioBoxEvent.h"
#include "SfTestSupport.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QWidget>
#include <memory>
#include <string>

class CSFView;

class CButtonLogger : public ISFButtonEvent {
public:
    explicit CButtonLogger(Log& log) : m_log(log) {}
    void BTN_OnLButtonDown(int id, unsigned int, tagPOINT) override { Add("down", id); }
    void BTN_OnLButtonUp(int id, unsigned int, tagPOINT) override { Add("up", id); }
    void BTN_OnMouseMove(int id, unsigned int, tagPOINT) override { Add("move", id); }
    void BTN_OnMouseLeave(int id, unsigned int, long) override { Add("leave", id); }
    void BTN_OnClicked(int id) override { Add("click", id); }

private:
    void Add(const char* what, int id) { m_log.push_back(what + (":" + std::to_string(id))); }
    Log& m_log;
};

class CRadioLogger : public ISFRadioBoxEvent {
public:
    explicit CRadioLogger(Log& log) : m_log(log) {}
    void RADIO_OnClicked(int checked, int id, tagPOINT pt, void* sender) override
    {
        m_log.push_back("radio:" + std::to_string(id) + "=" + std::to_string(checked));
        lastPoint = pt;
        lastSender = sender;
    }
    tagPOINT lastPoint{ -1, -1 };
    void* lastSender = nullptr;

private:
    Log& m_log;
};

// A white top window holding a view whose handler maps command 7 to "view:7".
class CButtonHost {
public:
    explicit CButtonHost(Log& log, QSize size = QSize(400, 200));
    ~CButtonHost();
    // The parent to give to Create.
    void* Page() const;
    QWidget& Top() { return m_top; }
    // Shows the window and waits until it can take input.
    bool Show();

private:
    CLoggingViewHandler m_viewHandler;
    QWidget m_top;
    CSFView* m_view;
};

// Pictures of one colour, written into the test skin directory.
void WriteSolidPicture(const CTestSkin& skin, const char* name, QSize size, const QColor& color);

// The host's pixels where the widget stands.
QImage GrabOnHost(QWidget* widget);

// Moves the cursor far away, so that the next move in is a real enter.
void ParkCursor();
