#include "disc/DSProjectData.h"

#include "core/Version.h"
#include "disc/DSCommandList.h"
#include "disc/DSEncodingParams.h"
#include "disc/MenuTemplates.h"
#include "disc/ProjectChildren.h"
#include "project/DSList.h"
#include "project/NodeForm.h"
#include "project/XMLPersistor.h"
#include "project/XMLProjectLoader.h"

using std::map;
using std::string;
using namespace vantrel;

// The attributes of "Project". The root has no ID of its own: 0 is written and none is read.
AttributeTable<CDSProjectData> CDSProjectData::Attributes()
{
    using namespace vantrel::attribute;
    using Project = CDSProjectData;
    static constexpr auto rows = Rows<Project>(
        NodeID<Project>("ID").WriteOnly(),
        Constant<Project, kFileVersion>("Version"), // read by the file service alone
        Text<&Project::m_label>("label"), Text<&Project::m_displayName>("name"),
        Enum<&Project::m_discSize>("DiscSize"), Enum<&Project::m_discFormat>("discFormat"),
        Enum<&Project::m_tvStandard>("TVStandard"),
        Flags<&Project::m_options, FormatProjectOptions>("options"),
        Bool<&Project::m_fitToDisc>("fitToDisc"), Decimal<&Project::m_onDiscSize>("onDiscSizeKB"),
        Decimal<&Project::m_remainingCaptures>("remainingCaptures"),
        Text<&Project::m_themeSource>("ThemeSource"), Bool<&Project::m_isOnDisc>("onDiscProject"),
        Bool<&Project::m_doCompression>("doCompression"),
        Enum<&Project::m_discVideoType>("discVideoType"));
    return rows;
}

CDSProjectData::CDSProjectData()
    : CProjectNode(eNodeProject, kFormOf<CDSProjectData, &CDSProjectData::Attributes>)
{
    InitProjectProps();
    (void)FinalConstruct(); // fails only where the constructor would have thrown
}

CDSProjectData::~CDSProjectData() = default;

void CDSProjectData::InitProjectProps()
{
    m_label.clear();
    m_displayName.clear();
    m_discFormat = DiscFormat::DVD_Video;
    m_tvStandard = TVStandard::NTSC;
    m_isOnDisc = false;
    m_fitToDisc = false;
    m_doCompression = true;
    m_options = 0;
    m_onDiscSize = 0;
    m_remainingCaptures = -1;
    m_themeSource.clear();
    m_discSize = DiscSizeEnum::DVD_47;
    m_discVideoType = DiscVideoType::Normal_2D;
    m_volumeName = "KELDODISC";
    m_projectDirectory.clear();
    m_targetType = 1;
    m_imagePath.clear();
    m_targetDrive.clear();
    m_projectSize = 0;
}

Status CDSProjectData::FinalConstruct()
{
    if (GetNumChildren() > 0)
        return status::kOk;
    for (const eNodeType list : { eNodeTitles, eNodeMenus, eNodeDataFiles })
        AdoptChild(std::make_unique<CDSList>(list), true);
    AdoptChild(std::make_unique<CDSCommandList>(), true);
    AdoptChild(std::make_unique<CDSEncodingParams>(), true);
    return status::kOk;
}

Status CDSProjectData::FinalRelease()
{
    return status::kOk;
}

Status CDSProjectData::get_DoCompression(bool* out) const
{
    if (!out)
        return status::kNullPointer;
    return m_isOnDisc ? Give(out, m_doCompression) : status::kNothingDone;
}

Status CDSProjectData::get_Version(unsigned long* out) const
{
    return Give(out, kFileVersion);
}

Status CDSProjectData::get_TitleCount(long* out)
{
    return CountOf(kTitles, out);
}

Status CDSProjectData::get_MenuCount(long* out)
{
    return CountOf(kMenus, out);
}

Status CDSProjectData::get_DataFileCount(long* out)
{
    return CountOf(kDataFiles, out);
}

Status CDSProjectData::CountOf(int position, long* out)
{
    if (!out)
        return status::kNullPointer;
    CProjectNode* list = GetChild(position);
    return list ? Give(out, list->GetNumChildren()) : status::kNothingDone;
}

Status CDSProjectData::LoadXML(IXMLDOMNode* root)
{
    if (!root)
        return status::kNoProjectNode;
    const Status cleared = _Clear();
    if (Failed(cleared))
        return cleared;
    m_templates = std::make_unique<MenuTemplates>();
    const Status loaded = CDSXMLDataLoader(this).LoadProject(root);
    m_templates.reset();
    return loaded;
}

Status CDSProjectData::SaveXML(IXMLDOMNode* parent)
{
    return CXMLPersistor(parent).Traverse(this, 0);
}

Status CDSProjectData::FillAttributeMap(map<string, string>& attributes, bool native)
{
    attributes.clear();
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CDSProjectData::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}
