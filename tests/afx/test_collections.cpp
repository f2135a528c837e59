// Tests of the collection classes: the maps' iteration order against an
// independent computation of the class library's hash functions, keys that
// compare byte for byte, and the list and array operations the graph library
// uses.
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

// The order in which a map of 17 buckets visits keys inserted in the order
// given: bucket by bucket, the latest insertion of a bucket first.
template <class KEY, class HASH>
std::vector<KEY> ExpectedOrder(const std::vector<KEY>& insertionOrder, HASH hash)
{
    std::vector<KEY> order;
    for (uint32_t bucket = 0; bucket < 17; bucket++)
        for (auto it = insertionOrder.rbegin(); it != insertionOrder.rend(); ++it)
            if (hash(*it) % 17 == bucket)
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
    EXPECT_TRUE(map.GetStartPosition() == NULL);
    for (const std::string& key : kNames)
        map.SetAt(key.c_str(), &item);
    EXPECT_EQ((int)kNames.size(), map.GetCount());
    EXPECT_EQ(ExpectedOrder(kNames, StringHash), VisitOrder(map));

    // Setting an existing key changes its value in place, not its position.
    map.SetAt("a", &other);
    EXPECT_EQ(ExpectedOrder(kNames, StringHash), VisitOrder(map));

    // Removing keys ("r" from the middle of its chain) leaves the others
    // where they were; a key added again goes to the head of its bucket.
    std::vector<std::string> keys = kNames;
    EXPECT_TRUE(map.RemoveKey("r"));
    EXPECT_FALSE(map.RemoveKey("r"));
    EXPECT_TRUE(map.RemoveKey("\xCF\xDF 2"));
    keys.erase(keys.begin() + 11);
    keys.erase(keys.begin() + 1);
    EXPECT_EQ(ExpectedOrder(keys, StringHash), VisitOrder(map));
    map.SetAt("r", &item);
    keys.push_back("r");
    EXPECT_EQ(ExpectedOrder(keys, StringHash), VisitOrder(map));
}

TEST(CollectionsMapWordToOb, VisitsBucketsInHashOrderNewestFirst)
{
    // 0x0000, 0x000F and 0x0110 all land in bucket 0 of 17.
    std::vector<WORD> keys = { 0x0000, 0x0120, 0x000F, 0x1234, 0x0110, 0xFFFF, 0x0010, 0x0011, 7 };
    CItem item(1);
    CMapWordToOb map;
    for (WORD key : keys)
        map.SetAt(key, &item);
    EXPECT_EQ(ExpectedOrder(keys, WordHash), (VisitOrder<WORD, WORD>(map)));
    EXPECT_TRUE(map.RemoveKey(0x000F));
    EXPECT_FALSE(map.RemoveKey(0x000F));
    keys.erase(keys.begin() + 2);
    EXPECT_EQ(ExpectedOrder(keys, WordHash), (VisitOrder<WORD, WORD>(map)));
}

TEST(CollectionsMaps, TypedLookupComparesKeysByteForByte)
{
    CItem one(1), two(2);
    CTypedPtrMap<CMapStringToOb, CString, CItem*> byName;
    CItem* found = NULL;
    EXPECT_FALSE(byName.Lookup("Title", found));
    byName.SetAt("Title", &one);
    byName.SetAt("\xCF\xDF", &two);
    // Case, blanks and GBK trail bytes count.
    for (const char* psz : { "title", "Title ", "\xCF\xE0", "\xCF" })
        EXPECT_FALSE(byName.Lookup(psz, found)) << psz;
    ASSERT_TRUE(byName.Lookup("\xCF\xDF", found));
    EXPECT_EQ(2, found->m_n);

    CTypedPtrMap<CMapWordToOb, WORD, CItem*> byId;
    byId.SetAt(200, &one);
    EXPECT_TRUE(byId.Lookup(200, found) && found == &one);
    EXPECT_FALSE(byId.Lookup(201, found));
}

TEST(CollectionsPtrList, WalkAndRemoveReuseNodesAcrossBlocks)
{
    CItem a(1), b(2), c(3);
    CTypedPtrList<CPtrList, CItem*> list(2);   // small blocks: several blocks and node reuse
    for (int nRound = 0; nRound < 3; nRound++) {
        for (CItem* p : { &a, &b, &c, &b, &a })
            list.AddTail(p);
        std::string walk;
        for (POSITION pos = list.GetHeadPosition(); pos != NULL;)
            walk += (char)('0' + list.GetNext(pos)->m_n);
        EXPECT_EQ("12321", walk);
        EXPECT_EQ(&a, list.RemoveHead());
        EXPECT_EQ(&b, list.RemoveHead());
        if (nRound == 1)
            list.RemoveAll();
        while (!list.IsEmpty())
            list.RemoveHead();
        EXPECT_TRUE(list.GetHeadPosition() == NULL);
    }
}

TEST(CollectionsArray, GrowthKeepsTheElementsAndRemoveAtCloses)
{
    CStringArray names;
    CArray<double, double> values;
    for (int i = 0; i < 40; i++) {
        names.Add(("\xCF\xDF " + std::to_string(i)).c_str());
        values.Add(i * 0.5);
    }
    names.RemoveAt(3);
    values.RemoveAt(3);
    ASSERT_EQ(39, names.GetSize());
    ASSERT_EQ(39, values.GetSize());
    EXPECT_STREQ("\xCF\xDF 2", names[2]);
    EXPECT_STREQ("\xCF\xDF 4", names[3]);
    EXPECT_STREQ("\xCF\xDF 39", names[38]);
    EXPECT_EQ(2.0, values[3]);
    EXPECT_EQ(19.5, values[38]);
    names.RemoveAll();
    EXPECT_EQ(0, names.GetSize());
}
