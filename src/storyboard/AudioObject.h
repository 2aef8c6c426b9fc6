#pragma once

#include "storyboard/AudioInfo.h"
#include "storyboard/ProductionLink.h"
#include "storyboard/SourceFile.h"
#include "storyboard/SubObject.h"
#include "xml/PersistObject.h"

/// A sound: audio data, a place on the time line of its parent, and a file.
class VANTREL_API CAudioObject : public CAudioInfoImpl,
                                 public CSubObjectImpl,
                                 public CSourceFileImpl,
                                 public CPersistObject,
                                 public CProductionLink
{
public:
    CAudioObject() { m_whole = this; }

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;
};
