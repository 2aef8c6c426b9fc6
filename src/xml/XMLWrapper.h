#pragma once

#include "core/Types.h"
#include "xml/XMLHelpers.h"

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

namespace vantrel {
template <class T>
struct MemberRow; // of xml/MemberTable.h, which defines what runs a table of them
} // namespace vantrel

/// The persistence of one data class as a sub-element; made on the stack for one operation.
///
/// A companion class `CXML...Impl` for each data class passes the sub-element's name to the
/// constructor and overrides `SaveMembers` and `LoadMembers`, mostly with its member table. All
/// members are children of `m_node`, which is set by `SaveToXML` and `LoadFromXML`. Statuses are
/// those of `XMLHelpers<void>`; with no `m_node` a member function gives `status::kBadArgument` and
/// leaves its output alone, so that a file that lacks the sub-element loads with defaults.
template <class T>
class XMLWrapper
{
public:
    /// `object` is not owned and must outlive the wrapper.
    XMLWrapper(T& object, std::string name) : m_object(object), m_name(std::move(name)) {}
    XMLWrapper(const XMLWrapper&) = delete;
    XMLWrapper& operator=(const XMLWrapper&) = delete;

    /// The whole object as one blob, for a `T` of plain bytes; any other gives
    /// `status::kNotAvailable`.
    virtual vantrel::Status SaveMembers();
    virtual vantrel::Status LoadMembers();
    virtual ~XMLWrapper() = default;

    /// Writes the members into a new sub-element of `node` or, with `direct`, into `node` itself.
    /// Null gives `status::kBadArgument`, else what `SaveMembers` gives.
    vantrel::Status SaveToXML(_xmlNode* node, bool direct);
    /// Reads the members from the sub-element of `node`, which may be missing, or from `node`
    /// itself. Null gives `status::kBadArgument`, else what `LoadMembers` gives.
    vantrel::Status LoadFromXML(_xmlNode* node, bool direct);

    /// @name Members
    /// @{
    vantrel::Status SaveLongMember(std::string name, long value)
    {
        return Helpers::SaveLongNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadLongMember(std::string name, long* value)
    {
        return Helpers::LoadLongNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveULongMember(std::string name, unsigned long value)
    {
        return Helpers::SaveULongNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadULongMember(std::string name, unsigned long* value)
    {
        return Helpers::LoadULongNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveDoubleMember(std::string name, double value)
    {
        return Helpers::SaveDoubleNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadDoubleMember(std::string name, double* value)
    {
        return Helpers::LoadDoubleNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveBoolMember(std::string name, bool value)
    {
        return Helpers::SaveBoolNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadBoolMember(std::string name, bool* value)
    {
        return Helpers::LoadBoolNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveStringMember(std::string name, std::string value)
    {
        return Helpers::SaveStringNode(m_node, Node(name), Name(name), std::move(value));
    }
    vantrel::Status LoadStringMember(std::string name, std::string* value)
    {
        return Helpers::LoadStringNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveInt2Member(std::string name, short value)
    {
        return Helpers::SaveInt2Node(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadInt2Member(std::string name, short* value)
    {
        return Helpers::LoadInt2Node(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadUInt2Member(std::string name, unsigned short& value)
    {
        return Helpers::LoadUInt2Node(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveUUID(std::string name, _GUID value)
    {
        return Helpers::SaveUUIDNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status LoadUUID(std::string name, _GUID& value)
    {
        return Helpers::LoadUUIDNode(m_node, Node(name), Name(name), value);
    }
    vantrel::Status SaveBlob(std::string name, char* data, unsigned long size)
    {
        return Helpers::SaveBlobNode(m_node, Node(name), Name(name), data, size);
    }
    vantrel::Status LoadBlob(std::string name, char* data, unsigned long& size)
    {
        return Helpers::LoadBlobNode(m_node, Node(name), Name(name), data, size);
    }
    /// A container, or a member with a type of its own; `out` receives its element.
    vantrel::Status SaveMember(std::string name, std::string type, std::string value,
                               _xmlNode** out)
    {
        return Helpers::SaveNode(m_node, Node(name), Name(name), std::move(type), std::move(value),
                                 out);
    }
    vantrel::Status LoadMember(std::string name, std::string* value, _xmlNode** out)
    {
        return Helpers::LoadNode(m_node, Node(name), Name(name), value, out);
    }
    /// @}

protected:
    /// Runs a member table. Statuses of rows are dropped: older files lack members, and those keep
    /// their defaults.
    template <std::size_t N>
    void SaveTable(const vantrel::MemberRow<T> (&rows)[N]);
    template <std::size_t N>
    void LoadTable(const vantrel::MemberRow<T> (&rows)[N]);

    _xmlNode* m_node = nullptr; ///< holds the members during an operation; not owned
    T& m_object;                ///< not owned
    std::string m_name;         ///< of the sub-element
    /// False: members are elements "member", and the sub-element is a "struct", told apart by
    /// "Name".
    bool m_useElementNames = true;

private:
    using Helpers = XMLHelpers<void>;

    std::string Node(const std::string& name) { return m_useElementNames ? name : "member"; }
    std::string Name(const std::string& name) { return m_useElementNames ? "" : name; }
};

template <class T>
vantrel::Status XMLWrapper<T>::SaveMembers()
{
    if constexpr (std::is_trivially_copyable_v<T>)
        return SaveBlob(m_name, reinterpret_cast<char*>(&m_object), sizeof(T));
    else
        return vantrel::status::kNotAvailable;
}

template <class T>
vantrel::Status XMLWrapper<T>::LoadMembers()
{
    if constexpr (std::is_trivially_copyable_v<T>) {
        unsigned long size = sizeof(T);
        return LoadBlob(m_name, reinterpret_cast<char*>(&m_object), size);
    } else {
        return vantrel::status::kNotAvailable;
    }
}

template <class T>
vantrel::Status XMLWrapper<T>::SaveToXML(_xmlNode* node, bool direct)
{
    if (!node)
        return vantrel::status::kBadArgument;
    m_node = node;
    if (!direct && m_useElementNames)
        (void)Helpers::SaveNode(node, m_name, "", "", "", &m_node); // can't fail on a node
    else if (!direct)
        (void)Helpers::SaveNode(node, "struct", m_name, "", "", &m_node);
    return SaveMembers();
}

template <class T>
vantrel::Status XMLWrapper<T>::LoadFromXML(_xmlNode* node, bool direct)
{
    if (!node)
        return vantrel::status::kBadArgument;
    m_node = direct ? node : nullptr; // a sub-element that is missing leaves null
    if (!direct && m_useElementNames)
        (void)Helpers::LoadNode(node, m_name, "", nullptr, &m_node);
    else if (!direct)
        (void)Helpers::LoadNode(node, "struct", m_name, nullptr, &m_node);
    return LoadMembers();
}
