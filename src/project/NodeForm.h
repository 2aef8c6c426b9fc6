#pragma once

#include "project/AttributeRows.h"
#include "project/FormedNode.h"

#include <memory>
#include <span>
#include <type_traits>
#include <typeinfo>

namespace vantrel {

/// One of the children that every object of a class has.
struct FixedChild
{
    eNodeType type;
    const char* element; ///< empty where the type says it
    std::unique_ptr<CProjectNode> (*make)(const FixedChild& child);
};

/// The row of a fixed child that is a `Child`: one that is made from its type or its element's name
/// where it serves several.
template <class Child>
constexpr FixedChild Fixed(eNodeType type, const char* element = "")
{
    return { type, element, [](const FixedChild& child) -> std::unique_ptr<CProjectNode> {
                if constexpr (std::is_constructible_v<Child, eNodeType>)
                    return std::make_unique<Child>(child.type);
                else if constexpr (std::is_constructible_v<Child, const char*>)
                    return std::make_unique<Child>(child.element);
                else
                    return std::make_unique<Child>();
            } };
}

/// The file form of one class of nodes, as `FormedNode` runs it.
struct NodeForm
{
    using Map = std::map<std::string, std::string>;

    /// True when the object is of this very class, so that no override is passed over.
    bool (*isExactly)(const CProjectNode& node);
    void (*read)(CProjectNode& node, const _xmlNode* element);
    Status (*write)(const CProjectNode& node, _xmlNode* element, bool native);
    void (*parse)(CProjectNode& node, const Map& attributes);
    void (*fill)(const CProjectNode& node, Map& attributes, bool native);
    std::span<const FixedChild> children;
};

/// The form that a class declares as a private nested struct:
/// - `rows`: the attributes, in reading order;
/// - `children`, where it has any: an array of `FixedChild`, in the order of their positions;
/// - `Finish(node)`, where something is to follow a reading;
/// - `addsToMap`, where filling a map leaves what is in it.
template <class Node, class Form>
struct FormOf
{
    static constexpr AttributeTable<Node> Table()
    {
        if constexpr (requires(Node & node) { Form::Finish(node); })
            return { Form::rows, Form::Finish };
        else
            return { Form::rows };
    }

    static constexpr std::span<const FixedChild> Children()
    {
        if constexpr (requires { Form::children; })
            return Form::children;
        else
            return {};
    }

    static void Fill(const CProjectNode& node, NodeForm::Map& attributes, bool native)
    {
        if constexpr (!requires { Form::addsToMap; })
            attributes.clear();
        Table().Write(static_cast<const Node&>(node), native, attributes);
    }
};

template <class Node, class Form>
inline constexpr NodeForm kFormOf{
    [](const CProjectNode& node) { return typeid(node) == typeid(Node); },
    [](CProjectNode& node, const _xmlNode* element) {
        FormOf<Node, Form>::Table().Read(static_cast<Node&>(node), element);
    },
    [](const CProjectNode& node, _xmlNode* element, bool native) {
        return FormOf<Node, Form>::Table().Write(static_cast<const Node&>(node), native, element);
    },
    [](CProjectNode& node, const NodeForm::Map& attributes) {
        FormOf<Node, Form>::Table().Read(static_cast<Node&>(node), attributes);
    },
    FormOf<Node, Form>::Fill,
    FormOf<Node, Form>::Children(),
};

} // namespace vantrel
