// The stream editor's values: its rate rule, the reactions of a stream's
// combos, and the reading and filling of the form.

#include "streams/ViewChannelInfoEditor.h"

#include "calculator/engine/NumericLocaleGuard.h"
#include "language/LangString.h"
#include "language/SFStreamConvert.h"
#include "platform/WinWideString.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/dialogs/SFShowMessage.h"
#include "streams/TallixEventImp.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kIndexFps30 = 7;
constexpr int kIndexFps15 = 10;
// "8MP" and up are held at 15 frames per second.
constexpr int kLastFullRateResolution = 7;
constexpr int kEntryChars = 50;
constexpr int kRateTextBytes = 128;
constexpr int kRateTextLimit = 65;
constexpr int kBitrateChars = 9;
constexpr double kAudioKbps = 64.0;
constexpr double kH265Factor = 0.7;
constexpr int kIndexH265 = 2;

// Kbps per frame per second by resolution index, "1MP" to "12MP". Index 0,
// the title entry, has no rate of its own.
const double kReferenceRate[] = { 0.0, 68, 68, 136, 136, 136, 204, 273, 546, 819 };
constexpr int kReferenceCount = static_cast<int>(sizeof(kReferenceRate) / sizeof(double));

double ReferenceRate(int resolution)
{
    if (resolution < 0 || resolution >= kReferenceCount)
        return 0.0;
    return kReferenceRate[resolution];
}

int CurSel(const CSFComboBox* combo)
{
    return combo ? combo->GetCurSel() : 0;
}

void SetCurSel(CSFComboBox* combo, int index)
{
    if (combo)
        combo->SetCurSel(index);
}

void SetEditText(CSFEditCtrl* edit, const wchar_t* text)
{
    if (edit)
        edit->SetWindowTextW(text);
}

// "%.2f" with a decimal point whatever the user's locale; texts of 65
// characters or more are not shown.
void SetRateText(CSFEditCtrl* edit, double rate)
{
    char text[kRateTextBytes] = {};
    {
        CNumericLocaleGuard guard;
        std::snprintf(text, sizeof(text), "%.2f", rate);
    }
    if (std::strlen(text) >= static_cast<size_t>(kRateTextLimit))
        return;
    wchar_t wide[kRateTextBytes] = {};
    for (size_t i = 0; text[i] != '\0'; ++i)
        wide[i] = static_cast<unsigned char>(text[i]);
    SetEditText(edit, wide);
}

} // namespace

int CViewChannelInfoEditor::StreamOfCombo(int id, unsigned int firstId)
{
    for (int stream = 0; stream < StreamCount; ++stream) {
        const unsigned int pitch = static_cast<unsigned int>(stream) * IdComboPitch;
        if (static_cast<unsigned int>(id) == firstId + pitch)
            return stream;
    }
    return -1;
}

double CViewChannelInfoEditor::GetEffectiveBitrate(int mode, int audio, int rate)
{
    switch (mode) {
    case 1:
        return audio ? rate * 0.85 : rate * 0.8;
    case 0:
        return audio ? rate + kAudioKbps : static_cast<double>(rate);
    default:
        return 0.0;
    }
}

void CViewChannelInfoEditor::UpdateStreamRate(int stream)
{
    if (stream < 0 || stream >= StreamCount)
        return;
    CSFComboBox* frameRateCombo = m_pComboFrameRate[stream];

    wchar_t entry[kEntryChars] = {};
    if (frameRateCombo) {
        const int index = frameRateCombo->GetCurSel();
        // The entry is copied without a terminator: only what leaves one fits.
        const int length = frameRateCombo->GetLBText(index, nullptr);
        if (length >= 0 && length < kEntryChars)
            frameRateCombo->GetLBText(index, entry);
    }
    const int frameRate = _wtoi(entry);

    double rate = frameRate * ReferenceRate(CurSel(m_pComboResolution[stream]));
    if (m_nCompression[stream] == kIndexH265)
        rate *= kH265Factor;
    if (CurSel(m_pComboAudio[stream]) != 0)
        rate += kAudioKbps;
    SetRateText(m_pEditBitrate[stream], rate);
}

void CViewChannelInfoEditor::OnSelectChanged(int id, int index)
{
    int stream = StreamOfCombo(id, IdCompression);
    if (stream >= 0)
        m_nCompression[stream] = index;

    stream = StreamOfCombo(id, IdResolution);
    if (stream >= 0) {
        int frameRate = 0;
        if (index != 0)
            frameRate = index <= kLastFullRateResolution ? kIndexFps30 : kIndexFps15;
        SetCurSel(m_pComboFrameRate[stream], frameRate);
    }

    stream = StreamOfCombo(id, IdFrameRate);
    if (stream >= 0 && CurSel(m_pComboResolution[stream]) > kLastFullRateResolution &&
        index < kIndexFps15)
        SetCurSel(m_pComboFrameRate[stream], kIndexFps15);

    for (stream = 0; stream < StreamCount; ++stream) {
        if (CurSel(m_pComboFrameRate[stream]) != 0 && CurSel(m_pComboResolution[stream]) != 0 &&
            CurSel(m_pComboCompression[stream]) != 0)
            UpdateStreamRate(stream);
        else
            SetEditText(m_pEditBitrate[stream], L"");
    }
}

double CViewChannelInfoEditor::ReadBitrate(int stream) const
{
    const CSFEditCtrl* edit = m_pEditBitrate[stream];
    if (!edit)
        return 0.0;
    wchar_t text[kBitrateChars + 1] = {};
    edit->GetWindowTextW(text, kBitrateChars + 1);
    SF_SOFT_BASE::CSFStreamConvert narrow(text, 0);
    const char* value = narrow.GetA();
    CNumericLocaleGuard guard;
    return value ? std::atof(value) : 0.0;
}

StreamInfo CViewChannelInfoEditor::ReadStream(int stream) const
{
    StreamInfo info;
    info.nAudio = CurSel(m_pComboAudio[stream]);
    info.nCompression = CurSel(m_pComboCompression[stream]);
    info.nResolution = CurSel(m_pComboResolution[stream]);
    info.nFrameRate = CurSel(m_pComboFrameRate[stream]);
    info.dBitrate = ReadBitrate(stream);
    return info;
}

bool CViewChannelInfoEditor::CollectStreams()
{
    if (m_pSpinChannels)
        m_nChannels = m_pSpinChannels->GetCurrentNum();

    const StreamInfo main = ReadStream(0);
    if (!(main.dBitrate > 0.0)) {
        const wchar_t* text = GetLangString(L"Invalid bit rate,please check.", 0);
        const wchar_t* title = GetLangString(L"Error", 0);
        SFShowMessage(text, title, 0, 0, GetUIWnd());
        return false;
    }
    // The sub streams go in as they stand, shown or not.
    m_mapStreams[0] = main;
    m_mapStreams[1] = ReadStream(1);
    m_mapStreams[2] = ReadStream(2);
    return true;
}

void CViewChannelInfoEditor::SetChannelInfo(ChannelInfo info)
{
    m_nRow = info.nRow;
    if (m_pSpinChannels)
        m_pSpinChannels->SetCurrentNum(info.nChannels);
    const StreamInfo* streams[StreamCount] = { &info.stMain, &info.stSub1, &info.stSub2 };
    for (int stream = 0; stream < StreamCount; ++stream) {
        const StreamInfo& s = *streams[stream];
        SetCurSel(m_pComboCompression[stream], s.nCompression);
        SetCurSel(m_pComboResolution[stream], s.nResolution);
        SetCurSel(m_pComboFrameRate[stream], s.nFrameRate);
        SetCurSel(m_pComboAudio[stream], s.nAudio);
        SetRateText(m_pEditBitrate[stream], s.dBitrate);
    }
    // The rule's rates replace the record's.
    for (int stream = 0; stream < StreamCount; ++stream)
        UpdateStreamRate(stream);
}

void CViewChannelInfoEditor::GetChannelInfo(ChannelInfo* info)
{
    if (!info)
        return;
    if (m_pSpinChannels)
        info->nChannels = m_pSpinChannels->GetCurrentNum();
    info->stMain = ReadStream(0);
    info->stSub1 = ReadStream(1);
    info->stSub2 = ReadStream(2);
}
