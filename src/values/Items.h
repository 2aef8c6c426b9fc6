#pragma once

#include <cstddef>
#include <iterator>
#include <ranges>

namespace vantrel {

/// What a container of a storyboard holds, as handles: a view that borrows the container. Entries
/// that an `Item` can't be made of are passed over. While it runs, values may be changed; adding and
/// taking out is as with the container itself.
template <class Item, class Container>
class Items : public std::ranges::view_base
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
        explicit Iterator(const Container* container) : m_container(container)
        {
            if (m_container)
                m_place = m_container->begin();
            Settle();
        }

        Item operator*() const { return m_item; }
        const Item* operator->() const { return &m_item; }
        Iterator& operator++()
        {
            ++m_place;
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
            return a.m_place == b.m_place;
        }
        friend bool operator==(const Iterator& a, std::default_sentinel_t) { return !a.m_item; }

    private:
        void Settle()
        {
            m_item = Item();
            for (; m_container && m_place != m_container->end(); ++m_place) {
                m_item = Item(*m_place);
                if (m_item)
                    return;
            }
        }

        const Container* m_container = nullptr;
        typename Container::const_iterator m_place{};
        Item m_item;
    };

    Items() = default;
    explicit Items(const Container* container) : m_container(container) {}

    Iterator begin() const { return Iterator(m_container); }
    std::default_sentinel_t end() const { return {}; }

    bool empty() const { return begin() == end(); }
    /// How many there are; walks the container.
    long count() const { return static_cast<long>(std::ranges::distance(*this)); }
    /// The first, or an empty handle.
    Item front() const { return *begin(); }
    /// The first with that ID; an empty handle when there is none.
    Item find(long id) const
    {
        for (const Item item : *this) {
            if (item.id() == id)
                return item;
        }
        return {};
    }

private:
    const Container* m_container = nullptr; ///< not owned; may be null
};

} // namespace vantrel

template <class Item, class Container>
inline constexpr bool std::ranges::enable_borrowed_range<vantrel::Items<Item, Container>> = true;
