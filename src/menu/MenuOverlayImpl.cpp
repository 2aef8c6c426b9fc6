#include "menu/MenuOverlayImpl.h"

#include "core/PathUtils.h"
#include "core/Property.h"
#include "menu/OverlayRows.h"

using std::map;
using std::string;
using std::vector;
using namespace vantrel;

CMenuOverlayImpl::CMenuOverlayImpl(CProjectNode* node) : CMenuElementImpl(node)
{}

CMenuOverlayImpl::~CMenuOverlayImpl() = default;

Status CMenuOverlayImpl::getSize(float* width, float* height) const
{
    if (!width || !height)
        return status::kNullPointer;
    *width = m_width;
    *height = m_height;
    return status::kOk;
}

Status CMenuOverlayImpl::setSize(float width, float height)
{
    m_width = width;
    m_height = height;
    return status::kOk;
}

Status CMenuOverlayImpl::getSource(string* out) const
{
    return Give(out, m_source);
}

Status CMenuOverlayImpl::setSource(string value)
{
    return Take(m_source, std::move(value));
}

Status CMenuOverlayImpl::getAlphaMask(string* out) const
{
    return Give(out, m_alphaMask);
}

Status CMenuOverlayImpl::setAlphaMask(string value)
{
    return Take(m_alphaMask, std::move(value));
}

Status CMenuOverlayImpl::getInPoint(double* out) const
{
    return Give(out, m_inPoint);
}

Status CMenuOverlayImpl::setInPoint(double value)
{
    return value < 0.0 ? status::kNegativeInPoint : Take(m_inPoint, value);
}

Status CMenuOverlayImpl::getOutPoint(double* out) const
{
    return Give(out, m_outPoint);
}

Status CMenuOverlayImpl::setOutPoint(double value)
{
    return value < 0.0 ? status::kNegativeOutPoint : Take(m_outPoint, value);
}

Status CMenuOverlayImpl::getSourceRotation(long* out) const
{
    return Give(out, m_sourceRotation);
}

Status CMenuOverlayImpl::setSourceRotation(long value)
{
    return Take(m_sourceRotation, value);
}

Status CMenuOverlayImpl::refreshSource()
{
    return status::kOk;
}

Status CMenuOverlayImpl::getModelRect(vector<FPoint>& corners) const
{
    const float x = m_width / 2.0F;
    const float y = m_height / 2.0F;
    corners = { { -x, y }, { -x, -y }, { x, -y }, { x, y } };
    return status::kOk;
}

string CMenuOverlayImpl::StoredMask(string path)
{
    // An absolute path stays as it was put.
    return IsAbsolutePath(path) && !HasContentToken(path) ? path : ResolvedPath(std::move(path));
}

string CMenuOverlayImpl::StoredSource(string path)
{
    const bool isInContent = HasContentToken(path);
    path = StoredMask(std::move(path));
    if (isInContent)
        path.erase(0, path.find_first_not_of('/')); // it is relative now
    return path;
}

void CMenuOverlayImpl::ResolvePaths()
{
    m_source = StoredSource(std::move(m_source));
    m_alphaMask = StoredMask(std::move(m_alphaMask));
}

AttributeTable<CMenuOverlayImpl> CMenuOverlayImpl::Attributes()
{
    static constexpr auto rows = Rows<CMenuOverlayImpl>(OverlayRows<CMenuOverlayImpl>::Own());
    return { rows, [](CMenuOverlayImpl& overlay) { overlay.ResolvePaths(); } };
}

Status CMenuOverlayImpl::LoadElementAttributes(const map<string, string>& attributes,
                                               bool ownGeometry)
{
    const Status loaded = CMenuElementImpl::LoadElementAttributes(attributes, ownGeometry);
    if (!Failed(loaded) && ownGeometry)
        Attributes().Read(*this, attributes);
    return loaded;
}

Status CMenuOverlayImpl::SaveElementAttributes(map<string, string>& attributes,
                                               bool ownGeometry) const
{
    const Status saved = CMenuElementImpl::SaveElementAttributes(attributes, ownGeometry);
    if (!Failed(saved) && ownGeometry)
        Attributes().Write(*this, false, attributes);
    return saved;
}
