#include "storyboard/GroupObj.h"

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

Status CGroupObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    if (save) {
        m_content.Save(node, [&] { SaveRows({ node }, kGroup, *this); });
    } else {
        LoadRows({ node }, kGroup, *this);
        m_content.Load(node, { "key", "type" }, { "id", "start", "end", "name", "description" });
    }
    return status::kOk;
}
