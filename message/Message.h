#pragma once

#include "message/MessageInterfaceExport.h"

#include <array>
#include <cstdint>
#include <typeinfo>

/// Base of everything that travels between device modules and tool windows.
///
/// The classes of this library are told apart by run-time type (see `message_cast`), not by
/// `type()`. The numbers 1 and 2 belong to the application's own messages.
class MESSAGE_INTERFACE_EXPORT Message
{
public:
    /// Makes a message of type 0.
    Message();
    explicit Message(std::int32_t type);
    virtual ~Message();
    Message(const Message& other);
    Message& operator=(const Message& other);

    std::int32_t type() const;

    /// One of the two words (`index` 0 or 1) that are the module's to use: they are copied with the
    /// message, and the application never reads them. Any other index reads as 0.
    std::uint32_t moduleWord(int index) const;
    /// Sets one of the module's two words; an index other than 0 or 1 is ignored.
    void setModuleWord(int index, std::uint32_t value);

private:
    std::int32_t m_type = 0;
    std::array<std::uint32_t, 2> m_moduleWords{};
};

/// `message` as a `T`, or null if it is null or something else.
template <typename T>
const T* message_cast(const Message* message)
{
    // Every window asks this of every frame: what is a `T` itself, as nearly all frames are, needs
    // no walk over base classes.
    if (message != nullptr && typeid(*message) == typeid(T)) {
        return static_cast<const T*>(message);
    }
    return dynamic_cast<const T*>(message);
}

/// \overload
template <typename T>
T* message_cast(Message* message)
{
    return const_cast<T*>(message_cast<T>(static_cast<const Message*>(message)));
}
