#pragma once
// What the channel table would show for the rows of a site file: each row's
// bit-rate text, and the channel count and total bit rate summed from those
// texts.

#include "plan/SiteRow.h"

#include <string>
#include <vector>

struct RowFigure {
    int nLine = 0;
    int nChannels = 0;
    int nFrameRate = 0;     // frames per second after the row's own limits
    double dEstimate = 0.0; // before rounding
    bool bTyped = false;
    std::string strText;   // column 7: the rounded estimate or the typed rate
    double dRowKbps = 0.0; // channels times the text's rate
    bool bCounted = false; // a text of exactly "0" adds no channels
};

struct SiteTotals {
    int nChannels = 0;
    double dKbps = 0.0;
};

class CSiteFigures {
public:
    // area 1 selects the lower reference rates of "VGA" and "D1".
    CSiteFigures(const std::vector<SiteRow>& rows, int nArea);

    const std::vector<RowFigure>& Rows() const { return m_rows; }
    const SiteTotals& Totals() const { return m_totals; }

    // Frames per second of a row as its combo and custom edit end up.
    static int EffectiveFrameRate(const SiteRow& row);

private:
    std::vector<RowFigure> m_rows;
    SiteTotals m_totals;
};
