#pragma once

#include "storyboard/ParentObject.h"
#include "xml/KeptXmlPtr.h"
#include "xml/PersistObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class CMotionObject;
class CQZBaseSBD;
class CSourceFileObject;

/// The root object of a storyboard's time line: frame rate, picture shape, background, 3D settings,
/// and the effects and audio that lie on the production as a whole. Times are seconds, colours have
/// red in the lowest byte. The meaning of the numbers that only say "kind" is the application's.
class VANTREL_API CProductionObject : public CParentObjectImpl, public CPersistObject
{
public:
    CProductionObject();
    ~CProductionObject() override;

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    CQZBaseSBD* GetSBD() const { return m_sbd; }
    void SetSBD(CQZBaseSBD* sbd);
    vantrel::Status put_ID(long id);

    /// The duration of the time line: that of the clips less that of the transitions, and never
    /// below 0.0. Null gives `status::kNullPointer`.
    vantrel::Status get_Duration(double* out) const;
    vantrel::Status ComputeDuration(double* out) const;

    /// Always true: the library bears a watermark where a file asks for it.
    bool UseWatermark() const { return true; }

    /// As those of `CBaseObjectImpl`.
    vantrel::Status SetMetaData(std::string key, _xmlNode* node);
    vantrel::Status GetMetaData(std::string key, _xmlNode** out) const;

    CQZBaseSBD* m_sbd = nullptr; ///< the storyboard; not owned
    long m_id = 0;
    long m_libraryAlbumID = -1;
    std::unique_ptr<CMotionObject> m_specialEffect; ///< or null
    bool m_useWatermark = false; ///< selects which of two identifiers the production bears
    double m_aspectRatio = 0.0;
    double m_editFrameRate = 29.97; ///< frames a second
    vantrel::MetaDataMap m_metaData;
    std::uint32_t m_bkgType = 1;                  ///< kind of background
    std::unique_ptr<CSourceFileObject> m_bkgFile; ///< or null
    bool m_bkgTile = false;
    unsigned long m_bkgColor = 0;
    std::int32_t m_gradientRows = 0;
    std::int32_t m_gradientCols = 0;
    /// The gradient's colours, row after row. A file brings none when it tells more than 1,048,576.
    std::vector<unsigned long> m_gradientColors;
    bool m_is3DProduction = false;
    bool m_leftEyePrecedence = true;
    std::uint32_t m_layoutMode3D = 0;
};
