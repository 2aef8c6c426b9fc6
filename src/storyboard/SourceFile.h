#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/KeptXmlPtr.h"
#include "xml/XMLWrapper.h"

#include <cstdint>
#include <memory>
#include <string>

class CEffectObject;

/// One media file as a storyboard uses it: where it is, which stretch of it plays, and how it is to
/// be treated. Times are seconds. The meaning of the numbers that only say "kind" or "information"
/// is the application's.
class VANTREL_API CSourceFileImpl
{
public:
    CSourceFileImpl();
    ~CSourceFileImpl();
    CSourceFileImpl(const CSourceFileImpl&) = delete;
    CSourceFileImpl& operator=(const CSourceFileImpl&) = delete;

    /// Null gives `status::kNullPointer`.
    vantrel::Status get_FileName(std::string* out) const;

    /// Makes a file name from a project a path of this machine: doubled backslashes become single
    /// ones, except a pair in front and behind "vob:", and `Utils::ResolveFilePath` does the rest.
    static std::string CleanFileName(std::string name);

    std::string m_fileName;      ///< path of the file
    double m_inPoint = 0.0;      ///< start of the used stretch
    double m_outPoint = 0.0;     ///< end of the used stretch
    double m_fileDuration = 0.0; ///< of the whole file
    double m_fileSize = 0.0;     ///< bytes
    double m_dataRate = 0.0;
    std::string m_volLabel;  ///< of the volume that holds the file
    std::string m_cdDrive;   ///< that holds the file
    std::int16_t m_type = 2; ///< kind of source
    bool m_repeat = false;
    long m_rotation = 0;
    bool m_stretchToFit = false;
    bool m_scene = false; ///< the file is used as a scene
    double m_sceneStart = 0.0;
    double m_sceneEnd = 0.0;
    long m_albumID = 0;     ///< library album
    bool m_heldFlag = true; ///< for the application; not persisted
    double m_aspectRatio = 0.0;
    bool m_heldFlag2 = false; ///< for the application; not persisted
    bool m_isTivo = false;    ///< the file is a TiVo file
    unsigned long m_interlacedType = 0;
    unsigned long m_interlacedInfo = 0;
    vantrel::KeptXmlPtr m_transparency; ///< an XML subtree, or null
    std::uint32_t m_sourceType3D = 0;   ///< stereoscopic kind of the source
    bool m_isLeftEyePrecedence = true;
    std::unique_ptr<CEffectObject> m_panZoomEffect; ///< or null
};

/// Persists a source file as "sourceFile".
class VANTREL_API CXMLSourceFileImpl : public XMLWrapper<CSourceFileImpl>
{
public:
    explicit CXMLSourceFileImpl(CSourceFileImpl& object) : XMLWrapper(object, "sourceFile") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
