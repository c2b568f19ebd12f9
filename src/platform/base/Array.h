// CArray: a growing list with checked indices. Knows the elements' type and the invalid-argument exception
// only. Every index outside the list raises that exception. No element keeps its address across a growth.
#pragma once

#include "platform/base/Exception.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// A list of TYPE, passed in as ARG_TYPE. Elements that a growing list gains without a value are
/// value-initialised (numbers 0, pointers null). A list of pointers does not own what they point to.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray
{
public:
    CArray() = default;
    CArray(const CArray&) = delete;
    CArray& operator=(const CArray&) = delete;
    ~CArray()
    {
        Destroy(0, m_nSize);
        std::free(m_pData);
    }

    int GetSize() const { return m_nSize; }
    int GetCount() const { return m_nSize; }
    bool IsEmpty() const { return m_nSize == 0; }
    int GetUpperBound() const { return m_nSize - 1; }

    /// Cuts the list or fills it up with value-initialised elements. A negative size raises the exception.
    /// @param nGrowBy  elements by which later growth goes, or -1 to leave that as it is; 0 lets the list
    /// choose
    void SetSize(int nNewSize, int nGrowBy = -1)
    {
        if (nNewSize < 0)
            AfxThrowInvalidArgException();
        if (nGrowBy >= 0)
            m_nGrowBy = nGrowBy;
        if (nNewSize <= m_nSize) {
            Destroy(nNewSize, m_nSize);
        } else {
            Reserve(nNewSize, true);
            Construct(m_nSize, nNewSize);
        }
        m_nSize = nNewSize;
    }
    void RemoveAll()
    {
        SetSize(0);
        std::free(std::exchange(m_pData, nullptr));
        m_nCapacity = 0;
    }

    const TYPE& GetAt(int nIndex) const { return m_pData[Check(nIndex)]; }
    TYPE& GetAt(int nIndex) { return m_pData[Check(nIndex)]; }
    const TYPE& ElementAt(int nIndex) const { return m_pData[Check(nIndex)]; }
    TYPE& ElementAt(int nIndex) { return m_pData[Check(nIndex)]; }
    const TYPE& operator[](int nIndex) const { return m_pData[Check(nIndex)]; }
    TYPE& operator[](int nIndex) { return m_pData[Check(nIndex)]; }
    void SetAt(int nIndex, ARG_TYPE value) { m_pData[Check(nIndex)] = value; }

    /// The elements one after another, or null when there is no memory yet.
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }
    const TYPE* begin() const { return m_pData; }
    const TYPE* end() const { return m_pData + m_nSize; }
    TYPE* begin() { return m_pData; }
    TYPE* end() { return m_pData + m_nSize; }

    /// Sets the element, growing the list up to it first where needed.
    void SetAtGrow(int nIndex, ARG_TYPE value)
    {
        if (nIndex < 0 || nIndex == std::numeric_limits<int>::max())
            AfxThrowInvalidArgException();
        if (nIndex >= m_nSize) {
            TYPE copy(value); // value may stand in this very list
            SetSize(nIndex + 1);
            m_pData[nIndex] = std::move(copy);
        } else {
            m_pData[nIndex] = value;
        }
    }
    /// @return the index of the new element
    int Add(ARG_TYPE value)
    {
        SetAtGrow(m_nSize, value);
        return m_nSize - 1;
    }
    /// Appends all elements of another list. Appending a list to itself raises the invalid-argument
    /// exception.
    /// @return the index of the first appended element
    int Append(const CArray& other)
    {
        if (this == &other || other.m_nSize > std::numeric_limits<int>::max() - m_nSize)
            AfxThrowInvalidArgException();
        const int nOld = m_nSize;
        SetSize(nOld + other.m_nSize);
        std::copy(other.begin(), other.end(), m_pData + nOld);
        return nOld;
    }
    void Copy(const CArray& other)
    {
        if (this == &other)
            return;
        SetSize(0);
        Append(other);
    }
    /// Inserts before nIndex (which may lie behind the end: the gap is filled up).
    void InsertAt(int nIndex, ARG_TYPE value)
    {
        if (nIndex >= m_nSize)
            return SetAtGrow(nIndex, value);
        Check(nIndex);
        TYPE copy(value);
        SetSize(m_nSize + 1);
        std::move_backward(m_pData + nIndex, m_pData + m_nSize - 1, m_pData + m_nSize);
        m_pData[nIndex] = std::move(copy);
    }
    /// Removes nCount elements; the ones behind move down.
    void RemoveAt(int nIndex, int nCount = 1)
    {
        if (nIndex < 0 || nCount < 0 || nIndex > m_nSize || nCount > m_nSize - nIndex)
            AfxThrowInvalidArgException();
        std::move(m_pData + nIndex + nCount, m_pData + m_nSize, m_pData + nIndex);
        SetSize(m_nSize - nCount);
    }

private:
    // Plain data moves as bytes; everything else by its own constructors.
    static constexpr bool PLAIN =
        std::is_trivially_copyable_v<TYPE> && std::is_trivially_destructible_v<TYPE>;
    static_assert(alignof(TYPE) <= alignof(std::max_align_t), "memory comes from malloc");

    int Check(int nIndex) const
    {
        if (static_cast<unsigned>(nIndex) >= static_cast<unsigned>(m_nSize)) [[unlikely]]
            AfxThrowInvalidArgException();
        return nIndex;
    }
    int NextCapacity(int nNeeded) const
    {
        const int nStep = m_nGrowBy > 0 ? m_nGrowBy : std::max(4, m_nCapacity / 2);
        return m_nCapacity > std::numeric_limits<int>::max() - nStep ? nNeeded
                                                                     : std::max(nNeeded, m_nCapacity + nStep);
    }
    void Reserve(int nNeeded, bool bGrow)
    {
        if (nNeeded <= m_nCapacity)
            return;
        const int nCapacity = bGrow && m_nCapacity != 0 ? NextCapacity(nNeeded) : nNeeded;
        // NOLINTNEXTLINE(bugprone-sizeof-expression): arrays of pointers hold pointers
        const std::size_t nBytes = static_cast<std::size_t>(nCapacity) * sizeof(TYPE);
        if constexpr (PLAIN) {
            void* pNew = std::realloc(static_cast<void*>(m_pData), nBytes);
            if (!pNew)
                AfxThrowMemoryException();
            m_pData = static_cast<TYPE*>(pNew);
        } else {
            TYPE* pNew = static_cast<TYPE*>(std::malloc(nBytes));
            if (!pNew)
                AfxThrowMemoryException();
            std::uninitialized_move(m_pData, m_pData + m_nSize, pNew);
            std::destroy(m_pData, m_pData + m_nSize);
            std::free(static_cast<void*>(m_pData));
            m_pData = pNew;
        }
        m_nCapacity = nCapacity;
    }
    void Construct(int nFrom, int nTo) { std::uninitialized_value_construct(m_pData + nFrom, m_pData + nTo); }
    void Destroy(int nFrom, int nTo) { std::destroy(m_pData + nFrom, m_pData + nTo); }

    TYPE* m_pData = nullptr; // owned
    int m_nSize = 0;
    int m_nCapacity = 0;
    int m_nGrowBy = 0;
};
