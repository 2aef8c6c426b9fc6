#include "storyboard/NativeInfo.h"

#include "storyboard/AudioObject.h"
#include "xml/MemberTable.h"

using namespace vantrel;

namespace {

void SaveNativeAudio(const MemberPlace& place, const char* name, const CNativeInfoImpl& info)
{
    if (info.m_nativeAudio)
        (void)info.m_nativeAudio->SaveXML(AddMember(place, name)); // can't fail on a node
}

void LoadNativeAudio(xmlNode* element, CNativeInfoImpl& info)
{
    if (!element)
        return;
    info.m_nativeAudio = std::make_unique<CAudioObject>();
    (void)info.m_nativeAudio->put_ParentProduction(info.GetSBD());
    (void)info.m_nativeAudio->LoadXML(element); // what is missing keeps its default
}

// The elements of "nativeinfo".
constexpr MemberRow<CNativeInfoImpl> kNativeInfo[] = {
    member::Bool<&CNativeInfoImpl::m_canUseNativeAudio>("canUseNativeAudio"),
    { "nativeAudio", SaveNativeAudio, LoadNativeAudio },
};

} // namespace

CNativeInfoImpl::CNativeInfoImpl() = default;
CNativeInfoImpl::~CNativeInfoImpl() = default;

bool CNativeInfoImpl::Internal_PutUseNativeAudio(bool use)
{
    m_canUseNativeAudio = use;
    return m_canUseNativeAudio;
}

Status CXMLNativeInfoImpl::SaveMembers()
{
    SaveTable(kNativeInfo);
    return status::kOk;
}

Status CXMLNativeInfoImpl::LoadMembers()
{
    LoadTable(kNativeInfo);
    return status::kOk;
}
