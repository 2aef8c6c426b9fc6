#pragma once

#include "storyboard/ProductionLink.h"
#include "storyboard/SourceFile.h"
#include "xml/PersistObject.h"

/// A file and nothing else: a production's background, or an effect's alpha mask.
class VANTREL_API CSourceFileObject : public CSourceFileImpl,
                                      public CPersistObject,
                                      public CProductionLink
{
public:
    vantrel::Status PersistXML(_xmlNode* node, bool save) override;
};
