#pragma once

namespace vantrel {

template <class Pointer>
struct MemberPointer;
template <class C, class V>
struct MemberPointer<V C::*>
{
    using Class = C;
    using Value = V;
};

/// The class and the type of a field that is given by a pointer to member.
template <auto Field>
using ClassOf = typename MemberPointer<decltype(Field)>::Class;
template <auto Field>
using ValueOf = typename MemberPointer<decltype(Field)>::Value;

} // namespace vantrel
