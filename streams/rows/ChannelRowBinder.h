#pragma once
// Binds the rules of a channel row to the cells of the list control: what a
// choice in one cell does to the rest of the row, the row's bit rate and the
// totals that go to the page.

#include "sf/ISFListRowBinder.h"

#include <string>
#include <vector>

class CChannelRowBinder : public ISFListRowBinder {
public:
    // The list's combo types as this row uses them.
    static constexpr int ComboScene = 0;
    static constexpr int ComboCompression = 1;
    static constexpr int ComboResolution = 2;
    static constexpr int ComboFrameRate = 3;

    std::vector<std::wstring> ComboEntries(int type) const override;
    void ComboChanged(ISFListRowCells& cells, int type, int row, int index) override;
    void ComboButtonClicked(ISFListRowCells& cells, int row) override;
    void ComboEditChanged(ISFListRowCells& cells, int row, const std::wstring& text) override;
    void EditChanged(ISFListRowCells& cells, int row, const std::wstring& text) override;
    void SpinerChanged(ISFListRowCells& cells, int row) override;
    void CheckClicked(ISFListRowCells& cells, int row) override;
    void UpdateRow(ISFListRowCells& cells, int row, int totalsOnly, int keepRowText) override;
    int IsRowReady(ISFListRowCells& cells, int row) override;

private:
    void CompressionChanged(ISFListRowCells& cells, int row, int index);
    void SceneChanged(ISFListRowCells& cells, int row);
    void ResolutionChanged(ISFListRowCells& cells, int row, int index);
    void FrameRateChanged(ISFListRowCells& cells, int row, int index);
    // A new estimate when the row is ready for one.
    void Update(ISFListRowCells& cells, int row);
    void ReportTotals(ISFListRowCells& cells);
};
