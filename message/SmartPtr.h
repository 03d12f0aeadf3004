#pragma once

#include <cstdint>
#include <utility>

/// Shared owner of one object, by a separately allocated control block.
///
/// The count is not atomic: all copies stay on one thread. Dereferencing a null `SmartPtr` is
/// undefined.
template <typename T>
class SmartPtr
{
public:
    SmartPtr() = default;

    /// Takes ownership of `object`; a null pointer makes a null `SmartPtr` without a block.
    explicit SmartPtr(T* object) : m_block(object != nullptr ? new Block{1, object} : nullptr) {}

    SmartPtr(const SmartPtr& other) : m_block(other.m_block)
    {
        if (m_block != nullptr) {
            ++m_block->count;
        }
    }

    SmartPtr(SmartPtr&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}

    SmartPtr& operator=(SmartPtr other) noexcept
    {
        std::swap(m_block, other.m_block);
        return *this;
    }

    ~SmartPtr()
    {
        if (m_block != nullptr && --m_block->count == 0) {
            destroy(m_block);
        }
    }

    /// The object, or null. Ownership stays here.
    T* get() const { return m_block != nullptr ? m_block->object : nullptr; }
    T& operator*() const { return *m_block->object; }
    T* operator->() const { return m_block->object; }
    explicit operator bool() const { return m_block != nullptr; }

    /// Number of `SmartPtr`s that share the object; 0 for null.
    std::uint32_t useCount() const { return m_block != nullptr ? m_block->count : 0; }

private:
    struct Block
    {
        std::uint32_t count;
        T* object;
    };

    // Not inline: GCC 12 does not follow the count, and would warn of a use after free wherever it
    // sees one owner end before another.
    [[gnu::noinline]] static void destroy(Block* block)
    {
        delete block->object;
        delete block;
    }

    Block* m_block = nullptr;
};
