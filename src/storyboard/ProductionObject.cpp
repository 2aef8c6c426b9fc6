#include "storyboard/ProductionObject.h"

#include "core/Number.h"
#include "core/Property.h"
#include "storyboard/AudioObject.h"
#include "storyboard/BaseObject.h"
#include "storyboard/MetaData.h"
#include "storyboard/MotionObject.h"
#include "storyboard/PersistParts.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SourceFileObject.h"
#include "xml/MemberTable.h"

#include <algorithm>

using std::string;
using namespace vantrel;

namespace {

using Production = CProductionObject;

constexpr const char* kWithWatermark = "{F66FD1A7-5276-4671-86E7-213D3C55BFD9}";
constexpr const char* kWithoutWatermark = "{941D8B77-2EA3-4157-9F5D-49AB36D5B2F6}";
constexpr std::int64_t kMostColors = 65'536;
constexpr std::int64_t kFreeColors = 64; // of which a file need not hold any

std::int64_t GradientSize(const Production& production)
{
    return std::int64_t{ production.m_gradientRows } * production.m_gradientCols;
}

void SaveDuration(const MemberPlace& place, const char* name, const Production& production)
{
    // Of the panels as the file has them, with six digits: the next load has no others.
    double sum = 0.0;
    static const decltype(CQZBaseSBD::m_panels) none;
    for (const auto& [key, panel] : production.GetSBD() ? production.GetSBD()->m_panels : none) {
        if (!FitsItsKey(key, panel.get()))
            continue;
        const double duration = ParseDouble(NumberText(panel->m_duration));
        sum += IsClipKey(key) ? duration : -duration;
    }
    AddValue<typed::Double>(place.node, name, sum > 0.0 ? sum : 0.0);
}

void SaveIdentifier(const MemberPlace& place, const char* name, const Production& production)
{
    AddValue<typed::String>(place.node, name,
                            production.m_useWatermark ? kWithWatermark : kWithoutWatermark);
}

void LoadIdentifier(xmlNode* element, Production& production)
{
    if (std::string_view(ElementText(element)) == kWithWatermark)
        production.m_useWatermark = production.UseWatermark();
}

void SaveBackgroundFile(const MemberPlace& place, const char* name, const Production& production)
{
    if (production.m_bkgFile)
        (void)production.m_bkgFile->SaveXML(AddElement(place.node, name)); // can't fail on a node
}

void LoadBackgroundFile(xmlNode* element, Production& production)
{
    if (!element)
        return;
    production.m_bkgFile = std::make_unique<CSourceFileObject>();
    (void)production.m_bkgFile->put_ParentProduction(production.GetSBD());
    (void)production.m_bkgFile->LoadXML(element); // what is missing keeps its default
}

/// One colour of the gradient and its place.
struct GradientColor
{
    unsigned long index = 0;
    unsigned long rgb = 0;
};

// The elements of "color".
constexpr MemberRow<GradientColor> kGradientColor[] = {
    member::ULong<&GradientColor::index>("index"),
    member::ColorRef<&GradientColor::rgb>("RGB"),
};

void SaveGradient(const MemberPlace& place, const char* name, const Production& production)
{
    xmlNode* gradient = AddElement(place.node, name);
    const std::int64_t told = GradientSize(production);
    const std::size_t count =
        told > 0 && told <= kMostColors ? static_cast<std::size_t>(told) : 0; // as a load has it
    const std::vector<unsigned long>& colors = production.m_gradientColors;
    for (std::size_t i = 0; i < count; ++i) {
        const GradientColor color{ i, i < colors.size() ? colors[i] : 0 };
        SaveRows({ AddElement(gradient, "color") }, kGradientColor, color);
    }
}

void LoadGradient(xmlNode* element, Production& production)
{
    const std::int64_t count = GradientSize(production);
    if (count < 1)
        return;
    std::vector<xmlNode*> colors;
    for (xmlNode* child : ChildElements(element)) {
        if (IsNamed(child, "color"))
            colors.push_back(child);
    }
    // A small file that tells of a large gradient is not worth the memory.
    const std::int64_t most = std::min(kMostColors, kFreeColors + 16 * std::ssize(colors));
    production.m_gradientColors.assign(count > most ? 0 : static_cast<std::size_t>(count), 0);
    for (xmlNode* child : colors) {
        // A colour without an index has no place, so its index starts out of range.
        GradientColor color{ ~0UL, 0 };
        LoadRows({ child }, kGradientColor, color);
        if (color.index < production.m_gradientColors.size())
            production.m_gradientColors[color.index] = color.rgb;
    }
}

void SaveSpecialEffect(const MemberPlace& place, const char* name, const Production& production)
{
    if (production.m_specialEffect)
        (void)production.m_specialEffect->SaveXML(AddElement(place.node, name)); // as above
}

void LoadSpecialEffect(xmlNode* element, Production& production)
{
    CQZBaseSBD* sbd = production.GetSBD();
    const long id = sbd ? sbd->NextID() : 0; // taken whether or not an effect follows
    if (!element)
        return;
    production.m_specialEffect = std::make_unique<CMotionObject>();
    (void)production.m_specialEffect->put_ParentProduction(sbd);
    (void)production.m_specialEffect->put_ID(id);
    (void)production.m_specialEffect->LoadXML(element); // what is missing keeps its default
}

void SaveMetaDataRow(const MemberPlace& place, const char* name, const Production& production)
{
    SaveMetaData(place, name, production.m_metaData);
}

void LoadMetaDataRow(xmlNode* element, Production& production)
{
    LoadMetaData(element, production.m_metaData);
}

using namespace vantrel::member;

// The elements of "production" before "parentObject". The gradient needs the rows and columns.
constexpr MemberRow<Production> kProduction[] = {
    Long<&Production::m_libraryAlbumID>("LibraryAlbumID"),
    { "Duration", SaveDuration, nullptr },
    { "uuid", SaveIdentifier, LoadIdentifier },
    Double<&Production::m_aspectRatio>("aspectRatio"),
    Double<&Production::m_editFrameRate>("editFrameRate"),
    ULongOr<&Production::m_bkgType, 1U>("bkgType"),
    BoolOrFalse<&Production::m_bkgTile>("bkgTile"),
    ColorRef<&Production::m_bkgColor>("bkgColor"),
    ULongOr<&Production::m_gradientRows, 0>("gradientRows"),
    ULongOr<&Production::m_gradientCols, 0>("gradientCols"),
    Bool<&Production::m_is3DProduction>("is3DProduction"),
    Bool<&Production::m_leftEyePrecedence>("leftEyePrecedence"),
    ULongOr<&Production::m_layoutMode3D, 0U>("layoutMode3D"),
    { "bkgFile", SaveBackgroundFile, LoadBackgroundFile },
    { "gradientColors", SaveGradient, LoadGradient },
    { "specialEffect", SaveSpecialEffect, LoadSpecialEffect },
    { "metadata", SaveMetaDataRow, LoadMetaDataRow },
};

} // namespace

CProductionObject::CProductionObject()
{
    AddTrackStatus(m_metaData);
}

CProductionObject::~CProductionObject() = default;

Status CProductionObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    CompleteMetaData(m_metaData);
    if (save)
        SaveRows({ node }, kProduction, *this);
    else
        LoadRows({ node }, kProduction, *this);
    PersistPart<CXMLParentObjectImpl>(*this, node, save);
    return status::kOk;
}

void CProductionObject::SetSBD(CQZBaseSBD* sbd)
{
    m_sbd = sbd;
    CParentObjectImpl::SetSBD(sbd);
}

Status CProductionObject::put_ID(long id)
{
    m_id = id;
    return status::kOk;
}

Status CProductionObject::get_Duration(double* out) const
{
    return ComputeDuration(out);
}

Status CProductionObject::ComputeDuration(double* out) const
{
    return Give(out, m_sbd ? m_sbd->ComputeDuration() : 0.0);
}

Status CProductionObject::SetMetaData(string key, _xmlNode* node)
{
    return SetMetaDataEntry(m_metaData, std::move(key), node);
}

Status CProductionObject::GetMetaData(string key, _xmlNode** out) const
{
    return GetMetaDataEntry(m_metaData, std::move(key), out);
}
