#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "project/NodeType.h"
#include "xml/DsXml.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

class CResourceLoader;

/// The base of every object of a disc project: a place in one tree (a parent, an ordered list of
/// children), an ID that stays unique over save and load, and the way between the node's state and
/// the attributes of one XML element.
///
/// A node knows its own element's attributes only; `CXMLPersistor` and `CDSXMLDataLoader` walk the
/// tree. Nodes are for one thread at a time and can't be copied.
///
/// Ownership: a child added with `AdoptChild` is released with its parent: so are the fixed children
/// that a class makes and all that a load brings. A child added with `AddChild` stays the caller's
/// and may stand on the stack. A node that dies leaves its parent's list; a parent that dies sets
/// the parent of the children that it does not own to null.
class VANTREL_API CProjectNode
{
public:
    explicit CProjectNode(eNodeType type);
    CProjectNode(const CProjectNode&) = delete;
    CProjectNode& operator=(const CProjectNode&) = delete;
    virtual ~CProjectNode();

    /// Takes over the attributes of an element. Null gives `status::kNotAvailable`, an element
    /// without attributes 1 and no change.
    virtual vantrel::Status Read(IXMLDOMNode* node);

    /// Puts this node's attributes on an element. `native` other than 0 asks menus and buttons for
    /// their native form. Null gives `status::kNotAvailable`.
    virtual vantrel::Status Write(IXMLDOMNode* node, long native);

    /// Tells the parents, up to the root, that something changed. No flag is stored.
    virtual void SetDirtyFlag();

    /// The element name that this node asks for; empty leaves it to the persist table.
    virtual std::string GetObjectTagName();

    /// Hooks for an application; the library doesn't call them.
    virtual int NodeInserted();
    virtual int RemovingNode();

    /// Adds this node's attributes, name to text, to the map. The order of the map is the order of
    /// the attributes in a file.
    virtual vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                             bool native) = 0;

    /// Takes over the attributes that the map has and leaves everything else as it is.
    virtual vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) = 0;

    /// The body of `Read`: keeps the document's path, then parses the attributes that have no
    /// prefix.
    virtual vantrel::Status ReadXML(IXMLDOMNode* node);

    /// The body of `Write`.
    virtual vantrel::Status WriteXML(IXMLDOMNode* node, long native);

    /// Sets one attribute for each entry, in the map's order, with values made fit for a file. A
    /// name that XML can't have is reported on standard output and gives `status::kNullPointer`.
    vantrel::Status WriteNodeAttributes(IXMLDOMNode* node,
                                        const std::map<std::string, std::string>& attributes);

    /// Resolves a reference "stringRef:Table.Key" through "ThemeStrings.xml" in the content folder of
    /// the document that this node was read from. True with the string in `out`; false, with `source`
    /// itself in `out`, when it is none or doesn't resolve. A node that was never read gives false
    /// and leaves `out` alone.
    bool ParseResString(std::string source, std::string* out);

    /// @name Tree
    /// @{

    /// Appends `child`, which stays the caller's, and takes it out of the list that it stood in.
    /// With `assignID` a child without an ID gets a new one. False, and nothing done, for null and
    /// for a node that this one hangs below.
    bool AddChild(CProjectNode* child, bool assignID);

    /// Appends `child` and owns it from now on. Hands out the child, or null when it is refused.
    CProjectNode* AdoptChild(std::unique_ptr<CProjectNode> child, bool assignID);

    /// As `AddChild`, but at `position`, counted from 0; a position beyond the end appends. What this
    /// node owns already it goes on owning.
    bool InsertChild(CProjectNode* child, int position, bool assignID);

    /// Moves a child to another position, both counted from 0. False for a position outside.
    bool MoveChild(int from, int to);

    /// Takes one child out of the list and hands it out when this node owned it; null for a child of
    /// the caller's, and for a node that is no child, which stays where it is.
    std::unique_ptr<CProjectNode> ReleaseChild(CProjectNode* child);

    /// Takes the children that `which` names out of the list, in one pass, and hands out those that
    /// this node owned: they go with the result.
    std::vector<std::unique_ptr<CProjectNode>> ReleaseChildren(
        const std::function<bool(CProjectNode&)>& which);

    /// The child at `index`, counted from 0, or null.
    CProjectNode* GetChild(int index);
    int GetNumChildren() const;

    CProjectNode* GetParent() const { return m_parent; }
    /// Stores the parent alone; the list of children is `AddChild`'s affair.
    void SetParent(CProjectNode* parent) { m_parent = parent; }

    /// The first direct child of that type whose element name isn't another than `name`; an empty
    /// name, on either side, is no other. Null when there is none.
    CProjectNode* FindChildByType(eNodeType type, std::string name);

    /// The first direct child of that ID, its position in `index` when that is not null.
    CProjectNode* FindChildByID(unsigned long id, int* index);

    /// Those direct children of that ID that take it to a file (see `IsTaken`), in the order of the
    /// list. Finds them without a walk over it.
    std::vector<CProjectNode*> FindChildrenByID(long id);
    /// @}

    /// @name Identity
    /// @{
    eNodeType GetType() const { return m_type; }

    /// 0 means none yet.
    long GetID() const { return m_id; }

    /// Stores the ID and raises the counter above it; one below 0 leaves the counter alone. Duplicates
    /// are not looked for.
    void SetID(long id);

    /// Hands out the next ID.
    static long GetNewID();

    /// True when a node of this one's tree other than `but` has that ID and takes it to a file: a
    /// title, menu, data file, button, text or overlay. The first question makes an index of the
    /// tree, which what is linked, taken out or renumbered later is entered in.
    bool IsTaken(long id, const CProjectNode* but);

    /// A free name for the application's use.
    void SetName(std::string name);
    const std::string& GetName() const;

    /// The absolute path of the document that the node was last read from, or else the nearest of its
    /// parents; empty for what was made in memory.
    const std::string& DocumentPath() const;
    /// @}

    /// The ID that is handed out next, in the whole process. Starts at 1 and is never reset.
    static unsigned long sm_dwNextID;

protected:
    /// Remembers where the document that is read from lies. `doc` may be null.
    void KeepDocumentPath(const _xmlDoc* doc);

private:
    bool Link(CProjectNode* child, std::size_t position, bool assignID);
    void Detach(CProjectNode* child);
    bool HangsBelow(const CProjectNode* node) const;
    bool MakeRoom(std::size_t position);
    void PutInto(CProjectNode* child, std::size_t position);
    void TakeOut(std::size_t position);
    std::span<CProjectNode*> Children();
    CProjectNode& Root();
    struct IDIndex;
    const IDIndex& Index();
    template <class Change>
    void ChangeIndex(const CProjectNode& node, bool deep, Change change);
    void List(const CProjectNode& node, bool deep);
    void Unlist(const CProjectNode& node, bool deep);
    vantrel::Status ReadAttributesByMap(const _xmlNode* element);

    std::shared_ptr<const std::string> m_documentPath; ///< shared with the parent where equal
    std::unique_ptr<CResourceLoader> m_pResLoader;     ///< made at the first need
    long m_id = 0;
    eNodeType m_type;
    bool m_owned = false; ///< released by `m_holder`
    std::string m_name;
    std::uint32_t m_firstChild = 0;        ///< free slots before the first child
    std::vector<CProjectNode*> m_children; ///< owned where the child says so
    CProjectNode* m_parent = nullptr;      ///< not owned
    CProjectNode* m_holder = nullptr;      ///< whose list this node stands in; not owned
    std::unique_ptr<IDIndex> m_ids;        ///< of a root that was asked
};
