#pragma once

#include "core/Export.h"
#include "core/Status.h"

class CQZBaseSBD;

/// The storyboard that a complete object lies in.
class VANTREL_API CProductionLink
{
public:
    CProductionLink() = default;
    CProductionLink(const CProductionLink&) = delete;
    CProductionLink& operator=(const CProductionLink&) = delete;

    vantrel::Status put_ParentProduction(CQZBaseSBD* sbd)
    {
        m_parentProduction = sbd;
        return vantrel::status::kOk;
    }

    /// Null, or no storyboard given yet, is `status::kNullPointer` and leaves `out` alone.
    vantrel::Status get_ParentProduction(CQZBaseSBD** out) const
    {
        if (!out || !m_parentProduction)
            return vantrel::status::kNullPointer;
        *out = m_parentProduction;
        return vantrel::status::kOk;
    }

protected:
    ~CProductionLink() = default;

    CQZBaseSBD* m_parentProduction = nullptr; ///< not owned
};
