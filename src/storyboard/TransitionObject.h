#pragma once

#include "storyboard/BaseObject.h"
#include "storyboard/ProductionLink.h"
#include "xml/PersistObject.h"

/// The panel between two clips, "transition" in the file. Beyond what every panel has, its content is
/// the application's: what a file has of it is kept as it stands, and goes back into the next one.
///
///     _xmlNode* content = transition->GetContent(); // null, or "transition" as it was read
class VANTREL_API CTransitionObject : public CBaseObjectImpl,
                                      public CPersistObject,
                                      public CProductionLink
{
public:
    CTransitionObject() { m_whole = this; }
    explicit CTransitionObject(vantrel::ForReading tag) : CBaseObjectImpl(tag) { m_whole = this; }

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    /// The element as it was read or set, without "key" and "type"; null when it has nothing but what
    /// every panel has. It stays the object's, and is not to be changed.
    _xmlNode* GetContent() const { return m_content.get(); }
    /// Keeps a deep copy of `element` for the next save, in which the members of the panel count where
    /// the two differ. Null forgets what was kept; no element gives `status::kBadArgument`.
    vantrel::Status SetContent(_xmlNode* element);

private:
    void Save(_xmlNode* node);
    void Load(_xmlNode* node);

    vantrel::KeptXmlPtr m_content;
};
