#pragma once

#include <QByteArrayList>

#include <cstddef>
#include <type_traits>

namespace drugbank {

/// The bytes that an argument takes on the stack of a 32-bit call: whole words, and an address is one word
/// whatever the width of the system that compiles this.
template <typename A> constexpr int OctetsArgument()
{
    static_assert(std::is_arithmetic_v<A> || std::is_pointer_v<A>);
    constexpr std::size_t mot = 4;
    return static_cast<int>(std::is_pointer_v<A> ? mot : (sizeof(A) + mot - 1) / mot * mot);
}

/// The bytes of all arguments, as a decorated name counts them.
template <typename... A> inline constexpr int kOctetsArguments = (0 + ... + OctetsArgument<A>());

/// The names under which a library may export a `__stdcall` function, in the order to try them: bare, then
/// "Name@8" and "_Name@8" as the linkers decorate them. `octets` are those of its arguments.
QByteArrayList NomsExportes(const QByteArray& nom, int octets);

} // namespace drugbank
