#pragma once

#include "core/MemberPointer.h"
#include "xml/TypedElement.h"
#include "xml/TypedValue.h"
#include "xml/XMLWrapper.h"
#include "xml/XmlValue.h"

#include <cstddef>
#include <span>
#include <type_traits>

/// The elements of a class, listed once for both directions.
///
/// A class that goes into an element has a constant array of rows, in the order of the file:
///
///     constexpr MemberRow<CSubObjectImpl> kSubObject[] = {
///         Int2<&CSubObjectImpl::m_objectType>("type"),
///         Double<&CSubObjectImpl::m_startOffset>("startOffset"), // seconds
///     };
///
/// Writing runs the rows from the first to the last, and so does reading: a row sees what the rows
/// above it have read. A row that is more than one value names its two steps itself.
namespace vantrel {

/// Where members stand: below `node`, each as an element of its own name or, without
/// `elementNames`, as an element "member" that bears it as "Name".
struct MemberPlace
{
    xmlNode* node;
    bool elementNames = true;
};

/// Adds the element of one member, with a typed value or, for an empty `type`, as a container.
xmlNode* AddMember(const MemberPlace& place, const char* name, const char* type = "",
                   const std::string& text = {});

/// Finds the first element of each name in one walk; `found` receives null for a missing one.
void FindMembers(const MemberPlace& place, std::span<const char* const> names,
                 std::span<xmlNode*> found);

template <class T>
struct MemberRow
{
    using Save = void (*)(const MemberPlace& place, const char* name, const T& object);
    using Load = void (*)(xmlNode* element, T& object);

    const char* name; ///< of the element
    Save save;        ///< null: never written
    Load load;        ///< null: never read. Also called, with null, when the element is missing
};

template <class T, std::size_t N>
void SaveRows(const MemberPlace& place, const MemberRow<T> (&rows)[N], const T& object)
{
    for (const MemberRow<T>& row : rows) {
        if (row.save)
            row.save(place, row.name, object);
    }
}

template <class T, std::size_t N>
void LoadRows(const MemberPlace& place, const MemberRow<T> (&rows)[N], T& object)
{
    const char* names[N];
    xmlNode* found[N] = {};
    for (std::size_t i = 0; i < N; ++i)
        names[i] = rows[i].name;
    FindMembers(place, names, found);
    for (std::size_t i = 0; i < N; ++i) {
        if (rows[i].load)
            rows[i].load(found[i], object);
    }
}

/// Row makers: one for each kind of value, and what they are made of.
namespace member {

template <class Kind, auto Field>
void SaveField(const MemberPlace& place, const char* name, const ClassOf<Field>& object)
{
    std::string text;
    if constexpr (std::is_same_v<ValueOf<Field>, typename Kind::Value>)
        Kind::Append(text, object.*Field);
    else
        Kind::Append(text, static_cast<typename Kind::Value>(object.*Field));
    AddMember(place, name, Kind::kType, text);
}

/// A missing element, or a text that the kind refuses, leaves the field alone.
template <class Kind, auto Field>
void LoadField(xmlNode* element, ClassOf<Field>& object)
{
    if (!element)
        return;
    if constexpr (std::is_same_v<ValueOf<Field>, typename Kind::Value>) {
        (void)Kind::Read(ElementText(element), object.*Field);
    } else {
        auto value = static_cast<typename Kind::Value>(object.*Field);
        (void)Kind::Read(ElementText(element), value);
        object.*Field = static_cast<ValueOf<Field>>(value);
    }
}

/// A missing element gives the field its default again.
template <class Kind, auto Field, auto Default>
void LoadFieldOr(xmlNode* element, ClassOf<Field>& object)
{
    object.*Field = Default;
    LoadField<Kind, Field>(element, object);
}

template <class Kind, auto Field>
constexpr MemberRow<ClassOf<Field>> Row(const char* name)
{
    return { name, SaveField<Kind, Field>, LoadField<Kind, Field> };
}

template <class Kind, auto Field, auto Default>
constexpr MemberRow<ClassOf<Field>> RowOr(const char* name)
{
    return { name, SaveField<Kind, Field>, LoadFieldOr<Kind, Field, Default> };
}

template <auto Field>
constexpr auto Long(const char* name)
{
    return Row<typed::Long, Field>(name);
}

template <auto Field>
constexpr auto ULong(const char* name)
{
    return Row<typed::ULong, Field>(name);
}

template <auto Field, auto Default>
constexpr auto ULongOr(const char* name)
{
    return RowOr<typed::ULong, Field, Default>(name);
}

template <auto Field>
constexpr auto Double(const char* name)
{
    return Row<typed::Double, Field>(name);
}

template <auto Field>
constexpr auto Bool(const char* name)
{
    return Row<typed::Bool, Field>(name);
}

template <auto Field>
constexpr auto BoolOrFalse(const char* name)
{
    return RowOr<typed::Bool, Field, false>(name);
}

template <auto Field>
constexpr auto String(const char* name)
{
    return Row<typed::String, Field>(name);
}

template <auto Field>
constexpr auto Int2(const char* name)
{
    return Row<typed::Int2, Field>(name);
}

template <auto Field>
constexpr auto UInt2(const char* name)
{
    return Row<typed::UInt2, Field>(name);
}

template <auto Field>
constexpr auto ColorRef(const char* name)
{
    return Row<typed::ColorRef, Field>(name);
}

template <auto Field>
constexpr auto Uuid(const char* name)
{
    return Row<typed::Uuid, Field>(name);
}

} // namespace member

} // namespace vantrel

template <class T>
template <std::size_t N>
void XMLWrapper<T>::SaveTable(const vantrel::MemberRow<T> (&rows)[N])
{
    vantrel::SaveRows({ m_node, m_useElementNames }, rows, m_object);
}

template <class T>
template <std::size_t N>
void XMLWrapper<T>::LoadTable(const vantrel::MemberRow<T> (&rows)[N])
{
    vantrel::LoadRows({ m_node, m_useElementNames }, rows, m_object);
}
