// Tests of the collection classes: the maps' iteration order against an
// independent computation of the class library's hash functions, and the
// list, array and typed-wrapper operations the graph library uses.
#include "gtest/gtest.h"
#include "afx/afxcoll.h"
#include "afx/afxtempl.h"

#include <stdint.h>
#include <string>
#include <vector>

namespace {

class CItem : public CObject
{
public:
    explicit CItem(int n) : m_n(n) {}
    int m_n;
};

// The string hash written as h * 33 plus the character taken as a signed byte.
uint32_t ReferenceStringHash(const std::string& key)
{
    uint32_t h = 0;
    for (char c : key)
        h = h * 33u + (uint32_t)(int32_t)(signed char)c;
    return h;
}

// The same with the bytes taken as unsigned, to show which keys tell the two apart.
uint32_t UnsignedStringHash(const std::string& key)
{
    uint32_t h = 0;
    for (char c : key)
        h = h * 33u + (uint32_t)(unsigned char)c;
    return h;
}

uint32_t ReferenceWordHash(WORD key)
{
    return (uint32_t)key / 16u;
}

// The order in which a map of nTableSize buckets visits keys inserted in the
// order given: bucket by bucket, the latest insertion of a bucket first.
template <class KEY, class HASH>
std::vector<KEY> ExpectedOrder(const std::vector<KEY>& insertionOrder, uint32_t nTableSize, HASH hash)
{
    std::vector<KEY> order;
    for (uint32_t bucket = 0; bucket < nTableSize; bucket++)
    {
        for (auto it = insertionOrder.rbegin(); it != insertionOrder.rend(); ++it)
        {
            if (hash(*it) % nTableSize == bucket)
                order.push_back(*it);
        }
    }
    return order;
}

std::vector<std::string> VisitOrder(const CMapStringToOb& map)
{
    std::vector<std::string> order;
    POSITION pos = map.GetStartPosition();
    while (pos != NULL)
    {
        CString key;
        CObject* value = NULL;
        map.GetNextAssoc(pos, key, value);
        order.push_back((LPCSTR)key);
    }
    return order;
}

std::vector<WORD> VisitOrder(const CMapWordToOb& map)
{
    std::vector<WORD> order;
    POSITION pos = map.GetStartPosition();
    while (pos != NULL)
    {
        WORD key = 0;
        CObject* value = NULL;
        map.GetNextAssoc(pos, key, value);
        order.push_back(key);
    }
    return order;
}

void InsertAll(CMapStringToOb& map, const std::vector<std::string>& keys, CObject* value)
{
    for (const std::string& key : keys)
        map.SetAt(key.c_str(), value);
}

std::vector<std::string> Contents(const CPtrList& list)
{
    std::vector<std::string> items;
    POSITION pos = list.GetHeadPosition();
    while (pos != NULL)
        items.push_back((const char*)list.GetNext(pos));
    return items;
}

std::vector<std::string> Contents(const CStringArray& array)
{
    std::vector<std::string> items;
    for (int i = 0; i < array.GetSize(); i++)
        items.push_back((LPCSTR)array.GetAt(i));
    return items;
}

template <class TYPE, class ARG_TYPE>
std::vector<TYPE> Contents(const CArray<TYPE, ARG_TYPE>& array)
{
    return std::vector<TYPE>(array.GetData(), array.GetData() + array.GetSize());
}

// Series and axis names as the graph library keys them, GBK text included.
const std::vector<std::string> kNames = {
    "\xCF\xDF 1", "\xCF\xDF 2", "\xCF\xDF 10", "\xD7\xF8\xB1\xEA\xD6\xE1",
    "Series 1", "Series 2", "X Axis", "Y Axis", "Title", "Legend", "a", "r", "P", "",
};

} // namespace

TEST(CollectionsMapStringToOb, VisitsBucketsInHashOrderNewestFirst)
{
    // the keys are only a useful check if signedness changes some buckets
    int nSignSensitive = 0;
    for (const std::string& key : kNames)
        nSignSensitive += (ReferenceStringHash(key) % 17 != UnsignedStringHash(key) % 17);
    ASSERT_GT(nSignSensitive, 0);

    CItem item(1);
    CMapStringToOb map;
    EXPECT_EQ(17u, map.GetHashTableSize());
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_TRUE(map.GetStartPosition() == NULL);

    InsertAll(map, kNames, &item);
    EXPECT_EQ((int)kNames.size(), map.GetCount());
    EXPECT_EQ(ExpectedOrder(kNames, 17, ReferenceStringHash), VisitOrder(map));

    // "a" and "r" share a bucket: the later one leads its chain
    ASSERT_EQ(ReferenceStringHash("a") % 17, ReferenceStringHash("r") % 17);
    CMapStringToOb pair;
    pair.SetAt("a", &item);
    pair.SetAt("r", &item);
    EXPECT_EQ((std::vector<std::string>{"r", "a"}), VisitOrder(pair));

    // setting an existing key changes its value in place, not its position
    CItem other(2);
    pair.SetAt("a", &other);
    EXPECT_EQ((std::vector<std::string>{"r", "a"}), VisitOrder(pair));
    CObject* value = NULL;
    ASSERT_TRUE(pair.Lookup("a", value));
    EXPECT_EQ(&other, value);
}

TEST(CollectionsMapStringToOb, RemoveKeyAndTableSize)
{
    CItem item(1);
    std::vector<std::string> keys = kNames;
    CMapStringToOb map;
    InsertAll(map, keys, &item);

    // "a", "r" and "P" form one chain, "r" in its middle; removing keys
    // leaves the others where they were
    ASSERT_EQ(ReferenceStringHash("a") % 17, ReferenceStringHash("P") % 17);
    ASSERT_EQ(ReferenceStringHash("r") % 17, ReferenceStringHash("P") % 17);
    EXPECT_TRUE(map.RemoveKey("r"));
    EXPECT_FALSE(map.RemoveKey("r"));
    EXPECT_TRUE(map.RemoveKey("\xCF\xDF 2"));
    EXPECT_FALSE(map.RemoveKey("\xCF\xDF"));
    keys.erase(keys.begin() + 11);     // "r"
    keys.erase(keys.begin() + 1);      // "\xCF\xDF 2"
    EXPECT_EQ(ExpectedOrder(keys, 17, ReferenceStringHash), VisitOrder(map));

    // added again, a key goes to the head of its bucket
    map.SetAt("r", &item);
    keys.push_back("r");
    EXPECT_EQ(ExpectedOrder(keys, 17, ReferenceStringHash), VisitOrder(map));

    // a table size chosen before the first insertion, kept across RemoveAll
    CMapStringToOb sized;
    sized.InitHashTable(7);
    EXPECT_EQ(7u, sized.GetHashTableSize());
    InsertAll(sized, kNames, &item);
    EXPECT_EQ(ExpectedOrder(kNames, 7, ReferenceStringHash), VisitOrder(sized));
    sized.RemoveAll();
    EXPECT_EQ(0, sized.GetCount());
    EXPECT_EQ(7u, sized.GetHashTableSize());
    InsertAll(sized, keys, &item);
    EXPECT_EQ(ExpectedOrder(keys, 7, ReferenceStringHash), VisitOrder(sized));

    // emptied key by key, then refilled with another size allocated lazily
    for (const std::string& key : keys)
        EXPECT_TRUE(sized.RemoveKey(key.c_str()));
    EXPECT_TRUE(sized.IsEmpty());
    sized.InitHashTable(31, FALSE);
    InsertAll(sized, kNames, &item);
    EXPECT_EQ(31u, sized.GetHashTableSize());
    EXPECT_EQ(ExpectedOrder(kNames, 31, ReferenceStringHash), VisitOrder(sized));
}

TEST(CollectionsMapStringToOb, LookupAndSubscript)
{
    CItem one(1);
    CMapStringToOb map;
    CObject* value = &one;
    EXPECT_FALSE(map.Lookup("Title", value));

    // operator[] adds an absent key with a null value
    EXPECT_TRUE(map["Title"] == NULL);
    EXPECT_EQ(1, map.GetCount());
    value = &one;
    ASSERT_TRUE(map.Lookup("Title", value));
    EXPECT_TRUE(value == NULL);

    map["Title"] = &one;
    EXPECT_EQ(1, map.GetCount());
    ASSERT_TRUE(map.Lookup("Title", value));
    EXPECT_EQ(&one, value);

    // keys compare byte for byte
    EXPECT_FALSE(map.Lookup("title", value));
    EXPECT_FALSE(map.Lookup("Title ", value));
    map.SetAt("title", NULL);
    EXPECT_EQ(2, map.GetCount());

    LPCSTR storedKey = NULL;
    ASSERT_TRUE(map.LookupKey("Title", storedKey));
    EXPECT_STREQ("Title", storedKey);

    // GBK keys differing only in a trail byte are different keys
    map.SetAt("\xCF\xDF", &one);
    EXPECT_FALSE(map.Lookup("\xCF\xE0", value));
    ASSERT_TRUE(map.Lookup("\xCF\xDF", value));
    EXPECT_EQ(&one, value);
}

TEST(CollectionsMapWordToOb, VisitsBucketsInHashOrderNewestFirst)
{
    // 0x0000, 0x000F and 0x0110 all land in bucket 0 of 17
    const std::vector<WORD> keys = {0x0000, 0x0120, 0x000F, 0x1234, 0x0110, 0xFFFF, 0x0010, 0x0011, 7};
    CItem item(1);
    CMapWordToOb map;
    for (WORD key : keys)
        map.SetAt(key, &item);
    EXPECT_EQ((int)keys.size(), map.GetCount());
    EXPECT_EQ(17u, map.GetHashTableSize());
    EXPECT_EQ(ExpectedOrder(keys, 17, ReferenceWordHash), VisitOrder(map));

    std::vector<WORD> rest = keys;
    EXPECT_TRUE(map.RemoveKey(0x000F));
    EXPECT_FALSE(map.RemoveKey(0x000F));
    rest.erase(rest.begin() + 2);
    EXPECT_EQ(ExpectedOrder(rest, 17, ReferenceWordHash), VisitOrder(map));

    CObject*& slot = map[0x4242];
    EXPECT_TRUE(slot == NULL);
    slot = &item;
    CObject* value = NULL;
    ASSERT_TRUE(map.Lookup(0x4242, value));
    EXPECT_EQ(&item, value);

    CMapWordToOb sized;
    sized.InitHashTable(5);
    for (WORD key : keys)
        sized.SetAt(key, &item);
    EXPECT_EQ(ExpectedOrder(keys, 5, ReferenceWordHash), VisitOrder(sized));
}

TEST(CollectionsTypedPtrMap, TypedAccess)
{
    CItem x(1), y(2), z(3);

    CTypedPtrMap<CMapStringToOb, CString, CItem*> byName;
    byName.SetAt("X Axis", &x);
    byName["Y Axis"] = &y;
    CItem* found = &z;
    EXPECT_FALSE(byName.Lookup("Z Axis", found));
    EXPECT_EQ(&z, found);
    ASSERT_TRUE(byName.Lookup("Y Axis", found));
    EXPECT_EQ(2, found->m_n);
    EXPECT_EQ(2, byName.GetCount());

    std::vector<std::string> names;
    int nSum = 0;
    POSITION pos = byName.GetStartPosition();
    while (pos != NULL)
    {
        CString name;
        CItem* pItem = NULL;
        byName.GetNextAssoc(pos, name, pItem);
        names.push_back((LPCSTR)name);
        nSum += pItem->m_n;
    }
    EXPECT_EQ(ExpectedOrder(std::vector<std::string>{"X Axis", "Y Axis"}, 17, ReferenceStringHash), names);
    EXPECT_EQ(3, nSum);
    EXPECT_TRUE(byName.RemoveKey("X Axis"));
    EXPECT_EQ(1, byName.GetCount());
    byName.RemoveAll();
    EXPECT_TRUE(byName.IsEmpty());

    CTypedPtrMap<CMapWordToOb, WORD, CItem*> byId;
    byId.SetAt(100, &x);
    byId[200] = &z;
    ASSERT_TRUE(byId.Lookup(200, found));
    EXPECT_EQ(3, found->m_n);
    pos = byId.GetStartPosition();
    WORD id = 0;
    byId.GetNextAssoc(pos, id, found);
    EXPECT_EQ(found == &x ? 100 : 200, id);

    int numbers[2] = {10, 20};
    CTypedPtrMap<CMapStringToPtr, CString, int*> pointers;
    pointers.SetAt("ten", &numbers[0]);
    pointers["twenty"] = &numbers[1];
    int* pNumber = NULL;
    ASSERT_TRUE(pointers.Lookup("twenty", pNumber));
    EXPECT_EQ(20, *pNumber);
}

TEST(CollectionsPtrList, PositionsInsertAndRemove)
{
    char a[] = "a", b[] = "b", c[] = "c", d[] = "d", e[] = "e";
    CPtrList list(2);     // small blocks: several blocks and node reuse
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_TRUE(list.GetHeadPosition() == NULL);
    EXPECT_TRUE(list.FindIndex(0) == NULL);

    POSITION posB = list.AddTail(b);
    POSITION posA = list.AddHead(a);
    POSITION posD = list.AddTail(d);
    POSITION posC = list.InsertBefore(posD, c);
    list.InsertAfter(posD, e);
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c", "d", "e"}), Contents(list));
    EXPECT_EQ(5, list.GetCount());
    EXPECT_EQ(a, list.GetHead());
    EXPECT_EQ(e, list.GetTail());
    EXPECT_EQ(posA, list.GetHeadPosition());
    EXPECT_EQ(posC, list.FindIndex(2));
    EXPECT_TRUE(list.FindIndex(5) == NULL);
    EXPECT_TRUE(list.FindIndex(-1) == NULL);

    // backwards, with GetPrev moving the position
    std::vector<std::string> backwards;
    POSITION pos = list.GetTailPosition();
    while (pos != NULL)
        backwards.push_back((const char*)list.GetPrev(pos));
    EXPECT_EQ((std::vector<std::string>{"e", "d", "c", "b", "a"}), backwards);

    // Find from the head and after a position
    list.SetAt(posD, b);
    EXPECT_EQ(b, list.GetAt(posD));
    EXPECT_EQ(posB, list.Find(b));
    EXPECT_EQ(posD, list.Find(b, posB));
    EXPECT_TRUE(list.Find(b, posD) == NULL);
    EXPECT_TRUE(list.Find(d) == NULL);

    // removing head, middle and tail nodes
    list.RemoveAt(posA);
    list.RemoveAt(posC);
    list.RemoveAt(list.GetTailPosition());
    EXPECT_EQ((std::vector<std::string>{"b", "b"}), Contents(list));
    EXPECT_EQ(b, list.GetTail());

    // NULL positions insert at the ends
    list.InsertBefore(NULL, a);
    list.InsertAfter(NULL, e);
    EXPECT_EQ((std::vector<std::string>{"a", "b", "b", "e"}), Contents(list));
    EXPECT_EQ(a, list.RemoveHead());
    EXPECT_EQ(e, list.RemoveTail());
    EXPECT_EQ(b, list.RemoveTail());
    EXPECT_EQ(b, list.RemoveHead());
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_TRUE(list.GetHeadPosition() == NULL);
    EXPECT_TRUE(list.GetTailPosition() == NULL);

    // usable again once emptied, and whole lists added at either end
    list.AddTail(c);
    list.AddTail(d);
    CPtrList other;
    other.AddTail(a);
    other.AddTail(b);
    list.AddHead(&other);
    list.AddTail(&other);
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c", "d", "a", "b"}), Contents(list));
    list.AddTail(&list);
    EXPECT_EQ(12, list.GetCount());
    list.RemoveAll();
    EXPECT_EQ(0, list.GetCount());
    EXPECT_TRUE(list.GetHeadPosition() == NULL);
}

TEST(CollectionsTypedPtrList, TypedAccess)
{
    CItem one(1), two(2), three(3);
    CTypedPtrList<CPtrList, CItem*> list;
    list.AddTail(&two);
    list.AddHead(&one);
    POSITION posThree = list.AddTail(&three);

    int nSum = 0;
    POSITION pos = list.GetHeadPosition();
    while (pos != NULL)
        nSum = nSum * 10 + list.GetNext(pos)->m_n;
    EXPECT_EQ(123, nSum);

    EXPECT_EQ(1, list.GetHead()->m_n);
    EXPECT_EQ(3, list.GetAt(posThree)->m_n);
    list.GetAt(posThree) = &one;       // the typed reference writes the node
    EXPECT_EQ(&one, list.GetTail());
    EXPECT_EQ(&one, list.RemoveTail());
    EXPECT_EQ(&one, list.RemoveHead());
    EXPECT_EQ(&two, list.GetHead());
    EXPECT_TRUE(list.Find(&two) != NULL);
}

TEST(CollectionsArray, GrowthInsertRemove)
{
    // new elements are zero; the first block is exact, then the array grows
    // by the grow-by step (default: an eighth of the size, at least 4)
    CArray<int, int> numbers;
    numbers.SetSize(3);
    EXPECT_EQ((std::vector<int>{0, 0, 0}), Contents(numbers));
    EXPECT_EQ(2, numbers.GetUpperBound());
    const int* pBlock = numbers.GetData();
    numbers.Add(7);
    EXPECT_NE(pBlock, numbers.GetData());
    pBlock = numbers.GetData();
    for (int i = 0; i < 3; i++)
        numbers.Add(8);            // up to 3 + 4 elements in one block
    EXPECT_EQ(pBlock, numbers.GetData());
    numbers.Add(9);
    EXPECT_NE(pBlock, numbers.GetData());
    EXPECT_EQ((std::vector<int>{0, 0, 0, 7, 8, 8, 8, 9}), Contents(numbers));

    CArray<int, int> stepped;
    stepped.SetSize(0, 10);
    stepped.Add(1);                // exact first block of 1
    stepped.Add(2);                // then 1 + 10
    pBlock = stepped.GetData();
    for (int i = 3; i <= 11; i++)
        stepped.Add(i);
    EXPECT_EQ(pBlock, stepped.GetData());
    stepped.Add(12);
    EXPECT_NE(pBlock, stepped.GetData());
    EXPECT_EQ(12, stepped.GetSize());

    // shrinking keeps the block; growing within it zeroes the new elements
    pBlock = stepped.GetData();
    stepped.SetSize(2);
    stepped.SetSize(5);
    EXPECT_EQ(pBlock, stepped.GetData());
    EXPECT_EQ((std::vector<int>{1, 2, 0, 0, 0}), Contents(stepped));

    // InsertAt in the middle and past the end, RemoveAt, SetAtGrow
    CArray<int, int> a;
    a.Add(1);
    a.Add(4);
    a.InsertAt(1, 2);
    a.InsertAt(2, 3, 1);
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4}), Contents(a));
    a.InsertAt(6, 9, 2);
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 0, 0, 9, 9}), Contents(a));
    a.RemoveAt(4, 2);
    a.RemoveAt(0);
    EXPECT_EQ((std::vector<int>{2, 3, 4, 9, 9}), Contents(a));
    a.SetAtGrow(7, 5);
    a.SetAtGrow(0, 1);
    EXPECT_EQ((std::vector<int>{1, 3, 4, 9, 9, 0, 0, 5}), Contents(a));
    a[1] = 2;
    a.ElementAt(2) = 3;
    a.SetAt(3, 4);
    EXPECT_EQ(4, a.GetAt(3));
    EXPECT_EQ(8, a.GetSize());

    CArray<int, int> b;
    b.Add(10);
    b.InsertAt(0, &a);
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 9, 0, 0, 5, 10}), Contents(b));
    EXPECT_EQ(9, b.Append(a));
    EXPECT_EQ(17, b.GetSize());
    b.Copy(a);
    EXPECT_EQ(Contents(a), Contents(b));
    b.FreeExtra();
    EXPECT_EQ(Contents(a), Contents(b));
    b.RemoveAll();
    EXPECT_EQ(0, b.GetSize());
    EXPECT_TRUE(b.GetData() == NULL);
}

TEST(CollectionsArray, ElementsThatOwnMemory)
{
    // strings from the same array as arguments, across growth and shifts
    CArray<CString, const CString&> names;
    names.Add(CString("X Axis"));
    for (int i = 0; i < 20; i++)
        names.Add(names[0]);
    EXPECT_EQ(21, names.GetSize());
    EXPECT_TRUE(names[20] == "X Axis");
    names.InsertAt(0, names[20]);
    names.SetAt(1, "Y Axis");
    names.InsertAt(1, names[1], 2);
    EXPECT_TRUE(names[0] == "X Axis");
    EXPECT_TRUE(names[1] == "Y Axis");
    EXPECT_TRUE(names[2] == "Y Axis");
    EXPECT_TRUE(names[3] == "Y Axis");
    EXPECT_TRUE(names[4] == "X Axis");
    names.RemoveAt(0, 3);
    EXPECT_TRUE(names[0] == "Y Axis");
    EXPECT_EQ(21, names.GetSize());

    CArray<CString, LPCSTR> texts;
    texts.SetSize(2);
    EXPECT_TRUE(texts[1].IsEmpty());
    texts.SetAt(0, "\xCF\xDF 1");
    texts.SetAtGrow(5, texts[0]);
    EXPECT_TRUE(texts.GetAt(5) == "\xCF\xDF 1");
    EXPECT_TRUE(texts.GetAt(4).IsEmpty());
}

TEST(CollectionsStringArray, Operations)
{
    CStringArray array;
    EXPECT_EQ(0, array.Add("b"));
    EXPECT_EQ(1, array.Add(CString("d")));
    array.InsertAt(0, "a");
    array.InsertAt(2, "c", 2);
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c", "c", "d"}), Contents(array));
    EXPECT_EQ(4, array.GetUpperBound());

    array.RemoveAt(3);
    array.InsertAt(7, "z");
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c", "d", "", "", "", "z"}), Contents(array));
    array.RemoveAt(4, 3);
    array.SetAtGrow(5, "f");
    array.SetAt(4, "e");
    array[3] = "D";
    array.ElementAt(2) += "!";
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c!", "D", "e", "f"}), Contents(array));
    EXPECT_TRUE(array.GetAt(5) == "f");

    // adding its own elements while growing
    for (int i = 0; i < 10; i++)
        array.Add(array[0]);
    EXPECT_EQ(16, array.GetSize());
    EXPECT_TRUE(array[15] == "a");
    array.SetSize(6);

    CStringArray other;
    other.Add("\xCF\xDF 1");
    other.Add("\xCF\xDF 2");
    array.InsertAt(1, &other);
    EXPECT_EQ((std::vector<std::string>{"a", "\xCF\xDF 1", "\xCF\xDF 2", "b", "c!", "D", "e", "f"}),
              Contents(array));
    EXPECT_EQ(2, other.Append(array));
    EXPECT_EQ(10, other.GetSize());
    other.Copy(array);
    EXPECT_EQ(Contents(array), Contents(other));
    other.Append(other);
    EXPECT_EQ(16, other.GetSize());
    EXPECT_TRUE(other[8] == "a");

    array.SetSize(2);
    EXPECT_EQ((std::vector<std::string>{"a", "\xCF\xDF 1"}), Contents(array));
    array.FreeExtra();
    array.SetSize(4);
    EXPECT_EQ((std::vector<std::string>{"a", "\xCF\xDF 1", "", ""}), Contents(array));
    array.RemoveAll();
    EXPECT_EQ(0, array.GetSize());
}
