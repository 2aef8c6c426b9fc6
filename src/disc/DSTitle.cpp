#include "disc/DSTitle.h"

#include "core/Property.h"
#include "disc/DSCommandList.h"
#include "disc/DSEncodingParams.h"
#include "project/NodeForm.h"
#include "storyboard/QZBaseSBD.h"

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

// The attributes of "Title".
struct VANTREL_INTERNAL CDSTitle::Form
{
    static constexpr auto rows = Rows<CDSTitle>(
        NodeID<CDSTitle>("ID"), Flags<&CDSTitle::m_tag, FormatTitleTag>("tag"),
        Decimal<&CDSTitle::m_flags>("flags"),
        Decimal<&CDSTitle::m_stillWaitTime>("stillWaitSecs"), // a file may say what put_ refuses
        Decimal<&CDSTitle::m_discIndex>("discIndex"), Text<&CDSTitle::m_label>("label"),
        Decimal<&CDSTitle::m_vobDuration>("vobDuration"), Real<&CDSTitle::m_vobSize>("vobSize"));
    static constexpr FixedChild children[] = {
        Fixed<CDSCommandList>(eNodeCommands),
        Fixed<CDSEncodingParams>(eNodeEncoding),
    };
};

CDSTitle::CDSTitle() : FormedNode(eNodeTitle, kFormOf<CDSTitle, Form>)
{}

CDSTitle::~CDSTitle() = default;

// clang-format off
Status CDSTitle::get_ID(long* out) const { return Give(out, GetID()); }
Status CDSTitle::get_Tag(unsigned long* out) const { return Give(out, m_tag); }
Status CDSTitle::put_Tag(unsigned long value) { return Take(m_tag, value); }
Status CDSTitle::get_Flags(unsigned long* out) const { return Give(out, m_flags); }
Status CDSTitle::put_Flags(unsigned long value) { return Take(m_flags, value); }
Status CDSTitle::get_Label(string* out) const { return Give(out, m_label); }
Status CDSTitle::put_Label(string value) { return Take(m_label, std::move(value)); }
Status CDSTitle::get_Source(string* out) const { return Give(out, m_source); }
Status CDSTitle::put_Source(string value) { return Take(m_source, std::move(value)); }
Status CDSTitle::get_DiscIndex(long* out) const { return Give(out, m_discIndex); }
Status CDSTitle::get_StillWaitTime(long* out) const { return Give(out, m_stillWaitTime); }
Status CDSTitle::get_VOBDuration(unsigned long* out) const { return Give(out, m_vobDuration); }
Status CDSTitle::put_VOBDuration(unsigned long value) { return Take(m_vobDuration, value); }
Status CDSTitle::get_VOBSize(double* out) const { return Give(out, m_vobSize); }
Status CDSTitle::put_VOBSize(double value) { return Take(m_vobSize, value); }
// clang-format on

Status CDSTitle::FinalConstruct()
{
    return MakeFixedChildren(true);
}

Status CDSTitle::CreateProduction()
{
    if (m_production)
        return status::kNothingDone;
    return Guarded([this] {
        auto production = std::make_unique<CQZBaseSBD>();
        (void)production->NewProduction(); // a fresh storyboard has nothing to fail on
        m_production = std::move(production);
        return status::kOk;
    });
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
