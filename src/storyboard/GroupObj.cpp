#include "storyboard/GroupObj.h"

#include "storyboard/KeptElement.h"
#include "xml/MemberTable.h"

#include <utility>

using std::string;
using namespace vantrel;

namespace {

using namespace vantrel::member;

// The elements of "group".
constexpr MemberRow<CGroupObject> kGroup[] = {
    Long<&CGroupObject::m_id>("id"),
    Long<&CGroupObject::m_start>("start"),
    Long<&CGroupObject::m_end>("end"),
    String<&CGroupObject::m_name>("name"),
    String<&CGroupObject::m_description>("description"),
};

/// What a save writes of a group that has nothing else.
XmlNodePtr Written(const CGroupObject& group)
{
    XmlNodePtr element{ xmlNewNode(nullptr, XmlChars("group")) };
    SaveRows({ element.get() }, kGroup, group);
    return element;
}

} // namespace

Status CGroupObject::GetGroupInfo(long* id, long* start, long* end, string* name,
                                  string* description) const
{
    const auto copy = [](auto* out, const auto& value) {
        if (out)
            *out = value;
    };
    copy(id, m_id);
    copy(start, m_start);
    copy(end, m_end);
    copy(name, m_name);
    copy(description, m_description);
    return status::kOk;
}

Status CGroupObject::SetGroupInfo(long id, long start, long end, string name, string description)
{
    m_id = id;
    m_start = start;
    m_end = end;
    m_name = std::move(name);
    m_description = std::move(description);
    return status::kOk;
}

Status CGroupObject::SetContent(_xmlNode* element)
{
    if (element && !IsElement(element))
        return status::kBadArgument;
    m_content = KeepWhole(element);
    return status::kOk;
}

Status CGroupObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    if (!save) {
        LoadRows({ node }, kGroup, *this);
        m_content = KeepForeign(node, Written(*this).get());
    } else if (!m_content) {
        SaveRows({ node }, kGroup, *this);
    } else {
        CGroupObject was;
        LoadRows({ m_content.get() }, kGroup, was);
        SaveOver(node, m_content.get(), Written(was).get(), Written(*this).get());
    }
    return status::kOk;
}
