#pragma once

#include "project/ProjectNode.h"
#include "values/Handle.h"

#include <concepts>
#include <typeinfo>

namespace vantrel {

class Project;
template <class Item>
class Nodes;

namespace detail {

/// `node` as an `Item::Object`, or null. The type is asked first, since most nodes are of the very
/// class that their type stands for.
template <class Item>
typename Item::Object* As(CProjectNode* node)
{
    using Class = typename Item::Object;
    if (!node || node->GetType() != Item::kType)
        return nullptr;
    if (typeid(*node) == typeid(Class))
        return static_cast<Class*>(node);
    return dynamic_cast<Class*>(node);
}

} // namespace detail

/// Any node of the project's tree.
class Node : public Handle<CProjectNode>
{
public:
    using Handle::Handle;
    template <std::derived_from<CProjectNode> Class>
    Node(const Handle<Class>& handle) : Handle(handle.object())
    {}

    eNodeType type() const { return object() ? object()->GetType() : eNodeNone; }
    long id() const { return object() ? object()->GetID() : 0; }
    Node parent() const { return object() ? object()->GetParent() : nullptr; }

    /// The children of one kind, in order: `node.children<vantrel::Menu>()`.
    template <class Item>
    Nodes<Item> children() const
    {
        return Nodes<Item>(object());
    }

    /// The node as what it is, `node.as<vantrel::Menu>()`; empty when it is something else.
    template <class Item>
    Item as() const
    {
        return Item(detail::As<Item>(object()));
    }

    /// The nearest node of that kind above this one.
    template <class Item>
    Item above() const
    {
        for (Node node = parent(); node; node = node.parent()) {
            if (const Item item = node.as<Item>())
                return item;
        }
        return {};
    }
};

/// A node of class `Class`, which has the type `Type`.
template <class Class, eNodeType Type>
class NodeHandle : public Handle<Class>
{
public:
    using Handle<Class>::Handle;
    static constexpr eNodeType kType = Type;

    long id() const { return this->object() ? this->object()->GetID() : 0; }
    /// The project that the node stands in; empty for none. Defined in values/Project.h.
    Project project() const;

protected:
    /// The fixed child at `position`, when it is an `Item`.
    template <class Item>
    Item Child(int position) const
    {
        return this->object() ? Item(detail::As<Item>(this->object()->GetChild(position))) : Item();
    }
};

} // namespace vantrel
