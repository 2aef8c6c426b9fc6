#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"
#include "storyboard/Thumbnail.h"
#include "xml/KeptXmlPtr.h"
#include "xml/XMLWrapper.h"

#include <memory>

class CPersistObject;
class CSourceFileObject;

/// The child of an effect's data that holds the plug-in's own data, such as a transform.
inline constexpr const char* bstrEffectPluginDataTag = "plugin_data";

/// An effect proper: its kind, and an XML subtree that the plug-in of that kind interprets.
class VANTREL_API CEffectInfoImpl
{
public:
    CEffectInfoImpl();
    ~CEffectInfoImpl();
    CEffectInfoImpl(const CEffectInfoImpl&) = delete;
    CEffectInfoImpl& operator=(const CEffectInfoImpl&) = delete;

    vantrel::Status PutEffectID(long id);
    /// Makes `node` the effect's data. It stays the caller's and must outlive its use; the flag has
    /// no effect.
    vantrel::Status PutData(_xmlNode* node, bool);
    /// Forgets the thumbnail: there is no store of thumbnails to load it from.
    vantrel::Status LoadThumbnail(long id);
    /// Stores nothing.
    vantrel::Status SaveThumbnail(long id);

    /// The complete object is a `CMotionObject`.
    bool IsMotion() const { return m_isMotion; }
    /// The effect was read from an old file, so that its times were adjusted.
    bool IsOldVersion() const { return m_isOldVersion; }

    long m_effectID = -1; ///< the key in the layer's map
    long m_layer = 0;     ///< layer number
    _GUID m_effectGUID;   ///< the kind of effect
    /// The effect's XML subtree, or null: what the last load kept, which is the effect's, or what
    /// `PutData` gave, which isn't.
    _xmlNode* m_data = nullptr;
    bool m_isMotion = false;
    bool m_isPanZoom = false;
    bool m_useOffset = false;                       ///< the effect's offsets apply
    std::unique_ptr<CSourceFileObject> m_alphaFile; ///< the file of the alpha mask, or null
    vantrel::ThumbnailPtr m_thumbnail;
    long m_thumbnailSize = 0; ///< bytes
    long m_groupID = 0;
    bool m_isOldVersion = false;
    CPersistObject* m_whole = nullptr; ///< the complete object that this is a part of, or null

    /// What the last load kept; stays until the next one, so that `m_data` can come back to it.
    vantrel::KeptXmlPtr m_loadedData;
};

/// Persists an effect as "effectInfo". A load takes the data subtree out of the document.
class VANTREL_API CXMLEffectInfoImpl : public XMLWrapper<CEffectInfoImpl>
{
public:
    explicit CXMLEffectInfoImpl(CEffectInfoImpl& object) : XMLWrapper(object, "effectInfo") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
