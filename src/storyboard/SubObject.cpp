#include "storyboard/SubObject.h"
#include "xml/MemberTable.h"

using namespace vantrel;

namespace {

using namespace vantrel::member;

// The elements of "subObject".
constexpr MemberRow<CSubObjectImpl> kSubObject[] = {
    Int2<&CSubObjectImpl::m_objectType>("type"),
    Double<&CSubObjectImpl::m_startOffset>("startOffset"),
    Double<&CSubObjectImpl::m_endOffset>("endOffset"),
    ULong<&CSubObjectImpl::m_flags>("flags"),
    Bool<&CSubObjectImpl::m_mute>("mute"),
};

} // namespace

Status CSubObjectImpl::put_ID(long id)
{
    m_id = id;
    return status::kOk;
}

Status CSubObjectImpl::put_ObjectType(short type)
{
    m_objectType = type;
    return status::kOk;
}

Status CSubObjectImpl::put_Parent(void* parent)
{
    m_parent = parent;
    return status::kOk;
}

Status CXMLSubObjectImpl::SaveMembers()
{
    SaveTable(kSubObject);
    return status::kOk;
}

Status CXMLSubObjectImpl::LoadMembers()
{
    LoadTable(kSubObject);
    return status::kOk;
}
