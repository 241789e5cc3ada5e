// Setting an edit's text reports synchronously and comes back here; every
// reaction ends in the same state when passed twice. A combo moved from code
// stays silent, so its follow-up runs here.
#include "streams/rows/ChannelRowBinder.h"

#include "sf/ISFListCtrlEvent.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFListCtrlIds.h"
#include "sf/SFNumSpiner.h"
#include "streams/engine/BitrateEstimate.h"
#include "streams/engine/ChannelRowRules.h"

#include <cstddef>

static_assert(CChannelRowBinder::ComboScene == SF_LIST_COMBO_WITH_BUTTON,
              "the scene combo carries the Preview button");
static_assert(CChannelRowBinder::ComboFrameRate == SF_LIST_COMBO_WITH_EDIT,
              "the frame-rate combo carries the custom rate edit");

namespace {

int ComboIndex(const CSFComboBox* combo)
{
    if (!combo)
        return 0;
    const int index = combo->GetCurSel();
    return index > 0 ? index : 0;
}

template <std::size_t N>
std::vector<std::wstring> Entries(const wchar_t* const (&list)[N])
{
    return std::vector<std::wstring>(list, list + N);
}

} // namespace

// Compression and resolution are shown as they are; the scene names come
// translated from the page, and "Customize" after the frame rates too.
std::vector<std::wstring> CChannelRowBinder::ComboEntries(int type) const
{
    switch (type) {
    case ComboCompression:
        return Entries(g_szCompressionEntries);
    case ComboResolution:
        return Entries(g_szResolutionEntries);
    case ComboFrameRate:
        return Entries(g_szRowFrameRateEntries);
    default:
        return {};
    }
}

void CChannelRowBinder::ComboChanged(ISFListRowCells& cells, int type, int row, int index)
{
    switch (type) {
    case ComboCompression:
        CompressionChanged(cells, row, index);
        break;
    case ComboScene:
        SceneChanged(cells, row);
        break;
    case ComboResolution:
        ResolutionChanged(cells, row, index);
        break;
    case ComboFrameRate:
        FrameRateChanged(cells, row, index);
        break;
    default:
        break;
    }
}

void CChannelRowBinder::CompressionChanged(ISFListRowCells& cells, int row, int index)
{
    if (CSFComboBox* scene = cells.RowCombo(ComboScene, row)) {
        if (RowSceneEnabled(index)) {
            scene->EnableWindow(1);
        } else {
            scene->SetCurSel(0);
            scene->EnableWindow(0);
        }
    }
    SceneChanged(cells, row);
}

void CChannelRowBinder::SceneChanged(ISFListRowCells& cells, int row)
{
    const int scene = ComboIndex(cells.RowCombo(ComboScene, row));
    if (CSFButton* preview = cells.RowComboButton(row))
        preview->ShowWindow(RowPreviewShown(scene) ? 1 : 0);
    Update(cells, row);
}

void CChannelRowBinder::ResolutionChanged(ISFListRowCells& cells, int row, int index)
{
    if (CSFComboBox* frameRate = cells.RowCombo(ComboFrameRate, row))
        frameRate->SetCurSel(RowFrameRateForResolution(index));
    if (CSFEditCtrl* custom = cells.RowComboEdit(row))
        custom->ShowWindow(0);
    Update(cells, row);
}

void CChannelRowBinder::FrameRateChanged(ISFListRowCells& cells, int row, int index)
{
    CSFComboBox* frameRate = cells.RowCombo(ComboFrameRate, row);
    CSFEditCtrl* custom = cells.RowComboEdit(row);
    CSFComboBox* resolution = cells.RowCombo(ComboResolution, row);
    if (custom)
        custom->ShowWindow(frameRate && RowCustomRateShown(index) ? 1 : 0);
    if (resolution && RowResolutionAfterFrameRate(ComboIndex(resolution), index) == 0)
        resolution->SetCurSel(0);
    const int resolutionIndex = ComboIndex(resolution);
    const int kept = RowFrameRateAfterChoice(resolutionIndex, index);
    if (kept != index && frameRate)
        frameRate->SetCurSel(kept);
    else if (RowCustomRateResets(resolutionIndex, index) && custom)
        custom->SetWindowTextW(L"0");
    Update(cells, row);
}

void CChannelRowBinder::ComboButtonClicked(ISFListRowCells& cells, int row)
{
    CSFComboBox* combo = cells.RowCombo(ComboScene, row);
    const int scene = combo ? combo->GetCurSel() : 0;
    if (RowPreviewShown(scene) && cells.Handler())
        cells.Handler()->ViewScene(scene);
}

// Each repair is written back and comes back here as a new event before this
// one goes on.
void CChannelRowBinder::ComboEditChanged(ISFListRowCells& cells, int row, const std::wstring& text)
{
    CSFEditCtrl* edit = cells.RowComboEdit(row);
    if (!edit)
        return;
    if (text.size() > static_cast<std::size_t>(kRowCustomRateMaxChars)) {
        edit->SetWindowTextW(text.substr(0, kRowCustomRateMaxChars).c_str());
        return;
    }
    if (!RowTextIsDigits(text)) {
        edit->SetWindowTextW(L"0");
        UpdateRow(cells, row, 0, 0);
        return;
    }
    const std::wstring repaired =
        RowCustomRateText(text, ComboIndex(cells.RowCombo(ComboResolution, row)));
    if (repaired != text)
        edit->SetWindowTextW(repaired.c_str());
    UpdateRow(cells, row, 0, 0);
}

void CChannelRowBinder::EditChanged(ISFListRowCells& cells, int row, const std::wstring& text)
{
    CSFEditCtrl* edit = cells.RowEdit(row);
    if (!edit)
        return;
    if (text.size() > static_cast<std::size_t>(kRowBitrateMaxChars)) {
        edit->SetWindowTextW(text.substr(0, kRowBitrateMaxChars).c_str());
        return;
    }
    const std::wstring shown = SFEditText(edit, kRowBitrateMaxChars);
    if (!RowTextIsDigits(shown)) {
        edit->SetWindowTextW(L"0");
        return;
    }
    // Only the totals: the typed number stays as it is.
    if (shown == text)
        UpdateRow(cells, row, 1, 0);
}

// The row's text stays, so an overtyped rate survives a new channel count.
void CChannelRowBinder::SpinerChanged(ISFListRowCells& cells, int row)
{
    if (IsRowReady(cells, row))
        UpdateRow(cells, row, 0, 1);
}

void CChannelRowBinder::CheckClicked(ISFListRowCells& cells, int row)
{
    Update(cells, row);
}

void CChannelRowBinder::Update(ISFListRowCells& cells, int row)
{
    if (IsRowReady(cells, row))
        UpdateRow(cells, row, 0, 0);
}

void CChannelRowBinder::UpdateRow(ISFListRowCells& cells, int row, int totalsOnly, int keepRowText)
{
    if (!totalsOnly) {
        const int compression = ComboIndex(cells.RowCombo(ComboCompression, row));
        const int scene = ComboIndex(cells.RowCombo(ComboScene, row));
        CSFComboBox* resolutionCombo = cells.RowCombo(ComboResolution, row);
        CSFComboBox* frameRateCombo = cells.RowCombo(ComboFrameRate, row);
        const int frameIndex = ComboIndex(frameRateCombo);
        // Resolution and frame rate stand or fall together.
        const int resolution = RowResolutionAfterFrameRate(ComboIndex(resolutionCombo), frameIndex);
        if (frameIndex == 0 && resolutionCombo)
            resolutionCombo->SetCurSel(0);
        const int frameRate =
            frameRateCombo ? RowFrameRateValue(frameIndex, SFEditText(cells.RowComboEdit(row),
                                                                      kRowBitrateMaxChars))
                           : 0;
        const double value = EstimateRowBitrate(compression, scene, resolution, frameRate,
                                                cells.RowChecked(row) != 0, cells.Area());
        CSFEditCtrl* bitrate = cells.RowEdit(row);
        if (keepRowText == 0 && bitrate)
            bitrate->SetWindowTextW(RowBitrateText(value).c_str());
    }
    ReportTotals(cells);
}

// From the texts of the bit-rate column, never from the estimates.
void CChannelRowBinder::ReportTotals(ISFListRowCells& cells)
{
    ChannelTotals totals;
    for (const auto& [spiner, row] : cells.RowSpiners()) {
        const CSFEditCtrl* edit = cells.RowEdit(row);
        if (!edit)
            continue;
        totals.AddRow(SFEditText(edit, kRowTotalsReadChars), spiner->GetCurrentNum());
    }
    if (ISFListCtrlEvent* handler = cells.Handler())
        handler->CalculatorResoult(static_cast<int>(totals.channels), totals.totalKbps);
}

int CChannelRowBinder::IsRowReady(ISFListRowCells& cells, int row)
{
    const int compression = ComboIndex(cells.RowCombo(ComboCompression, row));
    const int resolution = ComboIndex(cells.RowCombo(ComboResolution, row));
    const int frameRate = ComboIndex(cells.RowCombo(ComboFrameRate, row));
    const CSFEditCtrl* bitrate = cells.RowEdit(row);
    const std::wstring text = bitrate ? SFEditText(bitrate, kRowTotalsReadChars) : std::wstring();
    return RowIsReady(compression, resolution, frameRate, bitrate ? &text : nullptr) ? 1 : 0;
}
