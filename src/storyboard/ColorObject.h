#pragma once

#include "storyboard/BaseObject.h"
#include "storyboard/MarkerData.h"
#include "storyboard/ParentObject.h"
#include "storyboard/ProductionLink.h"
#include "xml/PersistObject.h"

/// A panel of one colour, which may stand for a gap in the time line.
class VANTREL_API CColorObject : public CBaseObjectImpl,
                                 public CParentObjectImpl,
                                 public CMarkerDataImpl,
                                 public CPersistObject,
                                 public CProductionLink
{
public:
    CColorObject();
    explicit CColorObject(vantrel::ForReading);

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    /// Both tell the parts too.
    void SetSBD(CQZBaseSBD* sbd);
    vantrel::Status put_ParentProduction(CQZBaseSBD* sbd);

    unsigned long m_color = 0; ///< red in the lowest byte
    bool m_isGap = false;

private:
    void Connect();
};
