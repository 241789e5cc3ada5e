// Start-up to the first painted window: the program against the floor, a
// bare Qt widget program, run alternately so that both see the same load.
//
//   tallix_startup_bench <program> <floor> [runs]      (default 15 each)
//
// Each run is timed from just before the spawn to the moment the child
// reports its first paint (TALLIX_REPORT_FIRST_PAINT=1; both clocks are
// CLOCK_MONOTONIC); the child reports its VmRSS then and ends itself. One
// unmeasured run of each comes first, so that both start from a warm file
// cache. The display is whatever QT_QPA_PLATFORM and DISPLAY say.
//
// Output, one line per program (named by its file name) and one for the
// ratio of the medians:
//   <name> runs <n> median <ms> q1 <ms> q3 <ms> min <ms> max <ms> rss-mb <median> cpu-ms <median>
//   ratio <program median / floor median>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

struct Run {
    double ms = -1;    // spawn to first paint
    double rssMb = -1; // at first paint
    double cpuMs = -1; // user and system time of the whole child
};

long long NowNs()
{
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<long long>(t.tv_sec) * 1000000000LL + t.tv_nsec;
}

double CpuMs(const rusage& u)
{
    return (static_cast<double>(u.ru_utime.tv_sec + u.ru_stime.tv_sec) * 1e3) +
           (static_cast<double>(u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e3);
}

// Reads the child's stderr until it closes or the deadline passes.
std::string ReadAll(int fd, long long deadlineNs)
{
    std::string text;
    char buf[4096];
    for (;;) {
        const long long left = (deadlineNs - NowNs()) / 1000000;
        if (left <= 0)
            break;
        pollfd p{ fd, POLLIN, 0 };
        if (poll(&p, 1, static_cast<int>(left)) <= 0)
            break;
        const ssize_t n = read(fd, buf, sizeof buf);
        if (n <= 0)
            break;
        text.append(buf, static_cast<size_t>(n));
    }
    return text;
}

Run RunOnce(const char* program)
{
    Run run;
    int pipeFd[2];
    if (pipe(pipeFd) != 0)
        return run;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, pipeFd[1], 2);
    posix_spawn_file_actions_addclose(&actions, pipeFd[0]);
    posix_spawn_file_actions_addclose(&actions, pipeFd[1]);
    char* argv[] = { const_cast<char*>(program), nullptr };

    pid_t pid = 0;
    const long long start = NowNs();
    const int spawned = posix_spawn(&pid, program, &actions, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(pipeFd[1]);
    if (spawned != 0) {
        close(pipeFd[0]);
        std::fprintf(stderr, "cannot start %s: %s\n", program, std::strerror(spawned));
        return run;
    }
    const std::string out = ReadAll(pipeFd[0], start + 60LL * 1000000000LL);
    close(pipeFd[0]);
    kill(pid, SIGKILL); // harmless once it has ended; ends a hung one
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);

    const size_t at = out.find("first-paint ");
    long long paintedNs = 0;
    long rssKb = 0;
    if (at == std::string::npos ||
        std::sscanf(out.c_str() + at, "first-paint %lld rss-kb %ld", &paintedNs, &rssKb) != 2) {
        std::fprintf(stderr, "%s reported no first paint; its output:\n%s\n", program, out.c_str());
        return run;
    }
    run.ms = static_cast<double>(paintedNs - start) / 1e6;
    run.rssMb = static_cast<double>(rssKb) / 1024.0;
    run.cpuMs = CpuMs(usage);
    return run;
}

// Quantile by nearest rank on a sorted copy.
double Quantile(std::vector<double> v, double q)
{
    std::sort(v.begin(), v.end());
    // Never negative, so adding a half rounds. NOLINTNEXTLINE(bugprone-incorrect-roundings)
    const size_t i = static_cast<size_t>(q * static_cast<double>(v.size() - 1) + 0.5);
    return v[i];
}

std::vector<double> Field(const std::vector<Run>& runs, double Run::*field)
{
    std::vector<double> v;
    for (const Run& r : runs)
        v.push_back(r.*field);
    return v;
}

void Print(const char* name, const std::vector<Run>& runs)
{
    const std::vector<double> ms = Field(runs, &Run::ms);
    const char* slash = std::strrchr(name, '/');
    std::printf(
        "%s runs %zu median %.1f q1 %.1f q3 %.1f min %.1f max %.1f rss-mb %.1f cpu-ms %.1f\n",
        slash ? slash + 1 : name, runs.size(), Quantile(ms, 0.5), Quantile(ms, 0.25),
        Quantile(ms, 0.75), Quantile(ms, 0), Quantile(ms, 1),
        Quantile(Field(runs, &Run::rssMb), 0.5), Quantile(Field(runs, &Run::cpuMs), 0.5));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s <program> <floor> [runs]\n", argv[0]);
        return 2;
    }
    const char* program = argv[1];
    const char* floor = argv[2];
    const int runs = argc > 3 ? std::max(1, std::atoi(argv[3])) : 15;
    setenv("TALLIX_REPORT_FIRST_PAINT", "1", 1);

    if (RunOnce(program).ms < 0 || RunOnce(floor).ms < 0)
        return 1;
    std::vector<Run> programRuns, floorRuns;
    for (int i = 0; i < runs; ++i) {
        programRuns.push_back(RunOnce(program));
        floorRuns.push_back(RunOnce(floor));
        if (programRuns.back().ms < 0 || floorRuns.back().ms < 0)
            return 1;
    }
    Print(program, programRuns);
    Print(floor, floorRuns);
    std::printf("ratio %.2f\n", Quantile(Field(programRuns, &Run::ms), 0.5) /
                                    Quantile(Field(floorRuns, &Run::ms), 0.5));
    return 0;
}
