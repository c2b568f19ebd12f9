// Lists and maps: growth, removal, and the exception for every index outside.
#include "platform/base/Array.h"
#include "platform/base/Map.h"
#include "platform/base/StringArray.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace {

bool Refuses(const std::function<void()>& work)
{
    try {
        work();
    } catch (CInvalidArgException* pException) {
        pException->Delete(); // shared: deleting it again and again is harmless
        pException->Delete();
        return true;
    }
    return false;
}

TEST(Array, RefusesIndicesOutside)
{
    CArray<int, int> arr;
    arr.Add(1);
    arr.Add(2);
    for (const int nIndex : {-1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        SCOPED_TRACE(nIndex);
        EXPECT_TRUE(Refuses([&] { arr.GetAt(nIndex); }));
        EXPECT_TRUE(Refuses([&] { arr[nIndex] = 1; }));
        EXPECT_TRUE(Refuses([&] { arr.ElementAt(nIndex) = 1; }));
        EXPECT_TRUE(Refuses([&] { arr.SetAt(nIndex, 1); }));
        EXPECT_TRUE(Refuses([&] { arr.RemoveAt(nIndex); }));
    }
    EXPECT_TRUE(Refuses([&] { arr.RemoveAt(0, 3); }));
    EXPECT_TRUE(Refuses([&] { arr.RemoveAt(0, -1); }));
    EXPECT_TRUE(Refuses([&] { arr.SetAtGrow(-1, 1); }));
    EXPECT_TRUE(Refuses([&] { arr.SetSize(-1); }));
    EXPECT_TRUE(Refuses([&] { arr.InsertAt(-1, 1); }));
    EXPECT_TRUE(Refuses([&] { arr.Append(arr); }));
    EXPECT_EQ(arr.GetSize(), 2);
    arr.RemoveAt(2, 0);
    arr.Copy(arr);
    EXPECT_EQ(arr.GetSize(), 2);
}

TEST(Array, GrowsWithZeros)
{
    CArray<int*, int*> arr;
    int nValue = 7;
    arr.SetAtGrow(5, &nValue);
    EXPECT_EQ(arr.GetSize(), 6);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(arr[i], nullptr);
    arr.SetSize(1);
    arr.SetSize(6);
    EXPECT_EQ(arr[5], nullptr); // what was cut off does not come back
    arr.RemoveAll();
    EXPECT_TRUE(arr.IsEmpty());
    EXPECT_EQ(arr.begin(), arr.end());
}

TEST(Array, TakesItsOwnElements)
{
    CStringArray arr;
    arr.Add(L"a text too long to live inside the object");
    for (int i = 0; i < 100; ++i)
        arr.Add(arr[0]);
    arr.InsertAt(0, arr[50]);
    for (const CString& str : arr)
        EXPECT_TRUE(str == arr[0]);
    EXPECT_EQ(arr.GetCount(), 102);
}

TEST(Array, BehavesLikeAVector)
{
    std::mt19937 random(1);
    CStringArray arr;
    std::vector<CString> reference;
    for (int nStep = 0; nStep < 3000; ++nStep) {
        CString str;
        str.Format(L"%d%s", nStep, nStep % 3 == 0 ? L" and a tail that needs memory" : L"");
        const int nSize = arr.GetSize();
        const int nIndex = nSize != 0 ? static_cast<int>(random() % static_cast<unsigned>(nSize)) : 0;
        switch (random() % 5) {
        case 0:
        case 1:
            EXPECT_EQ(arr.Add(str), nSize);
            reference.push_back(str);
            break;
        case 2:
            arr.InsertAt(nIndex, str);
            reference.insert(reference.begin() + nIndex, str);
            break;
        case 3:
            if (nSize != 0) {
                const int nCount = static_cast<int>(random() % static_cast<unsigned>(nSize - nIndex + 1)) % 4;
                arr.RemoveAt(nIndex, nCount);
                reference.erase(reference.begin() + nIndex, reference.begin() + nIndex + nCount);
            }
            break;
        default:
            CStringArray copy;
            copy.Copy(arr);
            copy.Append(arr);
            ASSERT_EQ(copy.GetSize(), 2 * nSize);
        }
        ASSERT_TRUE(std::equal(arr.begin(), arr.end(), reference.begin(), reference.end()));
    }
}

TEST(Map, FindsReplacesAndRemoves)
{
    CMap<int, int, CString, const CString&> map;
    for (int i = -50; i < 50; ++i) {
        CString str;
        str.Format(L"%d", i);
        map.SetAt(i, L"old");
        map.SetAt(i, str);
    }
    EXPECT_EQ(map.GetCount(), 100);
    CString strValue(L"untouched");
    EXPECT_FALSE(map.Lookup(50, strValue));
    EXPECT_TRUE(strValue == L"untouched");
    EXPECT_TRUE(map.Lookup(-17, strValue));
    EXPECT_TRUE(strValue == L"-17");
    EXPECT_TRUE(map.RemoveKey(-17));
    EXPECT_FALSE(map.RemoveKey(-17));
    EXPECT_TRUE(map[-17].IsEmpty());
    map.SetAt(1, map[2]); // a value out of the map itself
    EXPECT_TRUE(map[1] == L"2");
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    CMap<CString, const CString&, int, int> names(0);
    names[L"a"] = 1;
    EXPECT_EQ(names[L"a"], 1);
    EXPECT_EQ(names[L"b"], 0);
}

} // namespace
