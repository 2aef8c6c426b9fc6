#include "disc/DSProjectData.h"

#include "core/Property.h"
#include "core/Version.h"
#include "disc/ChildPositions.h"
#include "disc/DSCommandList.h"
#include "disc/DSEncodingParams.h"
#include "disc/MenuTemplates.h"
#include "project/DSList.h"
#include "project/NodeForm.h"
#include "project/XMLPersistor.h"
#include "project/XMLProjectLoader.h"

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

// The attributes of "Project". The root has no ID of its own: 0 is written and none is read.
struct VANTREL_INTERNAL CDSProjectData::Form
{
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
    static constexpr FixedChild children[] = {
        Fixed<CDSList>(eNodeTitles),
        Fixed<CDSList>(eNodeMenus),
        Fixed<CDSList>(eNodeDataFiles),
        Fixed<CDSCommandList>(eNodeCommands),
        Fixed<CDSEncodingParams>(eNodeEncoding),
    };
};

CDSProjectData::CDSProjectData() : FormedNode(eNodeProject, kFormOf<CDSProjectData, Form>)
{
    InitProjectProps();
    (void)FinalConstruct(); // can be asked for again
}

CDSProjectData::~CDSProjectData() = default;

// clang-format off
Status CDSProjectData::get_Label(string* out) const { return Give(out, m_label); }
Status CDSProjectData::put_Label(string value) { return Take(m_label, std::move(value)); }
Status CDSProjectData::get_DisplayName(string* out) const { return Give(out, m_displayName); }
Status CDSProjectData::put_DisplayName(string value) { return Take(m_displayName, std::move(value)); }
Status CDSProjectData::get_DiscFormat(DiscFormat* out) const { return Give(out, m_discFormat); }
Status CDSProjectData::put_DiscFormat(DiscFormat value) { return Take(m_discFormat, value); }
Status CDSProjectData::get_TVStandard(TVStandard* out) const { return Give(out, m_tvStandard); }
Status CDSProjectData::put_TVStandard(TVStandard value) { return Take(m_tvStandard, value); }
Status CDSProjectData::get_IsOnDisc(bool* out) const { return Give(out, m_isOnDisc); }
Status CDSProjectData::put_IsOnDisc(bool value) { return Take(m_isOnDisc, value); }
Status CDSProjectData::get_FitToDisc(bool* out) const { return Give(out, m_fitToDisc); }
Status CDSProjectData::put_FitToDisc(bool value) { return Take(m_fitToDisc, value); }
Status CDSProjectData::put_DoCompression(bool value) { return Take(m_doCompression, value); }
Status CDSProjectData::get_Options(unsigned long* out) const { return Give(out, m_options); }
Status CDSProjectData::put_Options(unsigned long value) { return Take(m_options, value); }
Status CDSProjectData::get_OnDiscSize(unsigned long* out) const { return Give(out, m_onDiscSize); }
Status CDSProjectData::put_OnDiscSize(unsigned long value) { return Take(m_onDiscSize, value); }
Status CDSProjectData::get_RemainingCaptures(long* out) const { return Give(out, m_remainingCaptures); }
Status CDSProjectData::put_RemainingCaptures(long value) { return Take(m_remainingCaptures, value); }
Status CDSProjectData::get_ThemeSource(string* out) const { return Give(out, m_themeSource); }
Status CDSProjectData::put_ThemeSource(string value) { return Take(m_themeSource, std::move(value)); }
Status CDSProjectData::get_DiscSize(DiscSizeEnum* out) const { return Give(out, m_discSize); }
Status CDSProjectData::put_DiscSize(DiscSizeEnum value) { return Take(m_discSize, value); }
Status CDSProjectData::get_DiscVideoType(DiscVideoType* out) const { return Give(out, m_discVideoType); }
Status CDSProjectData::put_DiscVideoType(DiscVideoType value) { return Take(m_discVideoType, value); }
Status CDSProjectData::get_VolumeName(string* out) const { return Give(out, m_volumeName); }
Status CDSProjectData::put_VolumeName(string value) { return Take(m_volumeName, std::move(value)); }
Status CDSProjectData::get_ProjectDirectory(string* out) const { return Give(out, m_projectDirectory); }
Status CDSProjectData::put_ProjectDirectory(string value) { return Take(m_projectDirectory, std::move(value)); }
Status CDSProjectData::get_TargetType(unsigned long* out) const { return Give(out, m_targetType); }
Status CDSProjectData::put_TargetType(unsigned long value) { return Take(m_targetType, value); }
Status CDSProjectData::get_ImagePath(string* out) const { return Give(out, m_imagePath); }
Status CDSProjectData::put_ImagePath(string value) { return Take(m_imagePath, std::move(value)); }
Status CDSProjectData::get_TargetDrive(string* out) const { return Give(out, m_targetDrive); }
Status CDSProjectData::put_TargetDrive(string value) { return Take(m_targetDrive, std::move(value)); }
Status CDSProjectData::get_ProjectSize(long* out) const { return Give(out, m_projectSize); }
Status CDSProjectData::put_ProjectSize(long value) { return Take(m_projectSize, value); }
// clang-format on

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
    return MakeFixedChildren(true);
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
    return CountOf(ProjectChild::Titles, out);
}

Status CDSProjectData::get_MenuCount(long* out)
{
    return CountOf(ProjectChild::Menus, out);
}

Status CDSProjectData::get_DataFileCount(long* out)
{
    return CountOf(ProjectChild::DataFiles, out);
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
    const Status loaded = Guarded([&] {
        m_templates = std::make_unique<MenuTemplates>();
        return CDSXMLDataLoader(this).LoadProject(root);
    });
    m_templates.reset();
    return loaded;
}

Status CDSProjectData::SaveXML(IXMLDOMNode* parent)
{
    return Guarded([&] { return CXMLPersistor(parent).Traverse(this, 0); });
}
