#include "storyboard/BaseObject.h"
#include "storyboard/MetaData.h"
#include "storyboard/PersistParts.h"
#include "xml/MemberTable.h"

#include <utility>

using std::string;
using namespace vantrel;

namespace {

using Base = CBaseObjectImpl;

void LoadDuration(xmlNode* element, Base& object)
{
    member::LoadField<typed::Double, &Base::m_duration>(element, object);
    object.m_loadedDuration = object.m_duration;
}

void LoadThumbnailSize(xmlNode* element, Base& object)
{
    (void)object.LoadThumbnail(object.m_id); // only an older file has one
    member::LoadField<typed::Long, &Base::m_thumbnailSize>(element, object);
}

void LoadThumbnailData(xmlNode* element, Base& object)
{
    LoadThumbnailBytes(element, object.m_thumbnail, object.m_thumbnailSize);
}

void SaveMetaDataRow(const MemberPlace& place, const char* name, const Base& object)
{
    SaveMetaData(place, name, object.m_metaData);
}

void LoadMetaDataRow(xmlNode* element, Base& object)
{
    LoadMetaData(element, object.m_metaData);
    CompleteMetaData(object.m_metaData);
}

using namespace vantrel::member;

// The elements of "baseObject". The storyboard gives the id, so the file's is not taken over.
constexpr MemberRow<Base> kBaseObject[] = {
    { "Id", SaveField<typed::Long, &Base::m_id>, nullptr },
    Long<&Base::m_panelId>("panelId"),
    { "duration", SaveField<typed::Double, &Base::m_duration>, LoadDuration },
    Long<&Base::m_groupId>("groupId"),
    ULong<&Base::m_flags>("flags"),
    { "thumbnailSize", nullptr, LoadThumbnailSize },
    { "thumbnail", nullptr, LoadThumbnailData },
    Double<&Base::m_thumbnailInPoint>("thumbnailInPoint"),
    Double<&Base::m_speed>("speed"),
    { "metadata", SaveMetaDataRow, LoadMetaDataRow },
};

} // namespace

CBaseObjectImpl::CBaseObjectImpl()
{
    AddTrackStatus(m_metaData);
}

CBaseObjectImpl::~CBaseObjectImpl() = default;

Status CBaseObjectImpl::SetMetaData(string key, _xmlNode* node)
{
    return SetMetaDataEntry(m_metaData, std::move(key), node);
}

Status CBaseObjectImpl::GetMetaData(string key, _xmlNode** out) const
{
    return GetMetaDataEntry(m_metaData, std::move(key), out);
}

Status CBaseObjectImpl::put_ID(long id)
{
    m_id = id;
    return status::kOk;
}

Status CBaseObjectImpl::LoadThumbnail(long id)
{
    m_thumbnailSize = 0;
    m_thumbnail.reset();
    return id < 1 ? status::kNothingDone : status::kOk;
}

Status CBaseObjectImpl::SaveThumbnail(long id)
{
    const bool hasThumbnail = m_thumbnailSize != 0 && m_thumbnail;
    return !hasThumbnail || id < 1 ? status::kNothingDone : status::kOk;
}

Status CXMLBaseObjectImpl::SaveMembers()
{
    CompleteMetaData(m_object.m_metaData);
    SaveTable(kBaseObject);
    return status::kOk;
}

Status CXMLBaseObjectImpl::LoadMembers()
{
    LoadTable(kBaseObject);
    return status::kOk;
}
