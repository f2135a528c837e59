// Collection templates of the class-library layer: CArray, and the typed
// wrappers CTypedPtrList and CTypedPtrMap over the pointer collections of
// afxcoll.h. Everything here is inline; the wrappers only cast, so their
// storage stays in the library's own classes.
#pragma once

#include "afx/afxcoll.h"
#include <new>
#include <stdlib.h>
#include <string.h>
#include <utility>

// ---------------------------------------------------------------------------
// Element helpers of CArray
// ---------------------------------------------------------------------------

// New elements start with all bits zero and are then default-constructed, so
// plain structures and numbers come out as 0.
template <class TYPE>
inline void AFXAPI ConstructElements(TYPE* pElements, int nCount)
{
    memset((void*)pElements, 0, (size_t)nCount * sizeof(TYPE));
    for (; nCount > 0; nCount--, pElements++)
        ::new ((void*)pElements) TYPE;
}

template <class TYPE>
inline void AFXAPI DestructElements(TYPE* pElements, int nCount)
{
    for (; nCount > 0; nCount--, pElements++)
        pElements->~TYPE();
}

template <class TYPE>
inline void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, int nCount)
{
    for (; nCount > 0; nCount--)
        *pDest++ = *pSrc++;
}

// ---------------------------------------------------------------------------
// CArray
// ---------------------------------------------------------------------------

template <class TYPE, class ARG_TYPE>
class CArray : public CObject
{
public:
    CArray() : m_pData(NULL), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0) {}
    virtual ~CArray() { SetSize(0, -1); }

    int GetSize() const { return m_nSize; }
    int GetUpperBound() const { return m_nSize - 1; }
    void SetSize(int nNewSize, int nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0, -1); }

    TYPE GetAt(int nIndex) const
    {
        ASSERT(nIndex >= 0 && nIndex < m_nSize);
        return m_pData[nIndex];
    }
    void SetAt(int nIndex, ARG_TYPE newElement)
    {
        ASSERT(nIndex >= 0 && nIndex < m_nSize);
        m_pData[nIndex] = newElement;
    }
    TYPE& ElementAt(int nIndex)
    {
        ASSERT(nIndex >= 0 && nIndex < m_nSize);
        return m_pData[nIndex];
    }
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    void SetAtGrow(int nIndex, ARG_TYPE newElement);
    int Add(ARG_TYPE newElement)
    {
        int nIndex = m_nSize;
        SetAtGrow(nIndex, newElement);
        return nIndex;
    }
    int Append(const CArray& src);
    void Copy(const CArray& src);

    TYPE operator[](int nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](int nIndex) { return ElementAt(nIndex); }

    void InsertAt(int nIndex, ARG_TYPE newElement, int nCount = 1);
    void InsertAt(int nStartIndex, CArray* pNewArray);
    void RemoveAt(int nIndex, int nCount = 1);

protected:
    // Moves the elements into a new block of nNewMax elements.
    void Reallocate(int nNewMax);

    TYPE* m_pData;
    int m_nSize;
    int m_nMaxSize;     // elements allocated
    int m_nGrowBy;      // 0: grow by an eighth of the size, from 4 to 1024
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reallocate(int nNewMax)
{
    ASSERT(nNewMax >= m_nSize);
    if ((size_t)nNewMax > ((size_t)-1) / sizeof(TYPE))
        AfxThrowMemoryException();
    TYPE* pNewData = NULL;
    if (nNewMax > 0)
    {
        pNewData = (TYPE*)malloc((size_t)nNewMax * sizeof(TYPE));
        if (pNewData == NULL)
            AfxThrowMemoryException();
    }

    // Should an element fail to copy, the array stays as it was.
    int nMoved = 0;
    try
    {
        for (; nMoved < m_nSize; nMoved++)
            ::new ((void*)&pNewData[nMoved]) TYPE(std::move_if_noexcept(m_pData[nMoved]));
    }
    catch (...)
    {
        DestructElements(pNewData, nMoved);
        free(pNewData);
        throw;
    }

    DestructElements(m_pData, m_nSize);
    free(m_pData);
    m_pData = pNewData;
    m_nMaxSize = nNewMax;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(int nNewSize, int nGrowBy)
{
    ASSERT(nNewSize >= 0);
    if (nNewSize < 0)
        return;
    if (nGrowBy != -1)
        m_nGrowBy = nGrowBy;

    if (nNewSize == 0)
    {
        DestructElements(m_pData, m_nSize);
        free(m_pData);
        m_pData = NULL;
        m_nSize = m_nMaxSize = 0;
    }
    else if (m_pData == NULL)
    {
        // the first block holds exactly the size asked for
        Reallocate(nNewSize);
        ConstructElements(m_pData, nNewSize);
        m_nSize = nNewSize;
    }
    else if (nNewSize <= m_nMaxSize)
    {
        if (nNewSize > m_nSize)
            ConstructElements(&m_pData[m_nSize], nNewSize - m_nSize);
        else if (nNewSize < m_nSize)
            DestructElements(&m_pData[nNewSize], m_nSize - nNewSize);
        m_nSize = nNewSize;
    }
    else
    {
        int nStep = m_nGrowBy;
        if (nStep == 0)
        {
            nStep = m_nSize / 8;
            nStep = (nStep < 4) ? 4 : ((nStep > 1024) ? 1024 : nStep);
        }
        int nNewMax = (nNewSize < m_nMaxSize + nStep) ? m_nMaxSize + nStep : nNewSize;
        Reallocate(nNewMax);
        ConstructElements(&m_pData[m_nSize], nNewSize - m_nSize);
        m_nSize = nNewSize;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nSize != m_nMaxSize)
        Reallocate(m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(int nIndex, ARG_TYPE newElement)
{
    ASSERT(nIndex >= 0);
    if (nIndex < 0)
        return;
    if (nIndex >= m_nMaxSize)
    {
        // newElement may be an element of this array, in the block that
        // growing frees: keep a copy across the growth.
        TYPE value;
        value = newElement;
        SetSize(nIndex + 1, -1);
        m_pData[nIndex] = std::move(value);
        return;
    }
    if (nIndex >= m_nSize)
        SetSize(nIndex + 1, -1);
    m_pData[nIndex] = newElement;
}

template <class TYPE, class ARG_TYPE>
int CArray<TYPE, ARG_TYPE>::Append(const CArray& src)
{
    int nOldSize = m_nSize;
    int nCount = src.m_nSize;      // src may be this array
    SetSize(nOldSize + nCount, -1);
    CopyElements(m_pData + nOldSize, src.m_pData, nCount);
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src)
{
    if (this == &src)
        return;
    SetSize(src.m_nSize, -1);
    CopyElements(m_pData, src.m_pData, src.m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(int nIndex, ARG_TYPE newElement, int nCount)
{
    ASSERT(nIndex >= 0 && nCount > 0);
    if (nIndex < 0 || nCount <= 0)
        return;

    // newElement may be an element of this array, which the shift moves
    TYPE value;
    value = newElement;

    if (nIndex >= m_nSize)
    {
        // past the end: the array grows so that nIndex is valid
        SetSize(nIndex + nCount, -1);
    }
    else
    {
        // open a gap of nCount elements at nIndex
        int nOldSize = m_nSize;
        SetSize(m_nSize + nCount, -1);
        for (int i = nOldSize - 1; i >= nIndex; i--)
            m_pData[i + nCount] = std::move(m_pData[i]);
    }
    for (int i = 0; i < nCount; i++)
        m_pData[nIndex + i] = value;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(int nStartIndex, CArray* pNewArray)
{
    ASSERT(pNewArray != NULL && pNewArray != this);
    ASSERT(nStartIndex >= 0);
    if (pNewArray == NULL || pNewArray == this || pNewArray->GetSize() == 0)
        return;
    InsertAt(nStartIndex, pNewArray->GetAt(0), pNewArray->GetSize());
    for (int i = 1; i < pNewArray->GetSize(); i++)
        SetAt(nStartIndex + i, pNewArray->GetAt(i));
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(int nIndex, int nCount)
{
    ASSERT(nIndex >= 0 && nCount >= 0 && nIndex + nCount <= m_nSize);
    if (nIndex < 0 || nCount <= 0 || nIndex + nCount > m_nSize)
        return;
    for (int i = nIndex; i + nCount < m_nSize; i++)
        m_pData[i] = std::move(m_pData[i + nCount]);
    DestructElements(&m_pData[m_nSize - nCount], nCount);
    m_nSize -= nCount;
}

// ---------------------------------------------------------------------------
// CTypedPtrList: a CPtrList (or another list of pointers) of TYPE pointers
// ---------------------------------------------------------------------------

template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(int nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }

    TYPE& GetNext(POSITION& rPosition)
        { return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetNext(POSITION& rPosition) const
        { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition)
        { return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const
        { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position)
        { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const
        { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }

    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
};

// ---------------------------------------------------------------------------
// CTypedPtrMap: a CMapStringToOb, CMapStringToPtr or CMapWordToOb whose
// values are VALUE pointers, with KEY the key type of the base map
// ---------------------------------------------------------------------------

template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
public:
    typedef typename BASE_CLASS::BASE_ARG_KEY BASE_ARG_KEY;
    typedef typename BASE_CLASS::BASE_KEY BASE_KEY;
    typedef typename BASE_CLASS::BASE_VALUE BASE_VALUE;

    explicit CTypedPtrMap(int nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    // rValue is left alone when the key is absent.
    BOOL Lookup(BASE_ARG_KEY key, VALUE& rValue) const
    {
        BASE_VALUE value;
        if (!BASE_CLASS::Lookup(key, value))
            return FALSE;
        rValue = (VALUE)value;
        return TRUE;
    }

    VALUE& operator[](BASE_ARG_KEY key)
        { return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key)); }
    void SetAt(BASE_ARG_KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(BASE_ARG_KEY key) { return BASE_CLASS::RemoveKey(key); }

    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        BASE_KEY key;
        BASE_VALUE value;
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = key;
        rValue = (VALUE)value;
    }
};
