#pragma once

#include "storyboard/EffectInfo.h"
#include "storyboard/ProductionLink.h"
#include "storyboard/SubObject.h"
#include "xml/PersistObject.h"

/// An effect on a layer of a parent object.
class VANTREL_API CEffectObject : public CEffectInfoImpl,
                                  public CSubObjectImpl,
                                  public CPersistObject,
                                  public CProductionLink
{
public:
    CEffectObject() { m_whole = this; }

    /// Sets the object's and the effect's id.
    vantrel::Status put_ID(long id);

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;
};
