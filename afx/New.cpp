// Allocation inside the library reports failure as the class library does:
// by throwing a CMemoryException*, which the graph operations catch and turn
// into their status value.
#include "afx/afx.h"
#include <new>
#include <stdlib.h>

namespace {

// Allocations left before the one that fails; -1 when none is to fail.
volatile LONG s_nAllocsBeforeFailure = -1;
// Blocks allocated by the library and not yet freed.
volatile LONG s_nLiveBlocks = 0;

void FreeBlock(void* p)
{
    if (p != NULL) {
        ::InterlockedDecrement(&s_nLiveBlocks);
        free(p);
    }
}

} // namespace

void AFXAPI AfxSetAllocFailure(int nAfter)
{
    ::InterlockedExchange(&s_nAllocsBeforeFailure, nAfter < 0 ? -1 : nAfter);
}

LONG AFXAPI AfxGetLiveBlockCount()
{
    return s_nLiveBlocks;
}

void* operator new(size_t nSize)
{
    if (s_nAllocsBeforeFailure >= 0 && ::InterlockedDecrement(&s_nAllocsBeforeFailure) == -1)
        AfxThrowMemoryException();
    void* p = malloc(nSize != 0 ? nSize : 1);
    if (p == NULL)
        AfxThrowMemoryException();
    ::InterlockedIncrement(&s_nLiveBlocks);
    return p;
}

void* operator new[](size_t nSize)
{
    return operator new(nSize);
}

void operator delete(void* p) noexcept
{
    FreeBlock(p);
}

void operator delete[](void* p) noexcept
{
    FreeBlock(p);
}

void operator delete(void* p, size_t) noexcept
{
    FreeBlock(p);
}

void operator delete[](void* p, size_t) noexcept
{
    FreeBlock(p);
}
