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

// The string hash written as h * 33 plus the character taken as a signed
// byte; the same with unsigned bytes shows which keys tell the two apart.
uint32_t StringHash(const std::string& key)
{
    uint32_t h = 0;
    for (char c : key)
        h = h * 33u + (uint32_t)(int32_t)(signed char)c;
    return h;
}

uint32_t UnsignedStringHash(const std::string& key)
{
    uint32_t h = 0;
    for (char c : key)
        h = h * 33u + (uint32_t)(unsigned char)c;
    return h;
}

uint32_t WordHash(WORD key)
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
        for (auto it = insertionOrder.rbegin(); it != insertionOrder.rend(); ++it)
            if (hash(*it) % nTableSize == bucket)
                order.push_back(*it);
    return order;
}

template <class KEY, class MAPKEY, class MAP>
std::vector<KEY> VisitOrder(const MAP& map)
{
    std::vector<KEY> order;
    POSITION pos = map.GetStartPosition();
    while (pos != NULL) {
        MAPKEY key;
        CObject* value = NULL;
        map.GetNextAssoc(pos, key, value);
        order.push_back(KEY(key));
    }
    return order;
}

std::vector<std::string> VisitOrder(const CMapStringToOb& map)
{
    return VisitOrder<std::string, CString>(map);
}

void InsertAll(CMapStringToOb& map, const std::vector<std::string>& keys, CObject* value)
{
    for (const std::string& key : keys)
        map.SetAt(key.c_str(), value);
}

std::vector<std::string> Contents(const CPtrList& list)
{
    std::vector<std::string> items;
    for (POSITION pos = list.GetHeadPosition(); pos != NULL;)
        items.push_back((const char*)list.GetNext(pos));
    return items;
}

template <class ARRAY>
std::vector<std::string> Contents(const ARRAY& array)
{
    std::vector<std::string> items;
    for (int i = 0; i < array.GetSize(); i++)
        items.push_back((LPCSTR)array.GetAt(i));
    return items;
}

// Series and axis names as the graph library keys them, GBK text included.
const std::vector<std::string> kNames = {
    "\xCF\xDF 1", "\xCF\xDF 2", "\xCF\xDF 10", "\xD7\xF8\xB1\xEA\xD6\xE1",
    "Series 1", "Series 2", "X Axis", "Y Axis", "Title", "Legend", "a", "r", "P", "",
};

} // namespace

TEST(CollectionsMapStringToOb, VisitsBucketsInHashOrderNewestFirst)
{
    // The keys are only a useful check if signedness changes some buckets.
    int nSignSensitive = 0;
    for (const std::string& key : kNames)
        nSignSensitive += StringHash(key) % 17 != UnsignedStringHash(key) % 17;
    ASSERT_GT(nSignSensitive, 0);
    // "a", "r" and "P" share a bucket.
    ASSERT_EQ(StringHash("a") % 17, StringHash("r") % 17);
    ASSERT_EQ(StringHash("a") % 17, StringHash("P") % 17);

    CItem item(1), other(2);
    CMapStringToOb map;
    EXPECT_EQ(17u, map.GetHashTableSize());
    EXPECT_TRUE(map.GetStartPosition() == NULL);
    InsertAll(map, kNames, &item);
    EXPECT_EQ((int)kNames.size(), map.GetCount());
    EXPECT_EQ(ExpectedOrder(kNames, 17, StringHash), VisitOrder(map));

    // Setting an existing key changes its value in place, not its position.
    map.SetAt("a", &other);
    EXPECT_EQ(ExpectedOrder(kNames, 17, StringHash), VisitOrder(map));

    // Removing keys ("r" from the middle of its chain) leaves the others
    // where they were; a key added again goes to the head of its bucket.
    std::vector<std::string> keys = kNames;
    EXPECT_TRUE(map.RemoveKey("r"));
    EXPECT_FALSE(map.RemoveKey("r"));
    EXPECT_TRUE(map.RemoveKey("\xCF\xDF 2"));
    EXPECT_FALSE(map.RemoveKey("\xCF\xDF"));
    keys.erase(keys.begin() + 11);
    keys.erase(keys.begin() + 1);
    EXPECT_EQ(ExpectedOrder(keys, 17, StringHash), VisitOrder(map));
    map.SetAt("r", &item);
    keys.push_back("r");
    EXPECT_EQ(ExpectedOrder(keys, 17, StringHash), VisitOrder(map));

    // A table size chosen before the first insertion, kept across RemoveAll,
    // and one allocated lazily once the map is empty again.
    CMapStringToOb sized;
    sized.InitHashTable(7);
    InsertAll(sized, kNames, &item);
    EXPECT_EQ(ExpectedOrder(kNames, 7, StringHash), VisitOrder(sized));
    sized.RemoveAll();
    EXPECT_EQ(7u, sized.GetHashTableSize());
    InsertAll(sized, keys, &item);
    EXPECT_EQ(ExpectedOrder(keys, 7, StringHash), VisitOrder(sized));
    for (const std::string& key : keys)
        EXPECT_TRUE(sized.RemoveKey(key.c_str()));
    sized.InitHashTable(31, FALSE);
    InsertAll(sized, kNames, &item);
    EXPECT_EQ(31u, sized.GetHashTableSize());
    EXPECT_EQ(ExpectedOrder(kNames, 31, StringHash), VisitOrder(sized));
}

TEST(CollectionsMapWordToOb, VisitsBucketsInHashOrderNewestFirst)
{
    // 0x0000, 0x000F and 0x0110 all land in bucket 0 of 17.
    std::vector<WORD> keys = { 0x0000, 0x0120, 0x000F, 0x1234, 0x0110, 0xFFFF, 0x0010, 0x0011, 7 };
    CItem item(1);
    CMapWordToOb map, sized;
    sized.InitHashTable(5);
    for (WORD key : keys) {
        map.SetAt(key, &item);
        sized.SetAt(key, &item);
    }
    EXPECT_EQ(ExpectedOrder(keys, 17, WordHash), (VisitOrder<WORD, WORD>(map)));
    EXPECT_EQ(ExpectedOrder(keys, 5, WordHash), (VisitOrder<WORD, WORD>(sized)));
    EXPECT_TRUE(map.RemoveKey(0x000F));
    EXPECT_FALSE(map.RemoveKey(0x000F));
    keys.erase(keys.begin() + 2);
    EXPECT_EQ(ExpectedOrder(keys, 17, WordHash), (VisitOrder<WORD, WORD>(map)));
    map[0x4242] = &item;
    CObject* value = NULL;
    EXPECT_TRUE(map.Lookup(0x4242, value) && value == &item);
}

TEST(CollectionsMaps, LookupSubscriptAndTypedAccess)
{
    CItem one(1), two(2);
    CMapStringToOb map;
    CObject* value = &one;
    EXPECT_FALSE(map.Lookup("Title", value));
    EXPECT_EQ(&one, value);   // untouched
    // operator[] adds an absent key with a null value.
    EXPECT_TRUE(map["Title"] == NULL);
    EXPECT_TRUE(map.Lookup("Title", value) && value == NULL);
    map["Title"] = &one;
    EXPECT_TRUE(map.Lookup("Title", value) && value == &one);
    // Keys compare byte for byte: case, blanks and GBK trail bytes count.
    map.SetAt("\xCF\xDF", &one);
    for (const char* psz : { "title", "Title ", "\xCF\xE0" })
        EXPECT_FALSE(map.Lookup(psz, value)) << psz;
    EXPECT_EQ(2, map.GetCount());

    CTypedPtrMap<CMapStringToOb, CString, CItem*> byName;
    byName["Y Axis"] = &two;
    CItem* found = NULL;
    ASSERT_TRUE(byName.Lookup("Y Axis", found));
    EXPECT_EQ(2, found->m_n);
    CString name;
    POSITION pos = byName.GetStartPosition();
    byName.GetNextAssoc(pos, name, found);
    EXPECT_STREQ("Y Axis", name);
    EXPECT_TRUE(pos == NULL);
    CTypedPtrMap<CMapWordToOb, WORD, CItem*> byId;
    byId[200] = &one;
    EXPECT_TRUE(byId.Lookup(200, found) && found == &one);
    EXPECT_TRUE(byId.RemoveKey(200));
    EXPECT_TRUE(byId.IsEmpty());
}

TEST(CollectionsPtrList, WalkFindAndRemove)
{
    char a[] = "a", b[] = "b", c[] = "c";
    CPtrList list(2);   // small blocks: several blocks and node reuse
    EXPECT_TRUE(list.GetHeadPosition() == NULL);
    for (int nRound = 0; nRound < 2; nRound++) {
        POSITION posB = list.AddTail(b);
        POSITION posA = list.AddHead(a);
        list.AddTail(c);
        list.AddTail(b);
        EXPECT_EQ((std::vector<std::string>{ "a", "b", "c", "b" }), Contents(list));
        std::string backwards;
        for (POSITION pos = list.GetTailPosition(); pos != NULL;)
            backwards += (const char*)list.GetPrev(pos);
        EXPECT_EQ("bcba", backwards);
        // Find from the head and after a position.
        EXPECT_EQ(posB, list.Find(b));
        EXPECT_EQ(list.GetTailPosition(), list.Find(b, posB));
        EXPECT_TRUE(list.Find(b, list.GetTailPosition()) == NULL);
        // Head, middle and tail nodes removed.
        list.RemoveAt(posA);
        list.RemoveAt(list.Find(c));
        list.RemoveAt(list.GetTailPosition());
        EXPECT_EQ((std::vector<std::string>{ "b" }), Contents(list));
        EXPECT_EQ(b, list.RemoveHead());
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_TRUE(list.GetTailPosition() == NULL);
    }
    CTypedPtrList<CPtrList, CItem*> typed;
    CItem one(1), two(2);
    POSITION posTwo = typed.AddTail(&two);
    typed.AddHead(&one);
    typed.GetAt(posTwo) = &one;   // the typed reference writes the node
    EXPECT_EQ(&one, typed.GetTail());
    EXPECT_EQ(1, typed.RemoveHead()->m_n);
}

TEST(CollectionsArray, GrowAndRemoveWithElementsOfTheArrayItself)
{
    CArray<int, int> a;
    a.SetSize(2, 10);   // new elements are zero
    a.Add(4);
    a.Add(5);
    a.RemoveAt(0);
    a.RemoveAt(1, 2);
    a.SetAtGrow(3, 7);
    EXPECT_EQ((std::vector<int>{ 0, 0, 0, 7 }), std::vector<int>(a.GetData(), a.GetData() + a.GetSize()));
    a.SetSize(0);
    EXPECT_EQ(0, a.GetSize());

    // Arguments that are elements of the array itself, across growth.
    CArray<CString, const CString&> names;
    names.Add(CString("X Axis"));
    for (int i = 0; i < 20; i++)
        names.Add(names[i]);
    EXPECT_EQ(21, names.GetSize());
    EXPECT_TRUE(names[20] == "X Axis");
    CStringArray array;
    array.Add("\xCF\xDF 1");
    for (int i = 0; i < 10; i++)
        array.Add(array[0]);
    array.RemoveAt(1, 9);
    array.SetAtGrow(3, "z");
    EXPECT_EQ((std::vector<std::string>{ "\xCF\xDF 1", "\xCF\xDF 1", "", "z" }), Contents(array));
}
