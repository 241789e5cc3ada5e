// What the controls of a channel row do to each other: the reactions of a
// row, its bit rate and the totals of the table.
//
// Setting an edit's text or a spinner's number reports synchronously and
// comes back here; every reaction ends in the same state when passed twice.
// A combo moved from code stays silent, so its follow-up runs here.
#include "sf/qt/SFQTListCtrl.h"

#include "streams/engine/BitrateEstimate.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFListCtrlIds.h"
#include "sf/SFNumSpiner.h"
#include "language/SFStreamConvert.h"
#include "language/TextConvert.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int ResolutionIndex12MP = 12;
constexpr int FrameRateIndex30 = 7;
constexpr int FrameRateIndex45 = 8;
constexpr int FrameRateIndex60 = 9;
constexpr int FrameRateIndexCustom = 10;
constexpr int CustomRateMaxChars = 3;
constexpr int CustomRateCap = 30;
constexpr int BitrateMaxChars = 9;
constexpr int TotalsReadChars = 100;

int ComboIndex(const CSFComboBox* combo)
{
    if (!combo)
        return 0;
    const int index = combo->GetCurSel();
    return index > 0 ? index : 0;
}

// At most maxChars characters of the edit; the edit does not end a short
// text itself, hence the zeroed buffer.
std::wstring EditText(const CSFEditCtrl* edit, int maxChars)
{
    std::vector<wchar_t> buffer(static_cast<size_t>(maxChars) + 1, L'\0');
    if (edit)
        edit->GetWindowTextW(buffer.data(), maxChars + 1);
    return std::wstring(buffer.data());
}

std::string Utf8(const std::wstring& text)
{
    SF_SOFT_BASE::CSFStreamConvert convert(text.c_str(), 65001);
    return convert.GetAString();
}

} // namespace

void CSFQTListCtrl::SetArea(int area)
{
    m_tableFlag = area;
}

// The id tells the kind of combo, the register the row.
void CSFQTListCtrl::SelectChanged(int id, int index, void* sender)
{
    const void* key = CellControlKey(sender);
    if (id >= static_cast<int>(SF_LIST_ID_FRAMERATE)) {
        m_currentRow = RowOf(m_frameRateCombos, key);
        OnFrameRateCurrentIndexChanged(index);
    } else if (id >= static_cast<int>(SF_LIST_ID_RESOLUTION)) {
        m_currentRow = RowOf(m_resolutionCombos, key);
        OnResolutionCurrentIndexChanged(index);
    } else if (id >= static_cast<int>(SF_LIST_ID_COMPRESSION)) {
        m_currentRow = RowOf(m_compressionCombos, key);
        CSFComboBox* environment = ControlOfRow(m_environmentCombos, m_currentRow);
        if (environment) {
            if (index == 3 || index == 4) {
                environment->EnableWindow(1);
            } else {
                environment->SetCurSel(0);
                environment->EnableWindow(0);
            }
        }
        OnCompressionCurrentIndexChanged(index);
    } else {
        m_currentRow = RowOf(m_environmentCombos, key);
        OnEnvironmentCurrentIndexChanged(index);
    }
}

void CSFQTListCtrl::OnCompressionCurrentIndexChanged(int)
{
    // The Preview button is there exactly while a scene is chosen.
    const int scene = ComboIndex(ControlOfRow(m_environmentCombos, m_currentRow));
    if (CSFButton* preview = ControlOfRow(m_environmentButtons, m_currentRow))
        preview->ShowWindow(scene >= 1 && scene <= 3 ? 1 : 0);
    if (IsRowReady())
        UpdateBitrate(0, 0);
}

void CSFQTListCtrl::OnEnvironmentCurrentIndexChanged(int pos)
{
    OnCompressionCurrentIndexChanged(pos);
}

// Every resolution starts at 30 frames per second.
void CSFQTListCtrl::OnResolutionCurrentIndexChanged(int pos)
{
    if (CSFComboBox* frameRate = ControlOfRow(m_frameRateCombos, m_currentRow))
        frameRate->SetCurSel(pos == 0 ? 0 : FrameRateIndex30);
    if (CSFEditCtrl* custom = ControlOfRow(m_customRateEdits, m_currentRow))
        custom->ShowWindow(0);
    if (IsRowReady())
        UpdateBitrate(0, 0);
}

void CSFQTListCtrl::OnFrameRateCurrentIndexChanged(int pos)
{
    CSFComboBox* frameRate = ControlOfRow(m_frameRateCombos, m_currentRow);
    CSFEditCtrl* custom = ControlOfRow(m_customRateEdits, m_currentRow);
    CSFComboBox* resolution = ControlOfRow(m_resolutionCombos, m_currentRow);
    const bool last = frameRate && pos == frameRate->GetCount() - 1;
    if (custom)
        custom->ShowWindow(last ? 1 : 0);
    if (pos == 0 && resolution)
        resolution->SetCurSel(0);
    // "12MP" goes no faster than 30 frames per second.
    if (ComboIndex(resolution) == ResolutionIndex12MP) {
        if ((pos == FrameRateIndex45 || pos == FrameRateIndex60) && frameRate)
            frameRate->SetCurSel(FrameRateIndex30);
        else if (pos == FrameRateIndexCustom && custom)
            custom->SetWindowTextW(L"0");
    }
    if (IsRowReady())
        UpdateBitrate(0, 0);
}

void CSFQTListCtrl::EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender)
{
    const void* key = CellControlKey(sender);
    const bool customRate = id < SF_LIST_ID_COMPRESSION;
    CSFEditCtrl* edit = nullptr;
    if (customRate) {
        m_currentRow = RowOf(m_customRateEdits, key);
        edit = ControlOfRow(m_customRateEdits, m_currentRow);
    } else {
        m_currentRow = RowOf(m_bitrateEdits, key);
        edit = ControlOfRow(m_bitrateEdits, m_currentRow);
    }
    // A control that has left its row, or one that is no row's.
    if (!edit || static_cast<const void*>(edit) != key)
        return;
    const std::wstring typed = text ? text : L"";

    if (customRate) {
        if (typed.size() > static_cast<size_t>(CustomRateMaxChars)) {
            edit->SetWindowTextW(typed.substr(0, CustomRateMaxChars).c_str());
            return;
        }
        int value = 0;
        if (!ParseWideDigits(typed.c_str(), &value, BitrateMaxChars)) {
            edit->SetWindowTextW(L"0");
            IsRowReady();
            UpdateBitrate(0, 0);
            return;
        }
        if (value > CustomRateCap &&
            ComboIndex(ControlOfRow(m_resolutionCombos, m_currentRow)) >= ResolutionIndex12MP)
            edit->SetWindowTextW(L"30");
        UpdateBitrate(0, 0);
        return;
    }

    if (typed.size() > static_cast<size_t>(BitrateMaxChars)) {
        edit->SetWindowTextW(typed.substr(0, BitrateMaxChars).c_str());
        return;
    }
    const std::wstring shown = EditText(edit, BitrateMaxChars);
    int value = 0;
    if (!ParseWideDigits(shown.c_str(), &value, BitrateMaxChars)) {
        edit->SetWindowTextW(L"0");
        return;
    }
    // Only the totals: the typed number stays as it is.
    if (shown == typed)
        UpdateBitrate(1, 0);
}

// The sender decides the row; the id, which may be stale after a deletion,
// only when the sender is no row's spinner.
void CSFQTListCtrl::OnCurrentNumChanged(unsigned int id, int, void* sender, int)
{
    m_currentRow = RowOf(m_channelSpiners, CellControlKey(sender));
    if (m_currentRow < 0) {
        for (auto it = m_channelSpiners.cbegin(); it != m_channelSpiners.cend(); ++it) {
            if (it.value() == static_cast<int>(id)) {
                m_currentRow = it.value();
                break;
            }
        }
    }
    // The row's text stays, so an overtyped rate survives a new channel count.
    if (IsRowReady())
        UpdateBitrate(0, 1);
}

void CSFQTListCtrl::UpdateBitrate(int totalsOnly, int keepRowText)
{
    if (!totalsOnly) {
        const int row = m_currentRow;
        const int compression = ComboIndex(ControlOfRow(m_compressionCombos, row));
        const int environment = ComboIndex(ControlOfRow(m_environmentCombos, row));
        CSFComboBox* resolutionCombo = ControlOfRow(m_resolutionCombos, row);
        int resolution = ComboIndex(resolutionCombo);
        CSFComboBox* frameRateCombo = ControlOfRow(m_frameRateCombos, row);
        const int frameIndex = ComboIndex(frameRateCombo);
        // Resolution and frame rate stand or fall together.
        if (frameIndex == 0) {
            if (resolutionCombo)
                resolutionCombo->SetCurSel(0);
            resolution = 0;
        }
        int frameRate = 0;
        if (frameRateCombo && frameIndex == frameRateCombo->GetCount() - 1) {
            const std::wstring custom =
                EditText(ControlOfRow(m_customRateEdits, row), BitrateMaxChars);
            frameRate = std::atoi(Utf8(custom).c_str());
        } else if (frameRateCombo && frameIndex > 0) {
            std::vector<wchar_t> entry(static_cast<size_t>(256), L'\0');
            if (frameRateCombo->GetLBText(frameIndex, nullptr) < 255)
                frameRateCombo->GetLBText(frameIndex, entry.data());
            frameRate = std::atoi(Utf8(entry.data()).c_str());
        }
        const int audio = GetCheck(row);
        const double value =
            EstimateRowBitrate(compression, environment, resolution, frameRate, audio != 0,
                               m_tableFlag);
        CSFEditCtrl* bitrate = ControlOfRow(m_bitrateEdits, row);
        if (keepRowText == 0 && bitrate) {
            // Only the printed integer goes on; so does a 0.
            char printed[256] = {};
            std::snprintf(printed, sizeof(printed), "%.0f", value);
            SF_SOFT_BASE::CSFStreamConvert wide(printed, 65001);
            bitrate->SetWindowTextW(wide.GetW() ? wide.GetW() : L"0");
        }
    }

    // The totals come from the texts of the bit-rate column, never from the
    // estimates. One walk of the edits gives each row its first edit.
    std::vector<CSFEditCtrl*> editOfRow(static_cast<size_t>(rowCount()), nullptr);
    for (auto it = m_bitrateEdits.cbegin(); it != m_bitrateEdits.cend(); ++it) {
        const int r = it.value();
        if (r < 0)
            continue;
        if (static_cast<size_t>(r) >= editOfRow.size())
            editOfRow.resize(static_cast<size_t>(r) + 1, nullptr);
        if (!editOfRow[static_cast<size_t>(r)])
            editOfRow[static_cast<size_t>(r)] = it.key();
    }
    double total = 0.0;
    // Wraps like the 32-bit sum it is, without overflowing.
    unsigned int channels = 0;
    for (auto it = m_channelSpiners.cbegin(); it != m_channelSpiners.cend(); ++it) {
        const int r = it.value();
        if (r < 0 || static_cast<size_t>(r) >= editOfRow.size() ||
            !editOfRow[static_cast<size_t>(r)])
            continue;
        const std::wstring text = EditText(editOfRow[static_cast<size_t>(r)], TotalsReadChars);
        const int count = it.key()->GetCurrentNum();
        total += std::atof(Utf8(text).c_str()) * count;
        if (text != L"0")
            channels += static_cast<unsigned int>(count);
    }
    if (m_pEvent)
        m_pEvent->CalculatorResoult(static_cast<int>(channels), total);
}

// A row that shows a number is kept up to date even once it is incomplete;
// an untouched incomplete row stays silent.
int CSFQTListCtrl::IsRowReady()
{
    const int compression = ComboIndex(ControlOfRow(m_compressionCombos, m_currentRow));
    const int resolution = ComboIndex(ControlOfRow(m_resolutionCombos, m_currentRow));
    const int frameRate = ComboIndex(ControlOfRow(m_frameRateCombos, m_currentRow));
    if (CSFEditCtrl* bitrate = ControlOfRow(m_bitrateEdits, m_currentRow)) {
        if (EditText(bitrate, TotalsReadChars) != L"0")
            return 1;
    }
    return (compression == 0 || resolution == 0 || frameRate == 0) ? 0 : 1;
}
