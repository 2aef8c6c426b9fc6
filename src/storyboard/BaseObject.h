#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "storyboard/Thumbnail.h"
#include "xml/KeptXmlPtr.h"
#include "xml/XMLWrapper.h"

#include <cstdint>
#include <string>

class CPersistObject;
class CQZBaseSBD;

/// The kind of a panel.
enum ClipType : std::int32_t
{
    eClipFileSource = 0,
    eClipSolidColor = 1,
};

namespace vantrel {

/// Tells a constructor that a load follows at once, which settles what else would be built first.
struct ForReading
{};

} // namespace vantrel

/// What every panel of a storyboard has: identity, place and group on the time line, duration and
/// speed, a thumbnail, and free-form metadata. Times are seconds.
class VANTREL_API CBaseObjectImpl
{
public:
    CBaseObjectImpl();
    /// Leaves the metadata of a new object to the load that follows.
    explicit CBaseObjectImpl(vantrel::ForReading) {}
    ~CBaseObjectImpl();
    CBaseObjectImpl(const CBaseObjectImpl&) = delete;
    CBaseObjectImpl& operator=(const CBaseObjectImpl&) = delete;

    /// Stores a deep copy of `node` under the key in lower case. An empty key or one that can't name
    /// an element, or no node, gives `status::kBadArgument`.
    vantrel::Status SetMetaData(std::string key, _xmlNode* node);
    /// Looks for the key as given, then in lower case. The subtree stays the object's. An unknown
    /// key gives `status::kNothingDone`; null or an empty key `status::kBadArgument`.
    vantrel::Status GetMetaData(std::string key, _xmlNode** out) const;

    void SetClipType(ClipType type) { m_clipType = type; }
    ClipType GetClipType() const { return m_clipType; }
    vantrel::Status put_ID(long id);
    void SetSBD(CQZBaseSBD* sbd) { m_sbd = sbd; }

    /// Forgets the thumbnail: there is no store of thumbnails to load it from. An `id` below 1
    /// gives `status::kNothingDone`.
    vantrel::Status LoadThumbnail(long id);
    /// Stores nothing. Without a thumbnail, or with an `id` below 1, gives `status::kNothingDone`.
    vantrel::Status SaveThumbnail(long id);

    long m_id = 0;                 ///< from the storyboard's counter
    long m_panelId = -1;           ///< panel number
    double m_loadedDuration = 0.0; ///< `m_duration` as it was read
    double m_duration = 0.0;
    long m_groupId = -1;
    unsigned long m_flags = 0; ///< the application's
    vantrel::ThumbnailPtr m_thumbnail;
    long m_thumbnailSize = 0;        ///< bytes
    double m_thumbnailInPoint = 0.0; ///< the thumbnail's time in the source
    double m_speed = 1.0;
    vantrel::MetaDataMap m_metaData; ///< a new object has the entry "trackstatus"
    ClipType m_clipType = eClipSolidColor;
    CQZBaseSBD* m_sbd = nullptr;       ///< the storyboard; not owned
    CPersistObject* m_whole = nullptr; ///< the complete object that this is a part of, or null
};

/// Persists the data of a panel as "baseObject".
class VANTREL_API CXMLBaseObjectImpl : public XMLWrapper<CBaseObjectImpl>
{
public:
    explicit CXMLBaseObjectImpl(CBaseObjectImpl& object) : XMLWrapper(object, "baseObject") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
