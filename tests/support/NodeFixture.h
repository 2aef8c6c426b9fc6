#pragma once

#include "project/ProjectNode.h"
#include "support/XmlFixture.h"

#include <map>
#include <string>

/// Restores the counter of IDs, which lives as long as the process.
class IdCounterGuard
{
public:
    explicit IdCounterGuard(unsigned long next) { CProjectNode::sm_dwNextID = next; }
    IdCounterGuard(const IdCounterGuard&) = delete;
    IdCounterGuard& operator=(const IdCounterGuard&) = delete;
    ~IdCounterGuard() { CProjectNode::sm_dwNextID = m_former; }

private:
    unsigned long m_former = CProjectNode::sm_dwNextID;
};

/// Reads a node from the root of a document given as text.
inline vantrel::Status ReadNode(CProjectNode& node, std::string_view text)
{
    const XmlText xml{ text };
    return node.Read(vantrel::AsNode(xml.root()));
}

/// A node's own element as text on one line.
inline std::string WrittenNode(CProjectNode& node, const char* name = "N", long native = 0)
{
    const EmptyXml xml{ name };
    EXPECT_EQ(node.Write(vantrel::AsNode(xml.root()), native), vantrel::status::kOk);
    return TextOf(xml.root());
}

/// The same through the attribute map; both ways must give the same.
inline std::string MappedNode(CProjectNode& node, const char* name = "N", bool native = false)
{
    std::map<std::string, std::string> attributes;
    EXPECT_EQ(node.FillAttributeMap(attributes, native), vantrel::status::kOk);
    const EmptyXml xml{ name };
    EXPECT_EQ(node.WriteNodeAttributes(vantrel::AsNode(xml.root()), attributes),
              vantrel::status::kOk);
    return TextOf(xml.root());
}

/// The attributes of the root of a document given as text, as `ReadXML` collects them.
inline std::map<std::string, std::string> AttributesOf(std::string_view text)
{
    const XmlText xml{ text };
    std::map<std::string, std::string> attributes;
    for (const xmlAttr* a = xml.root()->properties; a; a = a->next) {
        std::string store;
        attributes[vantrel::Chars(a->name)] = vantrel::ResolvedText(a->children, store);
    }
    return attributes;
}
