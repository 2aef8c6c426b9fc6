#pragma once

#include "storyboard/EffectInfo.h"
#include "storyboard/NativeInfo.h"
#include "storyboard/ParentObject.h"
#include "storyboard/ProductionLink.h"
#include "storyboard/SourceFile.h"
#include "storyboard/SubObject.h"
#include "xml/PersistObject.h"

/// An effect that also has a source file, layers of its own and native audio. It lies on a layer
/// like any effect, and one can stand on a production as its special effect.
class VANTREL_API CMotionObject : public CParentObjectImpl,
                                  public CSubObjectImpl,
                                  public CSourceFileImpl,
                                  public CNativeInfoImpl,
                                  public CEffectInfoImpl,
                                  public CPersistObject,
                                  public CProductionLink
{
public:
    CMotionObject();

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    /// Tells the parts too.
    vantrel::Status put_ParentProduction(CQZBaseSBD* sbd);
    using CParentObjectImpl::GetSBD;
};
