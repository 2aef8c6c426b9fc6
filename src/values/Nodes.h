#pragma once

#include "values/Node.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <ranges>
#include <string_view>

namespace vantrel {

/// The children of a node that are of one kind, in their order: a view that borrows the list.
///
/// One pass asks each child once. While it runs, values of any node may be changed and nodes
/// appended; of children that are removed or moved, one behind may be passed over or met again.
template <class Item>
class Nodes : public std::ranges::view_base
{
public:
    class Iterator
    {
    public:
        using value_type = Item;
        using difference_type = std::ptrdiff_t;
        using iterator_concept = std::forward_iterator_tag;
        using iterator_category = std::input_iterator_tag;

        Iterator() = default;
        explicit Iterator(CProjectNode* list) : m_list(list) { Settle(); }

        Item operator*() const { return m_item; }
        const Item* operator->() const { return &m_item; }
        Iterator& operator++()
        {
            ++m_index;
            Settle();
            return *this;
        }
        Iterator operator++(int)
        {
            Iterator old = *this;
            ++*this;
            return old;
        }
        friend bool operator==(const Iterator& a, const Iterator& b)
        {
            return a.m_item == b.m_item && a.m_index == b.m_index;
        }
        friend bool operator==(const Iterator& a, std::default_sentinel_t) { return !a.m_item; }

    private:
        void Settle()
        {
            m_item = Item();
            for (; m_list && m_index < m_list->GetNumChildren(); ++m_index) {
                m_item = Item(detail::As<Item>(m_list->GetChild(m_index)));
                if (m_item)
                    return;
            }
        }

        CProjectNode* m_list = nullptr;
        int m_index = 0;
        Item m_item;
    };

    Nodes() = default;
    explicit Nodes(CProjectNode* list) : m_list(list) {}

    Iterator begin() const { return Iterator(m_list); }
    std::default_sentinel_t end() const { return {}; }

    bool empty() const { return begin() == end(); }
    /// How many there are; walks the list.
    long count() const { return static_cast<long>(std::ranges::distance(*this)); }
    /// The first, or an empty handle.
    Item front() const { return *begin(); }
    /// The one at `position` among those of its kind, counted from 0, or an empty handle.
    Item at(long position) const
    {
        for (const Item item : *this) {
            if (position-- == 0)
                return item;
        }
        return {};
    }

    /// The first with that ID, or with that label; an empty handle when there is none.
    Item find(long id) const
    {
        return FindIf([id](const Item& item) { return item.id() == id; });
    }
    Item find(std::string_view label) const requires requires(Item item) { item.label(); }
    {
        return FindIf([label](const Item& item) { return item.label() == label; });
    }

private:
    template <class Predicate>
    Item FindIf(Predicate is) const
    {
        for (const Item item : *this) {
            if (is(item))
                return item;
        }
        return {};
    }

    CProjectNode* m_list = nullptr; ///< not owned; may be null
};

namespace detail {

/// Appends `node`, which belongs to `list` from now on. Empty when there is no list.
template <class Item, class Class>
Item Adopt(CProjectNode* list, std::unique_ptr<Class> node)
{
    Class* added = node.get();
    return list && list->AdoptChild(std::move(node), true) ? Item(added) : Item();
}

/// Takes `node` out of `list`; one that the list owns is released.
inline Status Remove(CProjectNode* list, const CProjectNode* node)
{
    if (!list || !node)
        return status::kNullPointer;
    const int count = list->GetNumChildren();
    (void)list->ReleaseChildren([node](CProjectNode& child) { return &child == node; });
    return list->GetNumChildren() < count ? status::kOk : status::kNoSuchObject;
}

/// Moves `node` to `position` in `list`, counted from 0.
inline Status Move(CProjectNode* list, const CProjectNode* node, int position)
{
    if (!list || !node)
        return status::kNullPointer;
    for (int i = 0; i < list->GetNumChildren(); ++i) {
        if (list->GetChild(i) == node)
            return list->MoveChild(i, position) ? status::kOk : status::kBadArgument;
    }
    return status::kNoSuchObject;
}

} // namespace detail

} // namespace vantrel

template <class Item>
inline constexpr bool std::ranges::enable_borrowed_range<vantrel::Nodes<Item>> = true;
