#pragma once
// The channel list page: the stream table, its two buttons and the calculator
// panel below it.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFCheckBoxEvent.h"
#include "sf/ISFComboBoxEvent.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/ISFListCtrlEvent.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/ISFViewEvent.h"
#include "sf/SFFwd.h"
#include "streams/engine/StreamInfo.h"

#include <map>
#include <string>

class CMainDlgEventImp;
class CCalculatorBottom;

class CTallixEventImp : public ISFViewEvent,
                        public ISFListCtrlEvent,
                        public ISFButtonEvent,
                        public ISFEditCtrlEvent,
                        public ISFComboBoxEvent,
                        public ISFCheckBoxEvent,
                        public ISFRadioBoxEvent {
    SF_DECLARE_MSGMAP()
public:
    explicit CTallixEventImp(CMainDlgEventImp* owner);
    CTallixEventImp(const CTallixEventImp&) = delete;
    CTallixEventImp& operator=(const CTallixEventImp&) = delete;
    ~CTallixEventImp() override;

    // ISFViewEvent
    int OnCreate() override;
    void OnDestroy() override;
    virtual void OnListNotify0(unsigned int id, void* notify);
    virtual void OnListNotify1(void* notify, unsigned int id);
    virtual void OnListNotify2(void* notify, unsigned int id);

    // ISFListCtrlEvent
    void OnButton(int id, int row) override;
    void Audio_OnClicked(int row) override;
    void CalculatorResoult(int channels, double totalKbps) override;
    void ViewScene(int scene) override;

    // Commands of the page's map.
    void OnCommand2010();
    void OnCommand2009();
    void OnAddStreaming();
    void OnInsertBlankRow();
    void OnClearAll();

    // What the stream editor asks of the page.
    void ClearStreams();
    void ResizeList(int expanded);
    void AddStreams(std::map<int, StreamInfo> streams, int channels);
    bool CanEnableList();
    void EnableList();

    // The calculator panel in the lower part of the page.
    CCalculatorBottom* GetCalculator() const { return m_pCalculator; }
    // The row that the last click on the table selected.
    int GetSelectedRow() const { return m_nSelectedRow; }

private:
    // Right edge of the host view's client rectangle.
    int HostWidth() const;
    // Where and how a button above the table and its word label stand.
    struct LabelledButton;
    // The label laid over its image button.
    void CreateLabelledButton(const LabelledButton& place, CSFStatic*& label, CSFButton*& button);
    // Column 0 reads 1, 2, 3 ... again.
    void NumberRows();

    // The main dialog that hosts the page, as handed over; nothing reads it.
    [[maybe_unused]] CMainDlgEventImp* m_pOwner;
    std::wstring m_szEnvironmentTexts[4];
    CSFListCtrl* m_pList;
    CSFStatic* m_pLabelAdd;
    CSFStatic* m_pLabelClear;
    CSFButton* m_pBtnAdd;
    CSFButton* m_pBtnClear;
    CSFView* m_pCalculatorView;
    CCalculatorBottom* m_pCalculator;
    int m_nSelectedRow;
};
