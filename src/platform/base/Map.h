// CMap: a hash map with a fixed number of buckets, 17 unless told otherwise: meant for the small tables of a
// host.
#pragma once

#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

/// A map from KEY to VALUE, passed in as ARG_KEY and ARG_VALUE. It owns copies of both, never what they point
/// to.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap
{
public:
    explicit CMap(int nBuckets = 17) : m_arrBucket(static_cast<std::size_t>(nBuckets > 0 ? nBuckets : 17)) {}
    CMap(const CMap&) = delete;
    CMap& operator=(const CMap&) = delete;

    int GetCount() const { return m_nCount; }
    int GetSize() const { return m_nCount; }
    bool IsEmpty() const { return m_nCount == 0; }

    /// @return whether the key is there; if not, value is left alone
    bool Lookup(ARG_KEY key, VALUE& value) const
    {
        for (const Entry& entry : Bucket(key)) {
            if (entry.first == key) {
                value = entry.second;
                return true;
            }
        }
        return false;
    }
    /// The value of a key, added value-initialised when missing. Valid until the next change.
    VALUE& operator[](ARG_KEY key)
    {
        auto& bucket = Bucket(key);
        for (Entry& entry : bucket) {
            if (entry.first == key)
                return entry.second;
        }
        bucket.emplace_back(key, VALUE());
        ++m_nCount;
        return bucket.back().second;
    }
    void SetAt(ARG_KEY key, ARG_VALUE value)
    {
        VALUE copy(value);
        (*this)[key] = std::move(copy);
    }
    /// @return whether the key was there
    bool RemoveKey(ARG_KEY key)
    {
        auto& bucket = Bucket(key);
        for (auto it = bucket.begin(); it != bucket.end(); ++it) {
            if (it->first == key) {
                bucket.erase(it);
                --m_nCount;
                return true;
            }
        }
        return false;
    }
    void RemoveAll()
    {
        for (auto& bucket : m_arrBucket)
            bucket.clear();
        m_nCount = 0;
    }

private:
    using Entry = std::pair<KEY, VALUE>;

    std::size_t IndexOf(const KEY& key) const { return std::hash<KEY>{}(key) % m_arrBucket.size(); }
    std::vector<Entry>& Bucket(const KEY& key) { return m_arrBucket[IndexOf(key)]; }
    const std::vector<Entry>& Bucket(const KEY& key) const { return m_arrBucket[IndexOf(key)]; }

    std::vector<std::vector<Entry>> m_arrBucket;
    int m_nCount = 0;
};
