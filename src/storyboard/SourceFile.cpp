#include "storyboard/SourceFile.h"

#include "core/PathUtils.h"
#include "core/Property.h"
#include "storyboard/EffectObject.h"
#include "xml/KeptXml.h"
#include "xml/MemberTable.h"

#include <algorithm>

using std::string;
using namespace vantrel;

namespace {

/// The name as a load has it, so that it stays what it is from the first save on.
void SaveFileName(const MemberPlace& place, const char* name, const CSourceFileImpl& file)
{
    AddMember(place, name, typed::String::kType, CSourceFileImpl::CleanFileName(file.m_fileName));
}

void LoadFileName(xmlNode* element, CSourceFileImpl& file)
{
    file.m_fileName = CSourceFileImpl::CleanFileName(string(ElementText(element)));
}

void SaveTransparency(const MemberPlace& place, const char* name, const CSourceFileImpl& file)
{
    xmlNode* element = AddMember(place, name);
    if (file.m_transparency)
        (void)AppendKeptXml(element, file.m_transparency); // a lost subtree is no harm to the rest
}

void LoadTransparency(xmlNode* element, CSourceFileImpl& file)
{
    const xmlNode* content = element ? NextElement(element->children) : nullptr;
    if (content)
        file.m_transparency.reset(CopyXml(content).release());
}

void SavePanZoom(const MemberPlace& place, const char* name, const CSourceFileImpl& file)
{
    if (file.m_panZoomEffect)
        (void)file.m_panZoomEffect->SaveXML(AddElement(place.node, name)); // can't fail on a node
}

void LoadPanZoom(xmlNode* element, CSourceFileImpl& file)
{
    if (!element)
        return;
    file.m_panZoomEffect = std::make_unique<CEffectObject>();
    (void)file.m_panZoomEffect->LoadXML(element); // what is missing keeps its default
}

using namespace vantrel::member;
using File = CSourceFileImpl;

// The elements of "sourceFile".
constexpr MemberRow<File> kSourceFile[] = {
    { "fileName", SaveFileName, LoadFileName },
    Double<&File::m_inPoint>("inPoint"),
    Double<&File::m_outPoint>("outPoint"),
    Double<&File::m_fileDuration>("fileDuration"),
    Double<&File::m_fileSize>("fileSize"),
    Double<&File::m_dataRate>("dataRate"),
    String<&File::m_volLabel>("volLabel"),
    String<&File::m_cdDrive>("cdDrive"),
    Int2<&File::m_type>("type"),
    Bool<&File::m_repeat>("repeat"),
    Long<&File::m_rotation>("rotation"),
    Bool<&File::m_stretchToFit>("stretchToFit"),
    Double<&File::m_sceneStart>("sceneStart"),
    Double<&File::m_sceneEnd>("sceneEnd"),
    Bool<&File::m_scene>("scene"),
    Long<&File::m_albumID>("albumID"),
    Double<&File::m_aspectRatio>("aspectRatio"),
    ULong<&File::m_interlacedType>("interlacedType"),
    ULong<&File::m_interlacedInfo>("interlacedInfo"),
    Bool<&File::m_isTivo>("isTivo"),
    ULong<&File::m_sourceType3D>("SourceType3D"),
    Bool<&File::m_isLeftEyePrecedence>("isLeftEyePrecedence"),
    { "transparency", SaveTransparency, LoadTransparency },
    { "PanZoomEffect", SavePanZoom, LoadPanZoom },
};

} // namespace

CSourceFileImpl::CSourceFileImpl() = default;
CSourceFileImpl::~CSourceFileImpl() = default;

Status CSourceFileImpl::get_FileName(string* out) const
{
    return Give(out, m_fileName);
}

string CSourceFileImpl::CleanFileName(string name)
{
    if (!name.starts_with("vob:") && !name.empty()) {
        // From the second character on: a pair in front is a network path.
        const auto isPair = [](char a, char b) { return a == '\\' && b == '\\'; };
        std::size_t write = 1;
        for (std::size_t read = 1; read < name.size(); ++read, ++write) {
            if (read + 1 < name.size() && isPair(name[read], name[read + 1]))
                ++read;
            name[write] = name[read];
        }
        name.resize(std::min(write, name.size()));
    }
    return ResolvedPath(std::move(name));
}

Status CXMLSourceFileImpl::SaveMembers()
{
    SaveTable(kSourceFile);
    return status::kOk;
}

Status CXMLSourceFileImpl::LoadMembers()
{
    LoadTable(kSourceFile);
    return status::kOk;
}
