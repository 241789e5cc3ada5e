#pragma once
// The test process's own memory, as /proc and the allocator count it.

struct CProcessMemory {
    long privateDirtyKb = 0;          // after malloc_trim
    long untrimmedPrivateDirtyKb = 0; // before it
    long heapInUseKb = 0;             // bytes the allocator has handed out

    // Deferred deletions done and pending events run first, so that what
    // the window has let go of is gone.
    static CProcessMemory AfterSettling();
};
