// Collection classes of the class-library layer: the string array, the list
// of pointers and the hashed maps keyed by strings and by 16-bit words.
//
// The maps keep MFC's layout and hash functions, so GetNextAssoc visits the
// associations in the same order as the class library does: buckets from 0
// upward, each bucket's chain from its newest association to its oldest.
// Code that walks a map to build its output (menus, saved files) depends on
// that order.
//
// All members that allocate live in the library (Collections.cpp), so the
// memory of a collection always comes from and goes back to one module.
#pragma once

#include "afx/afx.h"

// An opaque iteration cursor of the lists and maps.
#ifndef BEFORE_START_POSITION
typedef struct __POSITION {}* POSITION;
#define BEFORE_START_POSITION ((POSITION)-1L)
#endif

// A chain of raw memory blocks from which the lists and maps carve their
// nodes (defined in Collections.cpp).
struct CPlex;

// ---------------------------------------------------------------------------
// CStringArray
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CStringArray : public CObject
{
    DECLARE_DYNAMIC(CStringArray)
public:
    CStringArray();
    virtual ~CStringArray();

    int GetSize() const { return m_nSize; }
    int GetUpperBound() const { return m_nSize - 1; }
    // Resizes to nNewSize elements (new ones empty). nGrowBy, when not -1,
    // sets how many elements a later growth adds at least; 0 picks a step
    // from the current size.
    void SetSize(int nNewSize, int nGrowBy = -1);
    // Releases the capacity above the current size.
    void FreeExtra();
    void RemoveAll();

    CString GetAt(int nIndex) const;
    void SetAt(int nIndex, LPCSTR newElement);
    void SetAt(int nIndex, const CString& newElement);
    CString& ElementAt(int nIndex);
    const CString* GetData() const { return m_pData; }
    CString* GetData() { return m_pData; }

    // Sets the element, growing the array first when nIndex is past the end.
    void SetAtGrow(int nIndex, LPCSTR newElement);
    // Adds at the end; returns the index of the new element.
    int Add(LPCSTR newElement);
    int Add(const CString& newElement);
    // Adds a copy of every element of src; returns the index of the first.
    int Append(const CStringArray& src);
    void Copy(const CStringArray& src);

    CString operator[](int nIndex) const { return GetAt(nIndex); }
    CString& operator[](int nIndex) { return ElementAt(nIndex); }

    // Inserts nCount copies at nIndex (past the end: the array grows).
    void InsertAt(int nIndex, LPCSTR newElement, int nCount = 1);
    void InsertAt(int nStartIndex, const CStringArray* pNewArray);
    void RemoveAt(int nIndex, int nCount = 1);

protected:
    CString* m_pData;
    int m_nSize;
    int m_nMaxSize;     // elements allocated
    int m_nGrowBy;
};

// ---------------------------------------------------------------------------
// CPtrList: a doubly linked list of void pointers
// ---------------------------------------------------------------------------

class AFX_EXT_CLASS CPtrList : public CObject
{
    DECLARE_DYNAMIC(CPtrList)
protected:
    struct CNode
    {
        CNode* pNext;
        CNode* pPrev;
        void* data;
    };

public:
    // nBlockSize: how many nodes are allocated at a time.
    explicit CPtrList(int nBlockSize = 10);
    virtual ~CPtrList();

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    // The list must not be empty.
    void*& GetHead();
    void* GetHead() const;
    void*& GetTail();
    void* GetTail() const;
    void* RemoveHead();
    void* RemoveTail();

    POSITION AddHead(void* newElement);
    POSITION AddTail(void* newElement);
    // Copies the elements of another list to the front / end of this one.
    void AddHead(CPtrList* pNewList);
    void AddTail(CPtrList* pNewList);
    void RemoveAll();

    // NULL when the list is empty.
    POSITION GetHeadPosition() const { return (POSITION)m_pNodeHead; }
    POSITION GetTailPosition() const { return (POSITION)m_pNodeTail; }
    // Return the element at rPosition and move rPosition to the next
    // (previous) one, NULL past the end.
    void*& GetNext(POSITION& rPosition);
    void* GetNext(POSITION& rPosition) const;
    void*& GetPrev(POSITION& rPosition);
    void* GetPrev(POSITION& rPosition) const;

    void*& GetAt(POSITION position);
    void* GetAt(POSITION position) const;
    void SetAt(POSITION pos, void* newElement);
    void RemoveAt(POSITION position);

    // A NULL position inserts at the head (InsertBefore) or tail (InsertAfter).
    POSITION InsertBefore(POSITION position, void* newElement);
    POSITION InsertAfter(POSITION position, void* newElement);

    // The first node holding searchValue after startAfter (from the head when
    // NULL); NULL if none.
    POSITION Find(void* searchValue, POSITION startAfter = NULL) const;
    // The node at a zero-based index; NULL when out of range.
    POSITION FindIndex(int nIndex) const;

protected:
    CNode* NewNode(CNode* pPrev, CNode* pNext);
    void FreeNode(CNode* pNode);

    CNode* m_pNodeHead;
    CNode* m_pNodeTail;
    int m_nCount;
    CNode* m_pNodeFree;
    CPlex* m_pBlocks;
    int m_nBlockSize;
};

// ---------------------------------------------------------------------------
// Hashed maps
//
// Default table size 17, allocated at the first insertion. A new association
// goes to the head of its bucket's chain.
// ---------------------------------------------------------------------------

template <class MAP> struct CMapImpl;   // shared code of the maps (Collections.cpp)

class AFX_EXT_CLASS CMapStringToOb : public CObject
{
    DECLARE_DYNAMIC(CMapStringToOb)
    template <class MAP> friend struct CMapImpl;
protected:
    struct CAssoc
    {
        CAssoc* pNext;
        UINT nHashValue;    // bucket index, to go on to the next bucket
        CString key;
        CObject* value;
    };

public:
    // Types used by CTypedPtrMap.
    typedef CString BASE_KEY;
    typedef LPCSTR BASE_ARG_KEY;
    typedef CObject* BASE_VALUE;
    typedef CObject* BASE_ARG_VALUE;

    // nBlockSize: how many associations are allocated at a time.
    explicit CMapStringToOb(int nBlockSize = 10);
    virtual ~CMapStringToOb();

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    BOOL Lookup(LPCSTR key, CObject*& rValue) const;
    // Finds the stored copy of a key.
    BOOL LookupKey(LPCSTR key, LPCSTR& rKey) const;

    // Adds an association with a NULL value when the key is absent.
    CObject*& operator[](LPCSTR key);
    void SetAt(LPCSTR key, CObject* newElement);
    BOOL RemoveKey(LPCSTR key);
    void RemoveAll();

    // NULL when empty, else BEFORE_START_POSITION.
    POSITION GetStartPosition() const;
    void GetNextAssoc(POSITION& rNextPosition, CString& rKey, CObject*& rValue) const;

    UINT GetHashTableSize() const { return m_nHashTableSize; }
    // Sets the table size; call it while the map is empty.
    void InitHashTable(UINT nHashSize, BOOL bAllocNow = TRUE);
    UINT HashKey(LPCSTR key) const;

protected:
    CAssoc** m_pHashTable;
    UINT m_nHashTableSize;
    int m_nCount;
    CAssoc* m_pFreeList;
    CPlex* m_pBlocks;
    int m_nBlockSize;
};

class AFX_EXT_CLASS CMapStringToPtr : public CObject
{
    DECLARE_DYNAMIC(CMapStringToPtr)
    template <class MAP> friend struct CMapImpl;
protected:
    struct CAssoc
    {
        CAssoc* pNext;
        UINT nHashValue;
        CString key;
        void* value;
    };

public:
    typedef CString BASE_KEY;
    typedef LPCSTR BASE_ARG_KEY;
    typedef void* BASE_VALUE;
    typedef void* BASE_ARG_VALUE;

    explicit CMapStringToPtr(int nBlockSize = 10);
    virtual ~CMapStringToPtr();

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    BOOL Lookup(LPCSTR key, void*& rValue) const;
    BOOL LookupKey(LPCSTR key, LPCSTR& rKey) const;

    void*& operator[](LPCSTR key);
    void SetAt(LPCSTR key, void* newValue);
    BOOL RemoveKey(LPCSTR key);
    void RemoveAll();

    POSITION GetStartPosition() const;
    void GetNextAssoc(POSITION& rNextPosition, CString& rKey, void*& rValue) const;

    UINT GetHashTableSize() const { return m_nHashTableSize; }
    void InitHashTable(UINT nHashSize, BOOL bAllocNow = TRUE);
    UINT HashKey(LPCSTR key) const;

protected:
    CAssoc** m_pHashTable;
    UINT m_nHashTableSize;
    int m_nCount;
    CAssoc* m_pFreeList;
    CPlex* m_pBlocks;
    int m_nBlockSize;
};

class AFX_EXT_CLASS CMapWordToOb : public CObject
{
    DECLARE_DYNAMIC(CMapWordToOb)
    template <class MAP> friend struct CMapImpl;
protected:
    struct CAssoc
    {
        CAssoc* pNext;
        UINT nHashValue;
        WORD key;
        CObject* value;
    };

public:
    typedef WORD BASE_KEY;
    typedef WORD BASE_ARG_KEY;
    typedef CObject* BASE_VALUE;
    typedef CObject* BASE_ARG_VALUE;

    explicit CMapWordToOb(int nBlockSize = 10);
    virtual ~CMapWordToOb();

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    BOOL Lookup(WORD key, CObject*& rValue) const;

    CObject*& operator[](WORD key);
    void SetAt(WORD key, CObject* newValue);
    BOOL RemoveKey(WORD key);
    void RemoveAll();

    POSITION GetStartPosition() const;
    void GetNextAssoc(POSITION& rNextPosition, WORD& rKey, CObject*& rValue) const;

    UINT GetHashTableSize() const { return m_nHashTableSize; }
    void InitHashTable(UINT nHashSize, BOOL bAllocNow = TRUE);
    UINT HashKey(WORD key) const;

protected:
    CAssoc** m_pHashTable;
    UINT m_nHashTableSize;
    int m_nCount;
    CAssoc* m_pFreeList;
    CPlex* m_pBlocks;
    int m_nBlockSize;
};
