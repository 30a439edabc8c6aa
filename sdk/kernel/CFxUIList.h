#pragma once

#include <algorithm>
#include <vector>

// An ordered list of user-interface objects that the list does not own (the CFxUI owns every
// object it created). One object can stand in several lists (a tab in the main group and in a
// workspace), but never twice in the same list: adding an object that the list already holds
// moves it to the new place.
template <class T>
class CFxUIList
{
public:
    int GetCount() const { return static_cast<int>(m_items.size()); }

    // Null when `index` is out of range.
    T* GetAt(int index) const
    {
        return index >= 0 && index < GetCount() ? m_items[static_cast<std::size_t>(index)]
                                                : nullptr;
    }

    int IndexOf(const T* item) const
    {
        const auto at = std::find(m_items.begin(), m_items.end(), item);
        return at == m_items.end() ? -1 : static_cast<int>(at - m_items.begin());
    }

    bool Contains(const T* item) const { return IndexOf(item) >= 0; }

    void Append(T* item)
    {
        if (!item)
            return;
        Remove(item);
        m_items.push_back(item);
    }

    // Puts `item` last without looking for it first: only for an object that the list cannot
    // hold yet (one just made), so that filling a list takes time in proportion to its length.
    void AppendNew(T* item)
    {
        if (item)
            m_items.push_back(item);
    }

    // Puts `item` right after `anchor`; a null anchor puts it first. An anchor that the list
    // does not hold puts the item last and returns false.
    bool InsertAfter(T* anchor, T* item)
    {
        if (!item || item == anchor)
            return false;
        Remove(item);
        if (!anchor) {
            m_items.insert(m_items.begin(), item);
            return true;
        }
        const int at = IndexOf(anchor);
        if (at < 0) {
            m_items.push_back(item);
            return false;
        }
        m_items.insert(m_items.begin() + at + 1, item);
        return true;
    }

    // Puts `item` at `index` (clamped to the list's bounds).
    void InsertAt(int index, T* item)
    {
        if (!item)
            return;
        Remove(item);
        const int at = std::clamp(index, 0, GetCount());
        m_items.insert(m_items.begin() + at, item);
    }

    bool Remove(const T* item)
    {
        const int at = IndexOf(item);
        if (at < 0)
            return false;
        m_items.erase(m_items.begin() + at);
        return true;
    }

    typename std::vector<T*>::const_iterator begin() const { return m_items.begin(); }
    typename std::vector<T*>::const_iterator end() const { return m_items.end(); }

private:
    std::vector<T*> m_items;
};
