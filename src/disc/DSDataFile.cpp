#include "disc/DSDataFile.h"

#include "project/NodeForm.h"

using std::map;
using std::string;
using namespace vantrel;

// The attributes of "File".
AttributeTable<CDSDataFile> CDSDataFile::Attributes()
{
    using namespace vantrel::attribute;
    static constexpr auto rows = Rows<CDSDataFile>(
        NodeID<CDSDataFile>("ID"), Text<&CDSDataFile::m_sourcePath>("sourcePath"),
        Text<&CDSDataFile::m_destPath>("destPath"), Decimal<&CDSDataFile::m_tag>("tag"));
    return rows;
}

CDSDataFile::CDSDataFile() : CProjectNode(eNodeFile, kFormOf<CDSDataFile, &CDSDataFile::Attributes>)
{}

CDSDataFile::~CDSDataFile() = default;

Status CDSDataFile::IncrementUseCount()
{
    ++m_useCount;
    return status::kOk;
}

Status CDSDataFile::FillAttributeMap(map<string, string>& attributes, bool native)
{
    attributes.clear();
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CDSDataFile::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}
