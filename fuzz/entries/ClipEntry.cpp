#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "fuzz/entries/FuzzScratch.h"
#include "vexplay/ClipDecoder.h"
#include "vexplay/FrameScaler.h"
#include "vexplay/vexplay.h"

#include <QImage>
#include <QSize>
#include <memory>
#include <string>

namespace {

// Enough to pass a clip's first group of pictures; bounds each run.
constexpr int kMaxFrames = 24;

} // namespace

int FuzzClip(const uint8_t* data, size_t size)
{
    const std::string path = FuzzScratch::Write("clip.kvf", data, size);

    std::unique_ptr<vexplay::ClipDecoder> clip = vexplay::ClipDecoder::Open(path);
    if (!clip)
        return 0;
    vexplay::FrameScaler scaler;
    for (int i = 0; i < kMaxFrames && clip->Next() == vexplay::ClipDecoder::Step::Frame; ++i) {
        // Alternately the picture's own size and a small window.
        const QSize area = i % 2 ? QSize(64, 36) : QSize();
        const QImage image = scaler.Convert(clip->Frame(), clip->SampleAspect(), area);
        if (!image.isNull() && !area.isEmpty())
            FUZZ_CHECK(image.width() <= area.width() && image.height() <= area.height());
    }
    clip.reset();

    // The same file through the library's own entry, as the preview opens it.
    int port = -1;
    FUZZ_CHECK(vexplay_GetPort(&port) == 1);
    FUZZ_CHECK(vexplay_OpenFile(port, path.c_str()) == 1);
    FUZZ_CHECK(vexplay_CloseFile(port) == 1);
    return 0;
}
