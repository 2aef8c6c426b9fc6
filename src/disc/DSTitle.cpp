#include "disc/DSTitle.h"

#include "disc/DSCommandList.h"
#include "disc/DSEncodingParams.h"
#include "project/NodeForm.h"
#include "storyboard/QZBaseSBD.h"

using std::map;
using std::string;
using namespace vantrel;

// The attributes of "Title".
AttributeTable<CDSTitle> CDSTitle::Attributes()
{
    using namespace vantrel::attribute;
    static constexpr auto rows = Rows<CDSTitle>(
        NodeID<CDSTitle>("ID"), Flags<&CDSTitle::m_tag, FormatTitleTag>("tag"),
        Decimal<&CDSTitle::m_flags>("flags"),
        Decimal<&CDSTitle::m_stillWaitTime>("stillWaitSecs"), // a file may say what put_ refuses
        Decimal<&CDSTitle::m_discIndex>("discIndex"), Text<&CDSTitle::m_label>("label"),
        Decimal<&CDSTitle::m_vobDuration>("vobDuration"), Real<&CDSTitle::m_vobSize>("vobSize"));
    return rows;
}

CDSTitle::CDSTitle() : CProjectNode(eNodeTitle, kFormOf<CDSTitle, &CDSTitle::Attributes>)
{}

CDSTitle::~CDSTitle() = default;

Status CDSTitle::FinalConstruct()
{
    MakeMissingChildren(true);
    return status::kOk;
}

void CDSTitle::MakeMissingChildren(bool assignIDs)
{
    if (!FindChildByType(eNodeCommands, ""))
        AdoptChild(std::make_unique<CDSCommandList>(), assignIDs);
    if (!FindChildByType(eNodeEncoding, ""))
        AdoptChild(std::make_unique<CDSEncodingParams>(), assignIDs);
}

Status CDSTitle::CreateProduction()
{
    if (m_production)
        return status::kNothingDone;
    m_production = std::make_unique<CQZBaseSBD>();
    (void)m_production->NewProduction(); // a fresh storyboard has nothing to fail on
    return status::kOk;
}

Status CDSTitle::ReleaseProduction()
{
    if (!m_production)
        return status::kNothingDone;
    m_production.reset();
    return status::kOk;
}

Status CDSTitle::FinalRelease()
{
    return ReleaseProduction();
}

Status CDSTitle::GetProduction(CQZBaseSBD** out)
{
    if (!out)
        return status::kNullPointer;
    *out = m_production.get();
    return m_production ? status::kOk : status::kNothingDone;
}

Status CDSTitle::put_DiscIndex(long value)
{
    return value < 0 ? status::kBadArgument : Take(m_discIndex, value);
}

Status CDSTitle::put_StillWaitTime(long value)
{
    return value < 0 ? status::kBadArgument : Take(m_stillWaitTime, value);
}

Status CDSTitle::FillAttributeMap(map<string, string>& attributes, bool native)
{
    attributes.clear();
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CDSTitle::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}
