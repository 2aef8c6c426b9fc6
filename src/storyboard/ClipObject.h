#pragma once

#include "storyboard/BaseObject.h"
#include "storyboard/MarkerData.h"
#include "storyboard/NativeInfo.h"
#include "storyboard/ParentObject.h"
#include "storyboard/ProductionLink.h"
#include "storyboard/SourceFile.h"
#include "xml/PersistObject.h"

/// A panel that shows one media file.
class VANTREL_API CClipObject : public CSourceFileImpl,
                                public CBaseObjectImpl,
                                public CParentObjectImpl,
                                public CNativeInfoImpl,
                                public CMarkerDataImpl,
                                public CPersistObject,
                                public CProductionLink
{
public:
    CClipObject();
    explicit CClipObject(vantrel::ForReading);

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    /// Both tell the parts too.
    void SetSBD(CQZBaseSBD* sbd);
    vantrel::Status put_ParentProduction(CQZBaseSBD* sbd);
    using CParentObjectImpl::GetSBD;

private:
    void Connect();
};
