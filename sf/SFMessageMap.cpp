#include "sf/SFMessageMap.h"

#include <cstddef>
#include <new>

const SF_MSGMAP_ENTRY* SFFindMessageEntry(const SF_MSGMAP_ENTRY* entries, unsigned int message,
                                          unsigned int code, unsigned int id)
{
    if (!entries)
        return nullptr;
    for (const SF_MSGMAP_ENTRY* e = entries; e->nSig != SF_SIG_END; ++e) {
        if (e->nMessage == message && e->nCode == code && e->nID <= id && id <= e->nLastID)
            return e;
    }
    return nullptr;
}

const SF_MSGMAP_ENTRY* SFFindMessageEntry(const SF_MSGMAP* map, unsigned int message,
                                          unsigned int code, unsigned int id)
{
    return map ? SFFindMessageEntry(map->lpEntries, message, code, id) : nullptr;
}

int* SFCollectMessageIDs(const SF_MSGMAP* map, int*& cache)
{
    if (!map || !map->lpEntries)
        return nullptr;
    std::size_t count = 0;
    for (const SF_MSGMAP_ENTRY* e = map->lpEntries; e->nSig != SF_SIG_END; ++e) {
        if (e->nMessage == SF_MSG_UI)
            ++count;
    }
    if (count == 0)
        return nullptr;
    if (!cache) {
        int* list = new (std::nothrow) int[count + 1];
        if (!list)
            return nullptr;
        std::size_t n = 0;
        for (const SF_MSGMAP_ENTRY* e = map->lpEntries; e->nSig != SF_SIG_END; ++e) {
            if (e->nMessage == SF_MSG_UI)
                list[n++] = static_cast<int>(e->nID);
        }
        list[n] = -1;
        cache = list;
    }
    return cache;
}
