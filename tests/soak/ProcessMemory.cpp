#include "tests/soak/ProcessMemory.h"

#include <QCoreApplication>
#include <QEvent>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <string>

namespace {

long PrivateDirtyKb()
{
    std::ifstream in("/proc/self/smaps_rollup");
    std::string line;
    while (std::getline(in, line)) {
        if (line.rfind("Private_Dirty:", 0) == 0)
            return std::atol(line.c_str() + line.find(':') + 1);
    }
    return 0;
}

} // namespace

CProcessMemory CProcessMemory::AfterSettling()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    CProcessMemory m;
    m.untrimmedPrivateDirtyKb = PrivateDirtyKb();
    malloc_trim(0);
    m.privateDirtyKb = PrivateDirtyKb();
    m.heapInUseKb = static_cast<long>(mallinfo2().uordblks / 1024);
    return m;
}
