#include "disc/DSDataFile.h"

#include "core/Property.h"
#include "project/NodeForm.h"

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

// The attributes of "File".
struct VANTREL_INTERNAL CDSDataFile::Form
{
    static constexpr auto rows = Rows<CDSDataFile>(
        NodeID<CDSDataFile>("ID"), Text<&CDSDataFile::m_sourcePath>("sourcePath"),
        Text<&CDSDataFile::m_destPath>("destPath"), Decimal<&CDSDataFile::m_tag>("tag"));
};

CDSDataFile::CDSDataFile() : FormedNode(eNodeFile, kFormOf<CDSDataFile, Form>)
{}

CDSDataFile::~CDSDataFile() = default;

// clang-format off
Status CDSDataFile::get_ID(long* out) const { return Give(out, GetID()); }
Status CDSDataFile::get_SourcePath(string* out) const { return Give(out, m_sourcePath); }
Status CDSDataFile::put_SourcePath(string value) { return Take(m_sourcePath, std::move(value)); }
Status CDSDataFile::get_DestPath(string* out) const { return Give(out, m_destPath); }
Status CDSDataFile::put_DestPath(string value) { return Take(m_destPath, std::move(value)); }
Status CDSDataFile::get_Tag(unsigned long* out) const { return Give(out, m_tag); }
Status CDSDataFile::put_Tag(unsigned long value) { return Take(m_tag, value); }
// clang-format on

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
