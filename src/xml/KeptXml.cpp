#include "xml/KeptXml.h"

#include "core/XmlText.h"
#include "xml/XmlValue.h"

#include <libxml/parserInternals.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

using std::string;

namespace vantrel {

namespace {

bool IsDataTypes(const xmlNs* ns)
{
    return ns->prefix && ns->href && std::string_view(Chars(ns->prefix)) == "dt" &&
           std::string_view(Chars(ns->href)) == kDataTypesUri;
}

/// True for what stands for "xml", which no document declares.
bool IsBuiltIn(const xmlNs* ns)
{
    return ns->prefix && std::string_view(Chars(ns->prefix)) == "xml";
}

/// Copies a subtree with plain names, and notes which prefixes it uses without declaring them.
class PlainCopier
{
public:
    explicit PlainCopier(xmlDoc* target) : m_target(target) {}

    XmlNodePtr Copy(const xmlNode* node)
    {
        if (!IsElement(node))
            return CopyLeaf(node);
        XmlNodePtr copy = CopyElement(node);
        if (copy)
            DeclareUsed(copy.get());
        return copy;
    }

private:
    XmlNodePtr CopyElement(const xmlNode* element)
    {
        XmlNodePtr copy{ xmlNewDocNode(m_target, nullptr,
                                       XmlChars(PlainName(element->name, element->ns)), nullptr) };
        if (!copy)
            return nullptr;
        for (const xmlNs* ns = element->nsDef; ns; ns = ns->next)
            AddDeclaration(copy.get(), ns);
        for (const xmlAttr* attribute = element->properties; attribute;
             attribute = attribute->next) {
            const string value{ ResolvedText(attribute->children, m_store) };
            (void)AddAttribute(copy.get(), PlainName(attribute->name, attribute->ns), value);
        }
        for (const xmlNode* child = element->children; child;)
            child = CopyChild(child, copy.get());
        return copy;
    }

    /// Copies a child, texts and references that stand side by side as one. Returns the next one.
    const xmlNode* CopyChild(const xmlNode* child, xmlNode* parent)
    {
        const xmlNode* next = child->next;
        XmlNodePtr copy;
        if (IsElement(child)) {
            copy = CopyElement(child);
        } else if (IsText(child) && !(next && IsText(next))) {
            copy = CopyLeaf(child);
        } else if (IsText(child)) {
            string text;
            for (next = child; next && IsText(next); next = next->next)
                AppendText(text, *next);
            copy = text.empty() ? nullptr : NewText(m_target, text.c_str());
        } else {
            copy = CopyLeaf(child);
        }
        if (copy)
            xmlAddChild(parent, copy.release());
        return next;
    }

    XmlNodePtr CopyLeaf(const xmlNode* node)
    {
        if (!node)
            return nullptr;
        switch (node->type) {
        case XML_TEXT_NODE:
            return NewText(m_target, node->content ? Chars(node->content) : "");
        case XML_CDATA_SECTION_NODE:
        case XML_COMMENT_NODE:
        case XML_PI_NODE:
            return XmlNodePtr{ xmlDocCopyNode(const_cast<xmlNode*>(node), m_target, 0) };
        case XML_ENTITY_REF_NODE: {
            string text;
            AppendText(text, *node);
            return text.empty() ? nullptr : NewText(m_target, text.c_str());
        }
        default:
            return nullptr;
        }
    }

    static bool IsText(const xmlNode* node)
    {
        return node->type == XML_TEXT_NODE || node->type == XML_ENTITY_REF_NODE;
    }

    /// A few references may unfold without bound, so what they add to one copy is limited.
    void AppendText(string& text, const xmlNode& node)
    {
        if (node.type == XML_TEXT_NODE) {
            text += node.content ? Chars(node.content) : "";
            return;
        }
        xmlNode alone = node;
        alone.next = nullptr;
        const std::string_view unfolded = ResolvedText(&alone, m_store);
        if (m_unfolded + unfolded.size() > kMostUnfolded)
            return;
        m_unfolded += unfolded.size();
        text += unfolded;
    }

    /// The name as it stands in a file; the view is good until the next call.
    const char* PlainName(const xmlChar* name, xmlNs* ns)
    {
        if (!ns)
            return Chars(name);
        if (ns != m_lastUsed) {
            m_lastUsed = ns;
            if (!IsDataTypes(ns) && m_known.insert(ns).second)
                m_used.push_back(ns);
        }
        if (!ns->prefix)
            return Chars(name);
        m_name = Chars(ns->prefix);
        m_name += ':';
        m_name += Chars(name);
        return m_name.c_str();
    }

    void AddDeclaration(xmlNode* element, const xmlNs* ns)
    {
        const std::string_view uri = ns->href ? Chars(ns->href) : "";
        m_declared.insert(ns);
        if (IsDataTypes(ns))
            return; // the root of every file declares it
        string name = "xmlns";
        if (ns->prefix)
            name.append(":").append(Chars(ns->prefix));
        if (!xmlHasProp(element, XmlChars(name.c_str())))
            (void)AddAttribute(element, name.c_str(), string(uri));
    }

    /// Declares what is used and was declared further up, before all attributes: there the next
    /// load finds every declaration, and a save that follows must look the same.
    void DeclareUsed(xmlNode* top)
    {
        xmlAttr* const attributes = std::exchange(top->properties, nullptr);
        for (const xmlNs* ns : m_used) {
            if (!IsBuiltIn(ns) && !m_declared.contains(ns))
                AddDeclaration(top, ns);
        }
        if (!attributes)
            return;
        xmlAttr* last = top->properties;
        while (last && last->next)
            last = last->next;
        (last ? last->next : top->properties) = attributes;
        attributes->prev = last;
    }

    xmlDoc* m_target;
    const xmlNs* m_lastUsed = nullptr;
    std::vector<const xmlNs*> m_used; ///< in the order of their first use
    std::set<const xmlNs*> m_known;   ///< the same
    std::set<const xmlNs*> m_declared;
    static constexpr std::size_t kMostUnfolded = 1'000'000;
    std::size_t m_unfolded = 0;
    string m_name;
    string m_store;
};

/// Stands in `_private` of a document to which subtrees may be lent. Its `psvi`, which nothing else
/// uses in a tree, is the last subtree that was lent, and `_private` of that one's own document the
/// subtree before.
constexpr char kBorrower = 0;

/// The same for a document that is given away. The two differ by address.
constexpr char kGift = 0;

/// The node behind `node` in document order below `top`, or null.
xmlNode* NextBelow(const xmlNode* top, xmlNode* node)
{
    if (IsElement(node) && node->children)
        return node->children;
    while (node != top && !node->next)
        node = node->parent;
    return node == top ? nullptr : node->next;
}

/// True for an attribute that needs nothing but another name to stand in another document.
bool IsMovable(const xmlAttr& attribute)
{
    const xmlNode* value = attribute.children;
    const bool plainValue = !value || (value->type == XML_TEXT_NODE && !value->next);
    return plainValue && attribute.atype != XML_ATTRIBUTE_ID &&
           (!attribute.ns || IsDataTypes(attribute.ns));
}

bool IsMovable(const xmlNode& node)
{
    if (node.type != XML_ELEMENT_NODE)
        return node.type == XML_TEXT_NODE || node.type == XML_CDATA_SECTION_NODE ||
               node.type == XML_COMMENT_NODE;
    if (node.ns || node.nsDef)
        return false;
    for (const xmlAttr* attribute = node.properties; attribute; attribute = attribute->next) {
        if (!IsMovable(*attribute))
            return false;
    }
    return true;
}

bool IsMovableTree(xmlNode* top)
{
    for (xmlNode* node = top; node; node = NextBelow(top, node)) {
        if (!IsMovable(*node))
            return false;
    }
    return true;
}

/// Gives an attribute of the namespace "dt" the plain name that it has in the file.
void MakeNamePlain(xmlAttr& attribute, xmlDict* dict)
{
    xmlChar* old = const_cast<xmlChar*>(attribute.name);
    if (dict)
        attribute.name = xmlDictQLookup(dict, attribute.ns->prefix, old);
    else
        attribute.name = xmlBuildQName(old, attribute.ns->prefix, nullptr, 0);
    if (!dict || !xmlDictOwns(dict, old))
        const XmlTextPtr released{ old };
    attribute.ns = nullptr;
}

void MoveToDocument(xmlNode& node, xmlDoc* doc)
{
    node.doc = doc;
    if (node.type != XML_ELEMENT_NODE)
        return;
    for (xmlAttr* attribute = node.properties; attribute; attribute = attribute->next) {
        attribute->doc = doc;
        if (attribute->children)
            attribute->children->doc = doc;
        if (attribute->ns)
            MakeNamePlain(*attribute, doc->dict);
    }
}

/// Frees a subtree in place from what belongs to its document: strings of the dictionary,
/// namespaces that are declared further up, references to entities. All that can fail comes first.
class XmlDetacher
{
public:
    explicit XmlDetacher(xmlNode* top) : m_top(top), m_dict(top->doc ? top->doc->dict : nullptr) {}

    Status Prepare()
    {
        for (xmlNode* node = m_top; node; node = NextBelow(m_top, node)) {
            PrepareNode(*node);
            if (node->type != XML_ELEMENT_NODE)
                continue;
            for (xmlNs* ns = node->nsDef; ns; ns = ns->next)
                m_inside.insert(ns);
            PrepareName(node->name, node->ns);
            for (xmlAttr* attribute = node->properties; attribute; attribute = attribute->next) {
                PrepareName(attribute->name, attribute->ns);
                for (xmlNode* part = attribute->children; part; part = part->next)
                    PrepareNode(*part);
            }
        }
        return m_complete ? status::kOk : status::kNoMemory;
    }

    void Finish()
    {
        xmlDoc* const doc = m_top->doc;
        for (xmlNode* node = m_top; node; node = NextBelow(m_top, node)) {
            for (xmlAttr* attribute = IsElement(node) ? node->properties : nullptr; attribute;
                 attribute = attribute->next) {
                if (attribute->atype == XML_ATTRIBUTE_ID && doc)
                    (void)xmlRemoveID(doc, attribute); // it need not be listed
                attribute->doc = nullptr;
                for (xmlNode* part = attribute->children; part; part = part->next)
                    part->doc = nullptr;
            }
            node->doc = nullptr;
        }
        xmlUnlinkNode(m_top);
        for (auto& [content, text] : m_contents)
            *content = text.release();
        for (auto& [name, text] : m_names) {
            Release(*name);
            *name = text.release();
        }
        for (const auto& [place, ns] : m_namespaces)
            *place = ns;
        for (auto& [outside, ns] : m_declarations) {
            ns->next = m_top->nsDef;
            m_top->nsDef = ns.release();
        }
        for (auto& [node, text] : m_references) {
            Release(node->name);
            node->type = XML_TEXT_NODE;
            node->name = xmlStringText;
            node->children = node->last = nullptr;
            node->content = text.release();
        }
    }

private:
    template <class Place>
    using Texts = std::vector<std::pair<Place, XmlTextPtr>>;

    XmlTextPtr NewString(const xmlChar* text)
    {
        XmlTextPtr copy{ xmlStrdup(text) };
        m_complete = m_complete && copy;
        return copy;
    }

    void Release(const xmlChar* name) const
    {
        if (!IsShared(name))
            const XmlTextPtr released{ const_cast<xmlChar*>(name) };
    }

    bool IsShared(const xmlChar* text) const
    {
        return text && m_dict && xmlDictOwns(m_dict, text) != 0;
    }

    /// What no name needs: the content of a text, comment or instruction.
    void PrepareNode(xmlNode& node)
    {
        if (node.type == XML_ENTITY_REF_NODE) {
            xmlNode alone = node;
            alone.next = nullptr;
            const string text{ ResolvedText(&alone, m_store) };
            m_references.emplace_back(&node, NewString(XmlChars(text.c_str())));
        } else if (node.type != XML_ELEMENT_NODE) {
            if (IsShared(node.content))
                m_contents.emplace_back(&node.content, NewString(node.content));
            if (node.type == XML_PI_NODE && IsShared(node.name))
                m_names.emplace_back(&node.name, NewString(node.name));
        }
    }

    void PrepareName(const xmlChar*& name, xmlNs*& ns)
    {
        const bool isOutside = ns && !m_inside.contains(ns);
        if (isOutside && (IsDataTypes(ns) || IsBuiltIn(ns))) { // nobody need declare those
            XmlTextPtr plain{ xmlBuildQName(name, ns->prefix, nullptr, 0) };
            m_complete = m_complete && plain;
            m_names.emplace_back(&name, std::move(plain));
            m_namespaces.emplace_back(&ns, nullptr);
            return;
        }
        if (IsShared(name))
            m_names.emplace_back(&name, NewString(name));
        if (isOutside)
            m_namespaces.emplace_back(&ns, Declaration(ns));
    }

    /// What the top of the subtree declares in place of `ns`.
    xmlNs* Declaration(const xmlNs* ns)
    {
        XmlNsPtr& made = m_declarations[ns];
        if (!made)
            made.reset(xmlNewNs(nullptr, ns->href, ns->prefix));
        m_complete = m_complete && made;
        return made.get();
    }

    xmlNode* m_top;
    xmlDict* m_dict;
    bool m_complete = true;
    string m_store;
    std::set<const xmlNs*> m_inside; ///< declared in the subtree
    Texts<const xmlChar**> m_names;
    Texts<xmlChar**> m_contents; ///< in place of texts of the dictionary
    Texts<xmlNode*> m_references;
    std::vector<std::pair<xmlNs**, xmlNs*>> m_namespaces;
    std::map<const xmlNs*, XmlNsPtr> m_declarations;
};

/// An empty document that shares the dictionary of `source`.
XmlDocPtr MakeHome(const xmlDoc* source)
{
    XmlDocPtr home{ xmlNewDoc(XmlChars("1.0")) };
    if (!home)
        return nullptr;
    // Without an encoding the characters of attributes would be written as references.
    home->encoding = xmlStrdup(XmlChars("UTF-8"));
    home->dict = source->dict;
    if (home->dict)
        xmlDictReference(home->dict);
    return home;
}

xmlNode* AsParent(xmlDoc* doc)
{
    return reinterpret_cast<xmlNode*>(doc); // as libxml2 does: the first fields are the same
}

bool IsRootOfDocument(const xmlNode* node)
{
    return node->parent && node->parent->type == XML_DOCUMENT_NODE;
}

} // namespace

void ReleaseKeptXml::operator()(xmlNode* node) const
{
    const XmlDocPtr home{ IsRootOfDocument(node) ? node->doc : nullptr };
    const XmlNodePtr alone{ home ? nullptr : node };
}

XmlNodePtr CopyXml(const xmlNode* node)
{
    return PlainCopier(nullptr).Copy(node);
}

KeptXmlPtr KeepXml(xmlNode* node)
{
    const bool isGiven = node && node->doc && node->doc->_private == &kGift;
    return isGiven ? TakeXml(node) : KeptXmlPtr{ CopyXml(node).release() };
}

Status DetachXml(xmlNode* node)
{
    XmlDetacher detacher(node);
    const Status prepared = detacher.Prepare();
    if (!Failed(prepared))
        detacher.Finish();
    return prepared;
}

KeptXmlPtr TakeXml(xmlNode* node)
{
    if (!node)
        return nullptr;
    XmlDocPtr home = node->doc && IsMovableTree(node) ? MakeHome(node->doc) : nullptr;
    if (!home) {
        KeptXmlPtr copy{ CopyXml(node).release() }; // needs the declarations around the node
        xmlUnlinkNode(node);
        const XmlNodePtr original{ node };
        return copy;
    }
    xmlUnlinkNode(node);
    for (xmlNode* moved = node; moved; moved = NextBelow(node, moved))
        MoveToDocument(*moved, home.get());
    home->children = home->last = node;
    node->parent = AsParent(home.release());
    return KeptXmlPtr{ node };
}

Status AppendXmlCopy(xmlNode* parent, const xmlNode* node)
{
    if (!parent)
        return status::kNullPointer;
    XmlNodePtr copy = PlainCopier(parent->doc).Copy(node);
    if (!copy)
        return status::kNullPointer;
    xmlAddChild(parent, copy.release());
    return status::kOk;
}

Status AppendKeptXml(xmlNode* parent, const KeptXmlPtr& kept)
{
    const bool mayBorrow = parent && parent->doc && parent->doc->_private == &kBorrower;
    if (!mayBorrow || !kept || !IsRootOfDocument(kept.get()))
        return AppendXmlCopy(parent, kept.get());
    // Linked by hand: `xmlAddChild` would move the whole subtree to the other document.
    kept->parent = parent;
    kept->prev = parent->last;
    (parent->last ? parent->last->next : parent->children) = kept.get();
    parent->last = kept.get();
    kept->doc->_private = std::exchange(parent->doc->psvi, kept.get());
    return status::kOk;
}

XmlGift::XmlGift(xmlDoc* doc) : m_doc(doc)
{
    m_doc->_private = const_cast<char*>(&kGift);
}

XmlGift::~XmlGift()
{
    m_doc->_private = nullptr;
}

XmlLoan::XmlLoan(xmlDoc* doc) : m_doc(doc)
{
    m_doc->_private = const_cast<char*>(&kBorrower);
    m_doc->psvi = nullptr;
    if (!m_doc->dict)
        m_doc->dict = xmlDictCreate(); // names and short texts are stored once
}

XmlLoan::~XmlLoan()
{
    while (m_doc->psvi) {
        xmlNode* lent = static_cast<xmlNode*>(m_doc->psvi);
        m_doc->psvi = std::exchange(lent->doc->_private, nullptr);
        xmlUnlinkNode(lent);
        lent->parent = AsParent(lent->doc);
    }
    m_doc->_private = nullptr;
}

} // namespace vantrel
