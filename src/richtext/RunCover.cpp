#include "richtext/RunCover.h"

#include "richtext/RichTextTree.h"
#include "richtext/TextAttributes.h"

#include <algorithm>
#include <string_view>

using std::map;
using std::string;
using std::string_view;
using std::vector;

namespace vantrel {

namespace {

class Scanner
{
public:
    Scanner(xmlNode* body, string_view name, const map<string, string>& attributes, RunScan& scan)
        : m_bodyName(NameOf(body)),
          m_name(name),
          m_attributes(attributes),
          m_scan(scan)
    {}

    /// What the elements around a node are to it, up to the nearest body.
    struct Around
    {
        bool covered = false; ///< one has the name
        bool decided = false; ///< one has the name and an attribute
    };

    /// True when runs below `element` are left for an outer element to decide on.
    bool Visit(xmlNode* element, Around around, int level)
    {
        const bool isBody = TagOf(element) == m_bodyName;
        if (isBody)
            around = {};
        const bool isOne = TagOf(element) == m_name;
        const bool decides = isOne && HasValue(element);
        const bool takes = decides || (isOne && !around.decided);
        around = { around.covered || isOne, around.decided || decides };

        bool undecided = false;
        for (xmlNode* child = element->children; child; child = child->next) {
            if (IsRun(child)) {
                m_scan.deepestRun = std::max(m_scan.deepestRun, level + 1);
                m_scan.hasLooseRun |= !around.covered;
                undecided |= around.covered;
            } else if (IsElement(child)) {
                if (TagOf(child) == m_name)
                    m_scan.elements.push_back(child);
                undecided |= Visit(child, around, level + 1);
            }
        }
        if (takes && undecided)
            m_scan.deciding.push_back(element);
        return undecided && !takes && !isBody;
    }

private:
    bool HasValue(const xmlNode* element)
    {
        return std::ranges::any_of(m_attributes, [&](const auto& entry) {
            const xmlAttr* attribute = FindAttribute(element, entry.first);
            return attribute && !ResolvedText(attribute->children, m_store).empty();
        });
    }

    string_view m_bodyName;
    string_view m_name;
    const map<string, string>& m_attributes;
    RunScan& m_scan;
    string m_store;
};

class Coverer
{
public:
    Coverer(xmlNode* body, const string& name, vector<xmlNode*>& made)
        : m_body(body),
          m_name(name),
          m_made(made)
    {}

    struct Content
    {
        bool hasRun = false;
        bool isClosed = false; ///< must not come into a new element
    };

    Content Visit(xmlNode* element, bool covered)
    {
        const string_view tag = TagOf(element);
        const bool isBody = element == m_body || tag == NameOf(m_body);
        const bool isOne = tag == m_name;
        covered = (covered && !isBody) || isOne;

        Content content;
        content.isClosed = isBody || isOne || tag == WS_NODE_NAME_PARA;
        vector<Group> groups(1); // the last one grows until a closed child ends it
        for (xmlNode* child = element->children; child; child = child->next) {
            const Content inner = ContentOf(child, covered);
            content.hasRun |= inner.hasRun;
            content.isClosed |= inner.isClosed;
            if (inner.isClosed)
                groups.emplace_back();
            else if (inner.hasRun)
                groups.back().Add(child);
        }
        if (content.isClosed && !covered)
            EncloseAll(groups);
        return content;
    }

    bool hasFailed() const { return m_hasFailed; }

private:
    struct Group
    {
        xmlNode* first = nullptr;
        xmlNode* last = nullptr;

        void Add(xmlNode* node)
        {
            first = first ? first : node;
            last = node;
        }
    };

    Content ContentOf(xmlNode* child, bool covered)
    {
        if (IsElement(child))
            return Visit(child, covered);
        return { .hasRun = IsRun(child) };
    }

    void EncloseAll(const vector<Group>& groups)
    {
        for (const Group& group : groups) {
            if (!group.first)
                continue;
            if (xmlNode* element = Enclose(group.first, group.last, m_name.c_str()))
                m_made.push_back(element);
            else
                m_hasFailed = true;
        }
    }

    const xmlNode* m_body;
    const string& m_name;
    vector<xmlNode*>& m_made;
    bool m_hasFailed = false;
};

} // namespace

RunScan ScanRuns(xmlNode* body, const string& name, const map<string, string>& attributes)
{
    RunScan scan;
    Scanner(body, name, attributes, scan).Visit(body, {}, 0);
    return scan;
}

Status CoverLooseRuns(xmlNode* body, const string& name, vector<xmlNode*>* made)
{
    Coverer coverer(body, name, *made);
    coverer.Visit(body, false);
    return coverer.hasFailed() ? status::kNullPointer : status::kOk;
}

} // namespace vantrel
