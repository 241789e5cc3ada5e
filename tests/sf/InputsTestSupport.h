#pragma once
// A handler that records what the input controls report, and a host window.

#include "ISFComboBoxEvent.h"
#include "ISFEditCtrlEvent.h"
#include "ISFNumSpinerEvent.h"

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

struct InputEvent {
    std::string kind;
    unsigned int id;
    std::wstring text;
    int value;
    void* sender;
};

class CInputsHandler : public ISFEditCtrlEvent, public ISFComboBoxEvent, public ISFNumSpinerEvent {
public:
    std::vector<InputEvent> events;
    // Runs inside the text change call, as a page's handler would.
    std::function<void(const wchar_t*)> onTextChange;

    void EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender) override
    {
        events.push_back({ "text", id, text ? text : L"", 0, sender });
        if (onTextChange)
            onTextChange(text);
    }
    void EDIT_OnEnterPressed(unsigned int id, wchar_t* text) override
    {
        events.push_back({ "enter", id, text ? text : L"", 0, nullptr });
    }
    void SelectChanged(int id, int index, void* sender) override
    {
        events.push_back({ "select", static_cast<unsigned int>(id), L"", index, sender });
    }
    void OnCurrentNumChanged(unsigned int id, int value, void* sender, int) override
    {
        events.push_back({ "num", id, L"", value, sender });
    }

    int Count(const std::string& kind) const
    {
        int n = 0;
        for (const InputEvent& e : events)
            n += e.kind == kind ? 1 : 0;
        return n;
    }
    std::vector<int> Values(const std::string& kind) const
    {
        std::vector<int> out;
        for (const InputEvent& e : events)
            if (e.kind == kind)
                out.push_back(e.value);
        return out;
    }
};

// A shown, active top-level window that controls are placed on.
class CInputsHost : public QWidget {
public:
    explicit CInputsHost(const QSize& size = QSize(400, 300), const QPoint& at = QPoint(50, 50));
    void* Handle() { return this; }
};
