#pragma once

#include "CFxString.h"
#include "CFxUIObject.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <list>
#include <string>
#include <unordered_map>
#include <vector>

// An ordered list of user-interface objects that the list does not own (the CFxUI owns every
// object it created). One object can stand in several lists (a tab in the main group and in a
// workspace), but never twice in the same list: adding an object that the list already holds
// moves it to the new place.
//
// A ribbon row or a command list can hold tens of thousands of entries that siblings add and
// take away one by one, so adding, inserting after an entry, removing, asking whether an entry
// is held and finding an identifier cost the same whatever the list's length. Reading by index
// from 0 upwards (or downwards) costs one step per entry; a jump costs the distance.
template <class T>
class CFxUIList
{
    using Items = std::list<T*>;

public:
    CFxUIList() = default;
    CFxUIList(const CFxUIList&) = delete;
    CFxUIList& operator=(const CFxUIList&) = delete;

    int GetCount() const { return static_cast<int>(m_items.size()); }

    // Null when `index` is out of range.
    T* GetAt(int index) const
    {
        if (index < 0 || index >= GetCount())
            return nullptr;
        moveCursorTo(index);
        return *m_cursor;
    }

    // -1 when the list does not hold `item`; otherwise counts the entries before it.
    int IndexOf(const T* item) const
    {
        const auto at = m_where.find(item);
        if (at == m_where.end())
            return -1;
        const typename Items::const_iterator position = at->second;
        return static_cast<int>(std::distance(m_items.cbegin(), position));
    }

    bool Contains(const T* item) const { return m_where.count(item) != 0; }

    void Append(T* item)
    {
        if (!item)
            return;
        Remove(item);
        place(m_items.end(), item);
    }

    // Puts `item` right after `anchor`; a null anchor puts it first. An anchor that the list
    // does not hold puts the item last and returns false.
    bool InsertAfter(T* anchor, T* item)
    {
        if (!item || item == anchor)
            return false;
        Remove(item);
        if (!anchor) {
            place(m_items.begin(), item);
            return true;
        }
        const auto at = m_where.find(anchor);
        if (at == m_where.end()) {
            place(m_items.end(), item);
            return false;
        }
        place(std::next(at->second), item);
        return true;
    }

    // Puts `item` at `index` (clamped to the list's bounds).
    void InsertAt(int index, T* item)
    {
        if (!item)
            return;
        Remove(item);
        const int at = std::clamp(index, 0, GetCount());
        place(std::next(m_items.begin(), at), item);
    }

    bool Remove(const T* item)
    {
        const auto at = m_where.find(item);
        if (at == m_where.end())
            return false;
        unindex(*at->second);
        m_items.erase(at->second);
        m_where.erase(at);
        m_cursorIndex = -1;
        return true;
    }

    // The first entry whose identifier is `identifier` in any letter case; null when none.
    T* FindFirst(const CFxString& identifier) const
    {
        refreshIdentifierIndex();
        const auto named = m_byIdentifier.find(identifier.foldedKey());
        if (named == m_byIdentifier.end() || named->second.empty())
            return nullptr;
        if (named->second.size() == 1)
            return named->second.front();
        // Several entries share the identifier: the first of them in the list's order.
        for (T* item : m_items) {
            if (item->GetIdentifier().equalNoCase(identifier))
                return item;
        }
        return nullptr;
    }

    typename Items::const_iterator begin() const { return m_items.cbegin(); }
    typename Items::const_iterator end() const { return m_items.cend(); }

private:
    // The model and the host's profile reader fill lists with objects they have just made.
    friend class CFxUI;
    friend class CFxUIJsonReader;

    // Puts `item` last without looking for it first: only for an object that the list cannot
    // hold yet (one just made), so that filling a list takes time in proportion to its length.
    void AppendNew(T* item)
    {
        if (item)
            place(m_items.end(), item);
    }

    void place(typename Items::iterator before, T* item)
    {
        m_where.emplace(item, m_items.insert(before, item));
        m_cursorIndex = -1;
        if (identifierIndexCurrent())
            m_byIdentifier[item->GetIdentifier().foldedKey()].push_back(item);
    }

    void unindex(T* item)
    {
        if (!identifierIndexCurrent())
            return;
        const auto named = m_byIdentifier.find(item->GetIdentifier().foldedKey());
        if (named == m_byIdentifier.end())
            return;
        auto& items = named->second;
        items.erase(std::find(items.begin(), items.end(), item));
        if (items.empty())
            m_byIdentifier.erase(named);
    }

    // The identifier index is made on the first look-up and kept up to date as entries come
    // and go; renaming any object of the model makes it stale, and it is made again.
    bool identifierIndexCurrent() const
    {
        if (m_indexedAt == 0)
            return false;
        if (m_indexedAt == CFxUIObject::identifierChanges() + 1)
            return true;
        m_byIdentifier = {};
        m_indexedAt = 0;
        return false;
    }

    void refreshIdentifierIndex() const
    {
        if (identifierIndexCurrent())
            return;
        for (T* item : m_items)
            m_byIdentifier[item->GetIdentifier().foldedKey()].push_back(item);
        m_indexedAt = CFxUIObject::identifierChanges() + 1;
    }

    void moveCursorTo(int index) const
    {
        const int count = GetCount();
        if (m_cursorIndex < 0 || std::abs(index - m_cursorIndex) > std::min(index, count - index)) {
            const bool fromFront = index <= count - index;
            m_cursor = fromFront ? m_items.begin() : std::prev(m_items.end());
            m_cursorIndex = fromFront ? 0 : count - 1;
        }
        std::advance(m_cursor, index - m_cursorIndex);
        m_cursorIndex = index;
    }

    Items m_items;
    std::unordered_map<const T*, typename Items::iterator> m_where;
    // Where reading by index last stopped; -1 after any change.
    mutable typename Items::const_iterator m_cursor;
    mutable int m_cursorIndex = -1;
    // Entries by folded identifier; valid while m_indexedAt is the model's rename count + 1.
    mutable std::unordered_map<std::wstring, std::vector<T*>> m_byIdentifier;
    mutable std::uint64_t m_indexedAt = 0;
};
