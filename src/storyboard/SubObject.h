#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/XMLWrapper.h"

#include <cstdint>

/// The place of a subordinate object on the time line of its parent. Times are seconds.
class VANTREL_API CSubObjectImpl
{
public:
    CSubObjectImpl() = default;
    CSubObjectImpl(const CSubObjectImpl&) = delete;
    CSubObjectImpl& operator=(const CSubObjectImpl&) = delete;
    virtual ~CSubObjectImpl() = default;

    vantrel::Status put_ID(long id);
    vantrel::Status put_ObjectType(short type);
    vantrel::Status put_Parent(void* parent);

    long m_id = -1;
    std::int16_t m_objectType = 0; ///< the application's kind of object
    double m_startOffset = 0.0;    ///< from the parent's start
    double m_endOffset = 0.0;      ///< from the parent's start
    unsigned long m_flags = 1;     ///< the application's
    bool m_mute = false;
    void* m_parent = nullptr; ///< the `CParentObjectImpl` that holds the object; not owned
};

/// Persists the place of an object as "subObject".
class VANTREL_API CXMLSubObjectImpl : public XMLWrapper<CSubObjectImpl>
{
public:
    explicit CXMLSubObjectImpl(CSubObjectImpl& object) : XMLWrapper(object, "subObject") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
