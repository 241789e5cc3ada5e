// Benchmark, not a test: what playing a clip costs against FFmpeg's own
// decoding of it, and how soon a play shows its first frame.
//
//   vexplay_bench [rounds]     (QT_QPA_PLATFORM=offscreen unless set)
//
// CPU: process user+system time while a clip plays through once, paced, into
// a 450x430 window (decoding, conversion, painting and everything else the
// process does), per second of clip; against the user+system time of
// `ffmpeg -nostdin -i CLIP -f null -` run as a child in the same run, per
// second of clip. First frame: from the call of vexplay_Play to the first
// paint event of the picture.

#include "vexplay/vexplay.h"

#include "tests/vexplay/PlaybackStage.h"
#include "tests/vexplay/SurfaceProbe.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

constexpr double kClipSeconds = 8.0;

double Seconds(const timeval& t)
{
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
}

double OwnCpu()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

// CPU seconds of one ffmpeg decoding run; negative when it failed.
double FfmpegCpu(const std::string& clip)
{
    std::vector<std::string> args = { "ffmpeg", "-hide_banner", "-loglevel", "error", "-nostdin",
                                      "-i",     clip,           "-f",        "null",  "-" };
    std::vector<char*> argv;
    for (std::string& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawnp(&pid, "ffmpeg", nullptr, nullptr, argv.data(), environ) != 0)
        return -1;
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return -1;
    return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

// Ends the event loop the clip plays in, as a modal dialog's would run.
void QuitLoop(int, void* user)
{
    auto* loop = static_cast<QEventLoop*>(user);
    QMetaObject::invokeMethod(
        loop, [loop] { loop->quit(); }, Qt::QueuedConnection);
}

struct PlayResult {
    double cpu = -1;
    int paints = 0;
};

PlayResult PlayOnce(const std::string& clip)
{
    PlayResult result;
    PlaybackStage stage(QSize(450, 430));
    QEventLoop loop;
    int port = -1;
    if (!vexplay_GetPort(&port) || !vexplay_OpenFile(port, clip.c_str()) ||
        !vexplay_SetFileEndCallback(port, &QuitLoop, &loop))
        return result;
    QTimer::singleShot(30000, &loop, &QEventLoop::quit);
    const double before = OwnCpu();
    if (vexplay_Play(port, stage.Handle())) {
        SurfaceProbe probe(stage.Surface());
        loop.exec();
        result.cpu = OwnCpu() - before;
        result.paints = probe.Paints();
    }
    vexplay_CloseFile(port);
    return result;
}

double FirstFrameMs(const std::string& clip)
{
    PlaybackStage stage(QSize(450, 430));
    int port = -1;
    double ms = -1;
    if (vexplay_GetPort(&port) && vexplay_OpenFile(port, clip.c_str())) {
        const auto start = std::chrono::steady_clock::now();
        if (vexplay_Play(port, stage.Handle())) {
            const double call =
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                    .count();
            // The probe's clock starts when Play has returned.
            SurfaceProbe probe(stage.Surface());
            if (PlaybackStage::WaitFor([&] { return probe.Paints() > 0; }, 5000))
                ms = call + static_cast<double>(probe.FirstPaintMs());
        }
    }
    vexplay_CloseFile(port);
    return ms;
}

double Median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? -1 : v[v.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;

    std::printf("%-12s %14s %14s %7s %9s %12s %12s\n", "clip", "play cpu/s", "ffmpeg cpu/s",
                "ratio", "frames", "first ms med", "first ms max");
    for (const char* name : { "1low.kvf", "1medium.kvf", "1high.kvf" }) {
        const std::string clip = PlaybackStage::Clip(name);
        std::vector<double> play;
        std::vector<double> ffmpeg;
        int paints = 0;
        for (int i = 0; i < rounds; ++i) {
            const PlayResult r = PlayOnce(clip);
            play.push_back(r.cpu / kClipSeconds);
            paints = r.paints;
            ffmpeg.push_back(FfmpegCpu(clip) / kClipSeconds);
        }
        std::vector<double> first;
        for (int i = 0; i < 20; ++i)
            first.push_back(FirstFrameMs(clip));
        const double p = Median(play);
        const double f = Median(ffmpeg);
        std::printf("%-12s %13.1fms %13.1fms %7.2f %9d %12.1f %12.1f\n", name, p * 1000, f * 1000,
                    f > 0 ? p / f : 0.0, paints, Median(first),
                    *std::max_element(first.begin(), first.end()));
    }
    return 0;
}
