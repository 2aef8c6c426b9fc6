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

void CDSDataFile::CopyValues(const CDSDataFile& other)
{
    m_sourcePath = other.m_sourcePath;
    m_destPath = other.m_destPath;
    m_tag = other.m_tag;
    m_useCount = other.m_useCount;
}

bool CDSDataFile::Matches(const string* source, const string* dest, unsigned long tag) const
{
    return (!source || *source == m_sourcePath) && (!dest || *dest == m_destPath) &&
           (tag == 0 || tag == m_tag);
}

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
