// The collection classes of afxcoll.h: CStringArray, CPtrList and the maps
// CMapStringToOb, CMapStringToPtr and CMapWordToOb.
//
// Lists and maps take their nodes from blocks of nBlockSize nodes (a CPlex
// chain) and keep freed nodes on a free list; the blocks go back only when
// the collection empties. Allocation failures throw a CMemoryException*.
#include "afx/afxcoll.h"
#include <new>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNAMIC(CMapStringToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapWordToOb, CObject)

// ---------------------------------------------------------------------------
// Raw memory
// ---------------------------------------------------------------------------

// nCount * cbElement bytes, never NULL.
static void* AllocOrThrow(size_t nCount, size_t cbElement)
{
    if (cbElement != 0 && nCount > SIZE_MAX / cbElement)
        AfxThrowMemoryException();
    void* p = malloc(nCount * cbElement != 0 ? nCount * cbElement : 1);
    if (p == NULL)
        AfxThrowMemoryException();
    return p;
}

// A block of nodes: the header, then the nodes themselves. The blocks of one
// collection form a singly linked chain from its newest block.
struct CPlex
{
    CPlex* pNext;

    void* data() { return this + 1; }

    static CPlex* Create(CPlex*& pHead, size_t nMax, size_t cbElement)
    {
        if (nMax > (SIZE_MAX - sizeof(CPlex)) / cbElement)
            AfxThrowMemoryException();
        CPlex* p = (CPlex*)AllocOrThrow(1, sizeof(CPlex) + nMax * cbElement);
        p->pNext = pHead;
        pHead = p;
        return p;
    }

    static void FreeDataChain(CPlex* p)
    {
        while (p != NULL)
        {
            CPlex* pNext = p->pNext;
            free(p);
            p = pNext;
        }
    }
};

// Takes an unconstructed node off the free list, first carving a new block
// into free nodes when the list is empty. NODE's first member is its pNext,
// which links the free nodes.
template <class NODE>
static NODE* TakeFreeNode(NODE*& pFreeList, CPlex*& pBlocks, int nBlockSize)
{
    if (pFreeList == NULL)
    {
        CPlex* pNewBlock = CPlex::Create(pBlocks, nBlockSize, sizeof(NODE));
        // chain backwards so that the block's nodes are used in address order
        NODE* pNode = (NODE*)pNewBlock->data() + nBlockSize - 1;
        for (int i = nBlockSize - 1; i >= 0; i--, pNode--)
        {
            pNode->pNext = pFreeList;
            pFreeList = pNode;
        }
    }
    NODE* pNode = pFreeList;
    pFreeList = pFreeList->pNext;
    return pNode;
}

// ---------------------------------------------------------------------------
// CStringArray
//
// A CString only holds a pointer to its text, so the elements are moved as
// bytes when the array grows or shifts, as the class library does; a text
// pointer taken from an element stays valid while the array grows.
// ---------------------------------------------------------------------------

static void ConstructStrings(CString* pElements, int nCount)
{
    for (; nCount > 0; nCount--, pElements++)
        ::new ((void*)pElements) CString;
}

static void DestructStrings(CString* pElements, int nCount)
{
    for (; nCount > 0; nCount--, pElements++)
        pElements->~CString();
}

CStringArray::CStringArray()
    : m_pData(NULL), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0)
{
}

CStringArray::~CStringArray()
{
    DestructStrings(m_pData, m_nSize);
    free(m_pData);
}

void CStringArray::SetSize(int nNewSize, int nGrowBy)
{
    ASSERT(nNewSize >= 0);
    if (nNewSize < 0)
        return;
    if (nGrowBy != -1)
        m_nGrowBy = nGrowBy;

    if (nNewSize == 0)
    {
        DestructStrings(m_pData, m_nSize);
        free(m_pData);
        m_pData = NULL;
        m_nSize = m_nMaxSize = 0;
    }
    else if (m_pData == NULL)
    {
        // the first block holds exactly the size asked for
        m_pData = (CString*)AllocOrThrow(nNewSize, sizeof(CString));
        ConstructStrings(m_pData, nNewSize);
        m_nSize = m_nMaxSize = nNewSize;
    }
    else if (nNewSize <= m_nMaxSize)
    {
        if (nNewSize > m_nSize)
            ConstructStrings(&m_pData[m_nSize], nNewSize - m_nSize);
        else if (nNewSize < m_nSize)
            DestructStrings(&m_pData[nNewSize], m_nSize - nNewSize);
        m_nSize = nNewSize;
    }
    else
    {
        // grow by m_nGrowBy, or by an eighth of the size (4 to 1024)
        int nStep = m_nGrowBy;
        if (nStep == 0)
        {
            nStep = m_nSize / 8;
            nStep = (nStep < 4) ? 4 : ((nStep > 1024) ? 1024 : nStep);
        }
        int nNewMax = (nNewSize < m_nMaxSize + nStep) ? m_nMaxSize + nStep : nNewSize;

        CString* pNewData = (CString*)AllocOrThrow(nNewMax, sizeof(CString));
        memcpy((void*)pNewData, (void*)m_pData, (size_t)m_nSize * sizeof(CString));
        ConstructStrings(&pNewData[m_nSize], nNewSize - m_nSize);
        free(m_pData);
        m_pData = pNewData;
        m_nSize = nNewSize;
        m_nMaxSize = nNewMax;
    }
}

void CStringArray::FreeExtra()
{
    if (m_nSize == m_nMaxSize)
        return;
    CString* pNewData = NULL;
    if (m_nSize != 0)
    {
        pNewData = (CString*)AllocOrThrow(m_nSize, sizeof(CString));
        memcpy((void*)pNewData, (void*)m_pData, (size_t)m_nSize * sizeof(CString));
    }
    free(m_pData);
    m_pData = pNewData;
    m_nMaxSize = m_nSize;
}

void CStringArray::RemoveAll()
{
    SetSize(0);
}

CString CStringArray::GetAt(int nIndex) const
{
    ASSERT(nIndex >= 0 && nIndex < m_nSize);
    return m_pData[nIndex];
}

void CStringArray::SetAt(int nIndex, LPCSTR newElement)
{
    ASSERT(nIndex >= 0 && nIndex < m_nSize);
    m_pData[nIndex] = newElement;
}

void CStringArray::SetAt(int nIndex, const CString& newElement)
{
    ASSERT(nIndex >= 0 && nIndex < m_nSize);
    m_pData[nIndex] = newElement;
}

CString& CStringArray::ElementAt(int nIndex)
{
    ASSERT(nIndex >= 0 && nIndex < m_nSize);
    return m_pData[nIndex];
}

void CStringArray::SetAtGrow(int nIndex, LPCSTR newElement)
{
    ASSERT(nIndex >= 0);
    if (nIndex < 0)
        return;
    // growing moves the elements' bytes only, so newElement may point into
    // an element's text
    if (nIndex >= m_nSize)
        SetSize(nIndex + 1);
    m_pData[nIndex] = newElement;
}

int CStringArray::Add(LPCSTR newElement)
{
    int nIndex = m_nSize;
    SetAtGrow(nIndex, newElement);
    return nIndex;
}

int CStringArray::Add(const CString& newElement)
{
    // through the text: a reference into this array would not survive the
    // growth, the text it points at does
    return Add((LPCSTR)newElement);
}

int CStringArray::Append(const CStringArray& src)
{
    int nOldSize = m_nSize;
    int nCount = src.m_nSize;      // src may be this array
    SetSize(nOldSize + nCount);
    for (int i = 0; i < nCount; i++)
        m_pData[nOldSize + i] = src.m_pData[i];
    return nOldSize;
}

void CStringArray::Copy(const CStringArray& src)
{
    if (this == &src)
        return;
    SetSize(src.m_nSize);
    for (int i = 0; i < src.m_nSize; i++)
        m_pData[i] = src.m_pData[i];
}

void CStringArray::InsertAt(int nIndex, LPCSTR newElement, int nCount)
{
    ASSERT(nIndex >= 0 && nCount > 0);
    if (nIndex < 0 || nCount <= 0)
        return;

    if (nIndex >= m_nSize)
    {
        // past the end: the array grows so that nIndex is valid
        SetSize(nIndex + nCount);
    }
    else
    {
        // open a gap of nCount empty strings at nIndex
        int nOldSize = m_nSize;
        SetSize(m_nSize + nCount);
        DestructStrings(&m_pData[nOldSize], nCount);
        memmove((void*)&m_pData[nIndex + nCount], (void*)&m_pData[nIndex],
                (size_t)(nOldSize - nIndex) * sizeof(CString));
        ConstructStrings(&m_pData[nIndex], nCount);
    }
    for (int i = 0; i < nCount; i++)
        m_pData[nIndex + i] = newElement;
}

void CStringArray::InsertAt(int nStartIndex, const CStringArray* pNewArray)
{
    ASSERT(pNewArray != NULL && pNewArray != this);
    ASSERT(nStartIndex >= 0);
    if (pNewArray == NULL || pNewArray == this || pNewArray->GetSize() == 0)
        return;
    InsertAt(nStartIndex, pNewArray->m_pData[0], pNewArray->GetSize());
    for (int i = 1; i < pNewArray->GetSize(); i++)
        m_pData[nStartIndex + i] = pNewArray->m_pData[i];
}

void CStringArray::RemoveAt(int nIndex, int nCount)
{
    ASSERT(nIndex >= 0 && nCount >= 0 && nIndex + nCount <= m_nSize);
    if (nIndex < 0 || nCount <= 0 || nIndex + nCount > m_nSize)
        return;
    DestructStrings(&m_pData[nIndex], nCount);
    int nMoveCount = m_nSize - (nIndex + nCount);
    if (nMoveCount > 0)
        memmove((void*)&m_pData[nIndex], (void*)&m_pData[nIndex + nCount],
                (size_t)nMoveCount * sizeof(CString));
    m_nSize -= nCount;
}

// ---------------------------------------------------------------------------
// CPtrList
// ---------------------------------------------------------------------------

CPtrList::CPtrList(int nBlockSize)
    : m_pNodeHead(NULL), m_pNodeTail(NULL), m_nCount(0),
      m_pNodeFree(NULL), m_pBlocks(NULL), m_nBlockSize(nBlockSize > 0 ? nBlockSize : 10)
{
    ASSERT(nBlockSize > 0);
}

CPtrList::~CPtrList()
{
    RemoveAll();
}

void CPtrList::RemoveAll()
{
    m_nCount = 0;
    m_pNodeHead = m_pNodeTail = m_pNodeFree = NULL;
    CPlex::FreeDataChain(m_pBlocks);
    m_pBlocks = NULL;
}

CPtrList::CNode* CPtrList::NewNode(CNode* pPrev, CNode* pNext)
{
    CNode* pNode = TakeFreeNode(m_pNodeFree, m_pBlocks, m_nBlockSize);
    pNode->pPrev = pPrev;
    pNode->pNext = pNext;
    pNode->data = NULL;
    m_nCount++;
    return pNode;
}

void CPtrList::FreeNode(CNode* pNode)
{
    pNode->pNext = m_pNodeFree;
    m_pNodeFree = pNode;
    m_nCount--;
    ASSERT(m_nCount >= 0);
    // the last node gone: give the blocks back
    if (m_nCount == 0)
        RemoveAll();
}

void*& CPtrList::GetHead()
{
    ASSERT(m_pNodeHead != NULL);
    return m_pNodeHead->data;
}

void* CPtrList::GetHead() const
{
    ASSERT(m_pNodeHead != NULL);
    return m_pNodeHead->data;
}

void*& CPtrList::GetTail()
{
    ASSERT(m_pNodeTail != NULL);
    return m_pNodeTail->data;
}

void* CPtrList::GetTail() const
{
    ASSERT(m_pNodeTail != NULL);
    return m_pNodeTail->data;
}

POSITION CPtrList::AddHead(void* newElement)
{
    CNode* pNewNode = NewNode(NULL, m_pNodeHead);
    pNewNode->data = newElement;
    if (m_pNodeHead != NULL)
        m_pNodeHead->pPrev = pNewNode;
    else
        m_pNodeTail = pNewNode;
    m_pNodeHead = pNewNode;
    return (POSITION)pNewNode;
}

POSITION CPtrList::AddTail(void* newElement)
{
    CNode* pNewNode = NewNode(m_pNodeTail, NULL);
    pNewNode->data = newElement;
    if (m_pNodeTail != NULL)
        m_pNodeTail->pNext = pNewNode;
    else
        m_pNodeHead = pNewNode;
    m_pNodeTail = pNewNode;
    return (POSITION)pNewNode;
}

void CPtrList::AddHead(CPtrList* pNewList)
{
    ASSERT(pNewList != NULL);
    // from its tail backwards, so the elements keep their order; counted,
    // so that adding a list to itself ends
    int nCount = pNewList->GetCount();
    POSITION pos = pNewList->GetTailPosition();
    for (; nCount > 0; nCount--)
        AddHead(pNewList->GetPrev(pos));
}

void CPtrList::AddTail(CPtrList* pNewList)
{
    ASSERT(pNewList != NULL);
    int nCount = pNewList->GetCount();
    POSITION pos = pNewList->GetHeadPosition();
    for (; nCount > 0; nCount--)
        AddTail(pNewList->GetNext(pos));
}

void* CPtrList::RemoveHead()
{
    ASSERT(m_pNodeHead != NULL);
    CNode* pOldNode = m_pNodeHead;
    void* returnValue = pOldNode->data;
    m_pNodeHead = pOldNode->pNext;
    if (m_pNodeHead != NULL)
        m_pNodeHead->pPrev = NULL;
    else
        m_pNodeTail = NULL;
    FreeNode(pOldNode);
    return returnValue;
}

void* CPtrList::RemoveTail()
{
    ASSERT(m_pNodeTail != NULL);
    CNode* pOldNode = m_pNodeTail;
    void* returnValue = pOldNode->data;
    m_pNodeTail = pOldNode->pPrev;
    if (m_pNodeTail != NULL)
        m_pNodeTail->pNext = NULL;
    else
        m_pNodeHead = NULL;
    FreeNode(pOldNode);
    return returnValue;
}

void*& CPtrList::GetNext(POSITION& rPosition)
{
    CNode* pNode = (CNode*)rPosition;
    ASSERT(pNode != NULL);
    rPosition = (POSITION)pNode->pNext;
    return pNode->data;
}

void* CPtrList::GetNext(POSITION& rPosition) const
{
    CNode* pNode = (CNode*)rPosition;
    ASSERT(pNode != NULL);
    rPosition = (POSITION)pNode->pNext;
    return pNode->data;
}

void*& CPtrList::GetPrev(POSITION& rPosition)
{
    CNode* pNode = (CNode*)rPosition;
    ASSERT(pNode != NULL);
    rPosition = (POSITION)pNode->pPrev;
    return pNode->data;
}

void* CPtrList::GetPrev(POSITION& rPosition) const
{
    CNode* pNode = (CNode*)rPosition;
    ASSERT(pNode != NULL);
    rPosition = (POSITION)pNode->pPrev;
    return pNode->data;
}

void*& CPtrList::GetAt(POSITION position)
{
    ASSERT(position != NULL);
    return ((CNode*)position)->data;
}

void* CPtrList::GetAt(POSITION position) const
{
    ASSERT(position != NULL);
    return ((CNode*)position)->data;
}

void CPtrList::SetAt(POSITION pos, void* newElement)
{
    ASSERT(pos != NULL);
    ((CNode*)pos)->data = newElement;
}

void CPtrList::RemoveAt(POSITION position)
{
    CNode* pOldNode = (CNode*)position;
    ASSERT(pOldNode != NULL);
    if (pOldNode == m_pNodeHead)
        m_pNodeHead = pOldNode->pNext;
    else
        pOldNode->pPrev->pNext = pOldNode->pNext;
    if (pOldNode == m_pNodeTail)
        m_pNodeTail = pOldNode->pPrev;
    else
        pOldNode->pNext->pPrev = pOldNode->pPrev;
    FreeNode(pOldNode);
}

POSITION CPtrList::InsertBefore(POSITION position, void* newElement)
{
    if (position == NULL)
        return AddHead(newElement);
    CNode* pOldNode = (CNode*)position;
    CNode* pNewNode = NewNode(pOldNode->pPrev, pOldNode);
    pNewNode->data = newElement;
    if (pOldNode->pPrev != NULL)
        pOldNode->pPrev->pNext = pNewNode;
    else
        m_pNodeHead = pNewNode;
    pOldNode->pPrev = pNewNode;
    return (POSITION)pNewNode;
}

POSITION CPtrList::InsertAfter(POSITION position, void* newElement)
{
    if (position == NULL)
        return AddTail(newElement);
    CNode* pOldNode = (CNode*)position;
    CNode* pNewNode = NewNode(pOldNode, pOldNode->pNext);
    pNewNode->data = newElement;
    if (pOldNode->pNext != NULL)
        pOldNode->pNext->pPrev = pNewNode;
    else
        m_pNodeTail = pNewNode;
    pOldNode->pNext = pNewNode;
    return (POSITION)pNewNode;
}

POSITION CPtrList::Find(void* searchValue, POSITION startAfter) const
{
    CNode* pNode = (CNode*)startAfter;
    pNode = (pNode == NULL) ? m_pNodeHead : pNode->pNext;
    for (; pNode != NULL; pNode = pNode->pNext)
    {
        if (pNode->data == searchValue)
            return (POSITION)pNode;
    }
    return NULL;
}

POSITION CPtrList::FindIndex(int nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nCount)
        return NULL;
    CNode* pNode = m_pNodeHead;
    while (nIndex-- > 0)
        pNode = pNode->pNext;
    return (POSITION)pNode;
}

// ---------------------------------------------------------------------------
// Maps
//
// The three maps share one layout: a table of m_nHashTableSize chains, each
// association remembering its bucket. CMapImpl holds their common code; the
// maps differ only in HashKey and in how keys compare.
// ---------------------------------------------------------------------------

static bool SameKey(const CString& storedKey, LPCSTR key)
{
    // byte for byte
    return strcmp((LPCSTR)storedKey, key) == 0;
}

static bool SameKey(WORD storedKey, WORD key)
{
    return storedKey == key;
}

// The string hash of the class library. The characters are signed, so bytes
// from 0x80 up (the lead and trail bytes of DBCS text) add negative values.
static UINT HashString(LPCSTR key)
{
    ASSERT(key != NULL);
    UINT nHash = 0;
    for (const signed char* p = (const signed char*)key; *p != 0; p++)
        nHash = (nHash << 5) + nHash + *p;
    return nHash;
}

template <class MAP>
struct CMapImpl
{
    typedef typename MAP::CAssoc CAssoc;
    typedef typename MAP::BASE_ARG_KEY ARG_KEY;
    typedef typename MAP::BASE_KEY KEY;
    typedef typename MAP::BASE_VALUE VALUE;

    static void RemoveAll(MAP& map)
    {
        if (map.m_pHashTable != NULL)
        {
            for (UINT nBucket = 0; nBucket < map.m_nHashTableSize; nBucket++)
            {
                for (CAssoc* pAssoc = map.m_pHashTable[nBucket]; pAssoc != NULL; pAssoc = pAssoc->pNext)
                    pAssoc->~CAssoc();
            }
        }
        // the table size stays for the next insertion
        free(map.m_pHashTable);
        map.m_pHashTable = NULL;
        map.m_nCount = 0;
        map.m_pFreeList = NULL;
        CPlex::FreeDataChain(map.m_pBlocks);
        map.m_pBlocks = NULL;
    }

    static void InitHashTable(MAP& map, UINT nHashSize, BOOL bAllocNow)
    {
        // the associations would be lost from their chains
        ASSERT(map.m_nCount == 0);
        ASSERT(nHashSize > 0);
        if (map.m_nCount != 0 || nHashSize == 0)
            return;

        free(map.m_pHashTable);
        map.m_pHashTable = NULL;
        if (bAllocNow)
        {
            map.m_pHashTable = (CAssoc**)AllocOrThrow(nHashSize, sizeof(CAssoc*));
            memset(map.m_pHashTable, 0, nHashSize * sizeof(CAssoc*));
        }
        map.m_nHashTableSize = nHashSize;
    }

    // A constructed association with an empty key and a null value.
    static CAssoc* NewAssoc(MAP& map)
    {
        CAssoc* pAssoc = TakeFreeNode(map.m_pFreeList, map.m_pBlocks, map.m_nBlockSize);
        ::new ((void*)pAssoc) CAssoc();
        map.m_nCount++;
        return pAssoc;
    }

    static void FreeAssoc(MAP& map, CAssoc* pAssoc)
    {
        pAssoc->~CAssoc();
        pAssoc->pNext = map.m_pFreeList;
        map.m_pFreeList = pAssoc;
        map.m_nCount--;
        ASSERT(map.m_nCount >= 0);
        // the last association gone: give the table and blocks back
        if (map.m_nCount == 0)
            RemoveAll(map);
    }

    // The association of key, NULL if absent; nBucket receives key's bucket.
    static CAssoc* GetAssocAt(const MAP& map, ARG_KEY key, UINT& nBucket)
    {
        nBucket = map.HashKey(key) % map.m_nHashTableSize;
        if (map.m_pHashTable == NULL)
            return NULL;
        for (CAssoc* pAssoc = map.m_pHashTable[nBucket]; pAssoc != NULL; pAssoc = pAssoc->pNext)
        {
            if (SameKey(pAssoc->key, key))
                return pAssoc;
        }
        return NULL;
    }

    static BOOL Lookup(const MAP& map, ARG_KEY key, VALUE& rValue)
    {
        UINT nBucket;
        CAssoc* pAssoc = GetAssocAt(map, key, nBucket);
        if (pAssoc == NULL)
            return FALSE;
        rValue = pAssoc->value;
        return TRUE;
    }

    // The value of key, adding the association at the head of its bucket's
    // chain when the key is new.
    static VALUE& Access(MAP& map, ARG_KEY key)
    {
        UINT nBucket;
        CAssoc* pAssoc = GetAssocAt(map, key, nBucket);
        if (pAssoc == NULL)
        {
            if (map.m_pHashTable == NULL)
                InitHashTable(map, map.m_nHashTableSize, TRUE);
            pAssoc = NewAssoc(map);
            try
            {
                pAssoc->key = key;
            }
            catch (...)
            {
                FreeAssoc(map, pAssoc);
                throw;
            }
            pAssoc->nHashValue = nBucket;
            pAssoc->pNext = map.m_pHashTable[nBucket];
            map.m_pHashTable[nBucket] = pAssoc;
        }
        return pAssoc->value;
    }

    static BOOL RemoveKey(MAP& map, ARG_KEY key)
    {
        if (map.m_pHashTable == NULL)
            return FALSE;
        CAssoc** ppAssocPrev = &map.m_pHashTable[map.HashKey(key) % map.m_nHashTableSize];
        for (CAssoc* pAssoc = *ppAssocPrev; pAssoc != NULL; pAssoc = pAssoc->pNext)
        {
            if (SameKey(pAssoc->key, key))
            {
                *ppAssocPrev = pAssoc->pNext;
                FreeAssoc(map, pAssoc);
                return TRUE;
            }
            ppAssocPrev = &pAssoc->pNext;
        }
        return FALSE;
    }

    static POSITION GetStartPosition(const MAP& map)
    {
        return (map.m_nCount == 0) ? NULL : BEFORE_START_POSITION;
    }

    // Buckets from 0 upward, each chain from head to tail.
    static void GetNextAssoc(const MAP& map, POSITION& rNextPosition, KEY& rKey, VALUE& rValue)
    {
        ASSERT(map.m_pHashTable != NULL && rNextPosition != NULL);
        CAssoc* pAssoc = (CAssoc*)rNextPosition;
        if (rNextPosition == BEFORE_START_POSITION)
        {
            pAssoc = NULL;
            for (UINT nBucket = 0; nBucket < map.m_nHashTableSize && pAssoc == NULL; nBucket++)
                pAssoc = map.m_pHashTable[nBucket];
            ASSERT(pAssoc != NULL);
        }

        CAssoc* pAssocNext = pAssoc->pNext;
        for (UINT nBucket = pAssoc->nHashValue + 1; nBucket < map.m_nHashTableSize && pAssocNext == NULL; nBucket++)
            pAssocNext = map.m_pHashTable[nBucket];

        rNextPosition = (POSITION)pAssocNext;
        rKey = pAssoc->key;
        rValue = pAssoc->value;
    }
};

// --- CMapStringToOb --------------------------------------------------------

CMapStringToOb::CMapStringToOb(int nBlockSize)
    : m_pHashTable(NULL), m_nHashTableSize(17), m_nCount(0),
      m_pFreeList(NULL), m_pBlocks(NULL), m_nBlockSize(nBlockSize > 0 ? nBlockSize : 10)
{
    ASSERT(nBlockSize > 0);
}

CMapStringToOb::~CMapStringToOb()
{
    RemoveAll();
}

UINT CMapStringToOb::HashKey(LPCSTR key) const
{
    return HashString(key);
}

void CMapStringToOb::InitHashTable(UINT nHashSize, BOOL bAllocNow)
{
    CMapImpl<CMapStringToOb>::InitHashTable(*this, nHashSize, bAllocNow);
}

void CMapStringToOb::RemoveAll()
{
    CMapImpl<CMapStringToOb>::RemoveAll(*this);
}

BOOL CMapStringToOb::Lookup(LPCSTR key, CObject*& rValue) const
{
    return CMapImpl<CMapStringToOb>::Lookup(*this, key, rValue);
}

BOOL CMapStringToOb::LookupKey(LPCSTR key, LPCSTR& rKey) const
{
    UINT nBucket;
    CAssoc* pAssoc = CMapImpl<CMapStringToOb>::GetAssocAt(*this, key, nBucket);
    if (pAssoc == NULL)
        return FALSE;
    rKey = pAssoc->key;
    return TRUE;
}

CObject*& CMapStringToOb::operator[](LPCSTR key)
{
    return CMapImpl<CMapStringToOb>::Access(*this, key);
}

void CMapStringToOb::SetAt(LPCSTR key, CObject* newElement)
{
    CMapImpl<CMapStringToOb>::Access(*this, key) = newElement;
}

BOOL CMapStringToOb::RemoveKey(LPCSTR key)
{
    return CMapImpl<CMapStringToOb>::RemoveKey(*this, key);
}

POSITION CMapStringToOb::GetStartPosition() const
{
    return CMapImpl<CMapStringToOb>::GetStartPosition(*this);
}

void CMapStringToOb::GetNextAssoc(POSITION& rNextPosition, CString& rKey, CObject*& rValue) const
{
    CMapImpl<CMapStringToOb>::GetNextAssoc(*this, rNextPosition, rKey, rValue);
}

// --- CMapStringToPtr -------------------------------------------------------

CMapStringToPtr::CMapStringToPtr(int nBlockSize)
    : m_pHashTable(NULL), m_nHashTableSize(17), m_nCount(0),
      m_pFreeList(NULL), m_pBlocks(NULL), m_nBlockSize(nBlockSize > 0 ? nBlockSize : 10)
{
    ASSERT(nBlockSize > 0);
}

CMapStringToPtr::~CMapStringToPtr()
{
    RemoveAll();
}

UINT CMapStringToPtr::HashKey(LPCSTR key) const
{
    return HashString(key);
}

void CMapStringToPtr::InitHashTable(UINT nHashSize, BOOL bAllocNow)
{
    CMapImpl<CMapStringToPtr>::InitHashTable(*this, nHashSize, bAllocNow);
}

void CMapStringToPtr::RemoveAll()
{
    CMapImpl<CMapStringToPtr>::RemoveAll(*this);
}

BOOL CMapStringToPtr::Lookup(LPCSTR key, void*& rValue) const
{
    return CMapImpl<CMapStringToPtr>::Lookup(*this, key, rValue);
}

BOOL CMapStringToPtr::LookupKey(LPCSTR key, LPCSTR& rKey) const
{
    UINT nBucket;
    CAssoc* pAssoc = CMapImpl<CMapStringToPtr>::GetAssocAt(*this, key, nBucket);
    if (pAssoc == NULL)
        return FALSE;
    rKey = pAssoc->key;
    return TRUE;
}

void*& CMapStringToPtr::operator[](LPCSTR key)
{
    return CMapImpl<CMapStringToPtr>::Access(*this, key);
}

void CMapStringToPtr::SetAt(LPCSTR key, void* newValue)
{
    CMapImpl<CMapStringToPtr>::Access(*this, key) = newValue;
}

BOOL CMapStringToPtr::RemoveKey(LPCSTR key)
{
    return CMapImpl<CMapStringToPtr>::RemoveKey(*this, key);
}

POSITION CMapStringToPtr::GetStartPosition() const
{
    return CMapImpl<CMapStringToPtr>::GetStartPosition(*this);
}

void CMapStringToPtr::GetNextAssoc(POSITION& rNextPosition, CString& rKey, void*& rValue) const
{
    CMapImpl<CMapStringToPtr>::GetNextAssoc(*this, rNextPosition, rKey, rValue);
}

// --- CMapWordToOb ----------------------------------------------------------

CMapWordToOb::CMapWordToOb(int nBlockSize)
    : m_pHashTable(NULL), m_nHashTableSize(17), m_nCount(0),
      m_pFreeList(NULL), m_pBlocks(NULL), m_nBlockSize(nBlockSize > 0 ? nBlockSize : 10)
{
    ASSERT(nBlockSize > 0);
}

CMapWordToOb::~CMapWordToOb()
{
    RemoveAll();
}

UINT CMapWordToOb::HashKey(WORD key) const
{
    // the class library's identity hash, without the low four bits
    return ((UINT)key) >> 4;
}

void CMapWordToOb::InitHashTable(UINT nHashSize, BOOL bAllocNow)
{
    CMapImpl<CMapWordToOb>::InitHashTable(*this, nHashSize, bAllocNow);
}

void CMapWordToOb::RemoveAll()
{
    CMapImpl<CMapWordToOb>::RemoveAll(*this);
}

BOOL CMapWordToOb::Lookup(WORD key, CObject*& rValue) const
{
    return CMapImpl<CMapWordToOb>::Lookup(*this, key, rValue);
}

CObject*& CMapWordToOb::operator[](WORD key)
{
    return CMapImpl<CMapWordToOb>::Access(*this, key);
}

void CMapWordToOb::SetAt(WORD key, CObject* newValue)
{
    CMapImpl<CMapWordToOb>::Access(*this, key) = newValue;
}

BOOL CMapWordToOb::RemoveKey(WORD key)
{
    return CMapImpl<CMapWordToOb>::RemoveKey(*this, key);
}

POSITION CMapWordToOb::GetStartPosition() const
{
    return CMapImpl<CMapWordToOb>::GetStartPosition(*this);
}

void CMapWordToOb::GetNextAssoc(POSITION& rNextPosition, WORD& rKey, CObject*& rValue) const
{
    CMapImpl<CMapWordToOb>::GetNextAssoc(*this, rNextPosition, rKey, rValue);
}
