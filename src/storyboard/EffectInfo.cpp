#include "storyboard/EffectInfo.h"

#include "storyboard/PersistParts.h"
#include "storyboard/SourceFileObject.h"
#include "xml/KeptXml.h"
#include "xml/MemberTable.h"

using namespace vantrel;

namespace {

using Effect = CEffectInfoImpl;

void SaveData(const MemberPlace& place, const char* name, const Effect& effect)
{
    xmlNode* element = AddMember(place, name);
    if (effect.m_data && effect.m_data == effect.m_loadedData.get())
        (void)AppendKeptXml(element, effect.m_loadedData); // fails for want of memory alone
    else if (effect.m_data)
        (void)AppendXmlCopy(element, effect.m_data);
}

void LoadData(xmlNode* element, Effect& effect)
{
    if (!element)
        return;
    if (xmlNode* content = NextElement(element->children)) {
        effect.m_loadedData = TakeXml(content);
        effect.m_data = effect.m_loadedData.get();
    }
    // The subtree knows its kind better; the document that is read learns of it too. Without a
    // good "uuid" the kind stays as it is.
    (void)XMLHelpers<void>::LoadUUIDNode(effect.m_data, "uuid", "", effect.m_effectGUID);
    AddValue<typed::Uuid>(element->parent, "effectGUID", effect.m_effectGUID);
}

/// The kind as the next load has it: the data knows it better.
void SaveKind(const MemberPlace& place, const char* name, const Effect& effect)
{
    _GUID kind = effect.m_effectGUID;
    (void)XMLHelpers<void>::LoadUUIDNode(effect.m_data, "uuid", "", kind); // it may have none
    AddValue<typed::Uuid>(place.node, name, kind);
}

void SaveAlphaFile(const MemberPlace& place, const char* name, const Effect& effect)
{
    if (effect.m_alphaFile)
        (void)effect.m_alphaFile->SaveXML(AddElement(place.node, name)); // can't fail on a node
}

void LoadAlphaFile(xmlNode* element, Effect& effect)
{
    if (!element)
        return;
    effect.m_alphaFile = std::make_unique<CSourceFileObject>();
    (void)effect.m_alphaFile->LoadXML(element); // what is missing keeps its default
}

void LoadThumbnailSize(xmlNode* element, Effect& effect)
{
    (void)effect.LoadThumbnail(effect.m_effectID); // only an older file has one
    member::LoadField<typed::Long, &Effect::m_thumbnailSize>(element, effect);
}

void LoadThumbnailData(xmlNode* element, Effect& effect)
{
    LoadThumbnailBytes(element, effect.m_thumbnail, effect.m_thumbnailSize);
}

using namespace vantrel::member;

// The elements of "effectInfo". The creator gives the id, so the file's is not taken over.
constexpr MemberRow<Effect> kEffectInfo[] = {
    { "effectID", SaveField<typed::ULong, &Effect::m_effectID>, nullptr },
    ULong<&Effect::m_layer>("layer"),
    ULong<&Effect::m_groupID>("GroupID"),
    { "effectGUID", SaveKind, LoadField<typed::Uuid, &Effect::m_effectGUID> },
    BoolOrFalse<&Effect::m_useOffset>("useOffset"),
    BoolOrFalse<&Effect::m_isPanZoom>("isPanZoom"),
    { "data", SaveData, LoadData },
    { "alphaFile", SaveAlphaFile, LoadAlphaFile },
    { "thumbnailSize", nullptr, LoadThumbnailSize },
    { "thumbnail", nullptr, LoadThumbnailData },
};

} // namespace

CEffectInfoImpl::CEffectInfoImpl() = default;
CEffectInfoImpl::~CEffectInfoImpl() = default;

Status CEffectInfoImpl::PutEffectID(long id)
{
    m_effectID = id;
    return status::kOk;
}

Status CEffectInfoImpl::PutData(_xmlNode* node, bool)
{
    m_data = node;
    return status::kOk;
}

Status CEffectInfoImpl::LoadThumbnail(long)
{
    m_thumbnailSize = 0;
    m_thumbnail.reset();
    return status::kOk;
}

Status CEffectInfoImpl::SaveThumbnail(long)
{
    return status::kOk;
}

Status CXMLEffectInfoImpl::SaveMembers()
{
    SaveTable(kEffectInfo);
    return status::kOk;
}

Status CXMLEffectInfoImpl::LoadMembers()
{
    LoadTable(kEffectInfo);
    return status::kOk;
}
