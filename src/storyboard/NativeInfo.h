#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/XMLWrapper.h"

#include <memory>

class CAudioObject;
class CQZBaseSBD;

/// The audio that belongs to a source itself.
class VANTREL_API CNativeInfoImpl
{
public:
    CNativeInfoImpl();
    ~CNativeInfoImpl();
    CNativeInfoImpl(const CNativeInfoImpl&) = delete;
    CNativeInfoImpl& operator=(const CNativeInfoImpl&) = delete;

    /// Sets whether the source's own audio may be used, and gives that back.
    bool Internal_PutUseNativeAudio(bool use);

    /// The storyboard that the complete object lies in, or null.
    CQZBaseSBD* GetSBD() const { return m_nativeSBD; }
    void SetSBD(CQZBaseSBD* sbd) { m_nativeSBD = sbd; }

    std::unique_ptr<CAudioObject> m_nativeAudio; ///< or null
    bool m_canUseNativeAudio = true;

private:
    CQZBaseSBD* m_nativeSBD = nullptr; ///< not owned
};

/// Persists the native audio as "nativeinfo".
class VANTREL_API CXMLNativeInfoImpl : public XMLWrapper<CNativeInfoImpl>
{
public:
    explicit CXMLNativeInfoImpl(CNativeInfoImpl& object) : XMLWrapper(object, "nativeinfo") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
