#pragma once
// A form for one channel group: a main stream and up to two sub streams, each
// with its own rate rule, handed to the channel page as StreamInfo records.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFCheckBoxEvent.h"
#include "sf/ISFComboBoxEvent.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/ISFNumSpinerEvent.h"
#include "sf/ISFViewEvent.h"
#include "sf/SFFwd.h"
#include "streams/engine/ChannelInfo.h"
#include "streams/engine/StreamInfo.h"

#include <map>

class CTallixEventImp;

class CViewChannelInfoEditor : public ISFViewEvent,
                               public ISFButtonEvent,
                               public ISFComboBoxEvent,
                               public ISFCheckBoxEvent,
                               public ISFEditCtrlEvent,
                               public ISFNumSpinerEvent {
    SF_DECLARE_MSGMAP()
public:
    enum { StreamCount = 3 };

    // Control ids of the main stream and the view; a sub stream's combos
    // follow at a pitch of 7, its edit at a pitch of 1.
    enum : unsigned int {
        IdChannels = 0x7EC,
        IdCompression = 0x7F0,
        IdResolution = 0x7F1,
        IdFrameRate = 0x7F2,
        IdAudio = 0x7F4,
        IdBitrate = 0x80C,
        IdAdd = 0x803,
        IdToggle = 0x804,
        IdOk = 0x805,
        IdClear = 0xBCC,
        IdComboPitch = 7
    };

    CViewChannelInfoEditor(CTallixEventImp* owner, bool subStreams);
    CViewChannelInfoEditor(const CViewChannelInfoEditor&) = delete;
    CViewChannelInfoEditor& operator=(const CViewChannelInfoEditor&) = delete;
    ~CViewChannelInfoEditor() override;

    // ISFViewEvent
    int OnCreate() override;
    void OnDestroy() override;
    void OnSize(unsigned int type, int cx, int cy) override;
    void OnLButtonDown(unsigned int flags, tagPOINT pt) override;
    void OnLButtonDblClk(unsigned int flags, tagPOINT pt) override;
    // Two arguments: the combos' three-argument SelectChanged stays at its
    // empty default, so a combo's event does not come here by itself.
    virtual void OnSelectChanged(int id, int index);

    void SetChannelInfo(ChannelInfo info);
    void GetChannelInfo(ChannelInfo* info);
    bool IsSubStreamsShown();

    // Commands of the map.
    void OnToggleSubStream();
    void OnAdd();
    void OnOk();
    void OnClear();

    // Writes the rule's rate of one stream (0 main, 1 and 2 sub) into its edit.
    void UpdateStreamRate(int stream);
    // Kept beside the rule; nothing calls it.
    double GetEffectiveBitrate(int mode, int audio, int rate);
    // Reads the form into m_mapStreams; false, with a message, when the main
    // stream's rate is not above 0.
    bool CollectStreams();

private:
    void CreateStreamRow(int stream);
    void CreateChannelsControls();
    void CreateButtons();
    void ShowStreamRow(int stream, bool show);
    // Stream of a combo id and which of its combos it is, -1 when none.
    static int StreamOfCombo(int id, unsigned int firstId);
    StreamInfo ReadStream(int stream) const;
    double ReadBitrate(int stream) const;

    int m_nCompression[StreamCount];
    CTallixEventImp* m_pOwner;
    bool m_bSubStreams;
    std::map<int, StreamInfo> m_mapStreams;
    int m_nChannels;
    int m_nRow;
    bool m_bEditRow;

    // Per stream, null until OnCreate.
    CSFStatic* m_pLabelStream[StreamCount];
    CSFComboBox* m_pComboCompression[StreamCount];
    CSFComboBox* m_pComboResolution[StreamCount];
    CSFComboBox* m_pComboFrameRate[StreamCount];
    CSFComboBox* m_pComboAudio[StreamCount];
    CSFEditCtrl* m_pEditBitrate[StreamCount];
    CSFStatic* m_pLabelUnit[StreamCount];

    CSFStatic* m_pLabelChannels;
    CSFNumSpiner* m_pSpinChannels;
    CSFButton* m_pBtnToggle;
    CSFButton* m_pBtnClear;
    CSFButton* m_pBtnAdd;
    CSFButton* m_pBtnOk;
};
