#include "plan/SiteFigures.h"

#include "streams/engine/BitrateEstimate.h"
#include "streams/engine/ChannelRowRules.h"

namespace {

std::wstring Wide(const std::string& strText)
{
    return std::wstring(strText.begin(), strText.end()); // digits only
}

std::string Narrow(const std::wstring& strText)
{
    std::string strOut;
    for (wchar_t c : strText)
        strOut += static_cast<char>(c < 0x80 ? c : '?');
    return strOut;
}

} // namespace

int CSiteFigures::EffectiveFrameRate(const SiteRow& row)
{
    const int nIndex = RowFrameRateAfterChoice(row.nResolution, row.nFrameRateIndex);
    std::wstring strCustom;
    if (nIndex == kRowFrameRateCustom)
        strCustom = RowCustomRateText(Wide(row.strCustomRate), row.nResolution);
    return RowFrameRateValue(nIndex, strCustom);
}

CSiteFigures::CSiteFigures(const std::vector<SiteRow>& rows, int nArea)
{
    ChannelTotals totals;
    m_rows.reserve(rows.size());
    for (const SiteRow& row : rows) {
        RowFigure figure;
        figure.nLine = row.nLine;
        figure.nChannels = row.nChannels;
        figure.nFrameRate = EffectiveFrameRate(row);
        // A scene stays only with a smart codec.
        const int nScene = RowSceneEnabled(row.nCompression) ? row.nScene : 0;
        figure.dEstimate = EstimateRowBitrate(row.nCompression, nScene, row.nResolution,
                                              figure.nFrameRate, row.bAudio, nArea);
        figure.bTyped = row.bTypedBitrate;
        const std::wstring strText = row.bTypedBitrate
                                         ? RowTypedBitrateText(Wide(row.strTypedBitrate))
                                         : RowBitrateText(figure.dEstimate);
        figure.strText = Narrow(strText);
        const double dBefore = totals.totalKbps;
        const unsigned int nBefore = totals.channels;
        totals.AddRow(strText, row.nChannels);
        figure.dRowKbps = totals.totalKbps - dBefore;
        figure.bCounted = totals.channels != nBefore;
        m_rows.push_back(figure);
    }
    m_totals.nChannels = static_cast<int>(totals.channels);
    m_totals.dKbps = totals.totalKbps;
}
