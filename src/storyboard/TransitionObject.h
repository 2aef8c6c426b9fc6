#pragma once

#include "storyboard/BaseObject.h"
#include "storyboard/KeptContent.h"
#include "storyboard/ProductionLink.h"
#include "xml/PersistObject.h"

/// The panel between two clips. Beyond what every panel has, its content is the application's and
/// goes through the file as it is.
class VANTREL_API CTransitionObject : public CBaseObjectImpl,
                                      public CPersistObject,
                                      public CProductionLink
{
public:
    CTransitionObject() { m_whole = this; }
    explicit CTransitionObject(vantrel::ForReading tag) : CBaseObjectImpl(tag) { m_whole = this; }

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

private:
    void Save(_xmlNode* node);
    void Load(_xmlNode* node);

    bool m_hasBase = true; ///< false when the file had no "baseObject"
    vantrel::KeptContent m_content;
};
